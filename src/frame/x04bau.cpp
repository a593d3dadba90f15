// x04bau: closes a file that x04bax has opened.
#include "frame/files.hpp"

namespace kor {

Integer x04bau(std::FILE *file)
{
    if (file != stdin) std::fclose(file);
    return 0;
}

} // namespace kor
