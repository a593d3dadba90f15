// x04bcz: turns a text to lower case.
#include <cctype>

#include "frame/text.hpp"

namespace kor {

void x04bcz(char *s)
{
    for (; *s != '\0'; ++s) *s = static_cast<char>(std::tolower(static_cast<unsigned char>(*s)));
}

} // namespace kor
