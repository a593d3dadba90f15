// x04bbz: turns a text to upper case.
#include <cctype>

#include "frame/text.hpp"

namespace kor {

void x04bbz(char *s)
{
    for (; *s != '\0'; ++s) *s = static_cast<char>(std::toupper(static_cast<unsigned char>(*s)));
}

} // namespace kor
