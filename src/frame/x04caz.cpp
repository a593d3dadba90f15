// x04caz: copies the head of a text.
#include <cstring>

#include "frame/text.hpp"

namespace kor {

void x04caz(char *dst, const char *src, Integer n)
{
    const auto length = static_cast<std::size_t>(n);
    std::strncpy(dst, src, length);
    dst[length] = '\0';
}

} // namespace kor
