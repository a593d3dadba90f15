// f06klc: counts the leading elements of a real vector that are not negligible.
#include <kor/f06.h>

#include <cmath>

#include "frame/constants.hpp"
#include "linalg/strided.hpp"

Integer f06klc(Integer n, const double x[], Integer incx, double tol)
{
    const double bound = tol < 0.0 ? kor::kPrecision : tol;
    const kor::linalg::Strided<const double> u{x, n, incx};
    double greatest = 0.0;
    for (Integer k = 0; k < n; ++k) {
        const double size = std::fabs(u[k]);
        if (!(size > bound * greatest)) return k;
        greatest = std::fmax(greatest, size);
    }
    return n > 0 ? n : 0;
}
