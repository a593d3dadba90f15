// x04baf_f: writes one line of a kernel.
#include "frame/units.hpp"

#include <cstdio>

namespace kor {

void x04baf_f(Integer nout, const char *rec, Integer length)
{
    if (nout < 0) return;
    while (length > 0 && rec[length - 1] == ' ') --length;
    std::printf("%.*s\n", length > 0 ? static_cast<int>(length) : 0, rec);
}

} // namespace kor
