// x04aaf_f: the unit of error messages: it can be read and not set.
#include "frame/units.hpp"

namespace kor {

void x04aaf_f(Integer i, Integer *nerr)
{
    if (i == 0) *nerr = 6;
}

} // namespace kor
