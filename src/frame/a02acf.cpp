// a02acf: quotient of complex numbers in pairs of doubles.
#include "frame/complex.hpp"
#include "frame/complex_parts.hpp"

namespace kor {

void a02acf(double xr, double xi, double yr, double yi, double &zr, double &zi)
{
    const Complex z = quotient({xr, xi}, {yr, yi});
    zr = z.re;
    zi = z.im;
}

} // namespace kor
