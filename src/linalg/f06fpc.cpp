// f06fpc: applies a plane rotation to two real vectors, with short cuts.
#include <kor/f06.h>

#include <cmath>

#include "linalg/vector_operations.hpp"

void f06fpc(Integer n, double x[], Integer incx, double y[], Integer incy, double c, double s)
{
    if (c == 1.0 && s == 0.0) return;
    if (c != 0.0 || std::fabs(s) != 1.0) return kor::linalg::rot(n, x, incx, y, incy, c, s);
    const kor::linalg::Strided<double> u{x, n, incx}, v{y, n, incy};
    for (Integer i = 0; i < n; ++i) {
        const double kept = u[i];
        u[i] = s * v[i];
        v[i] = -s * kept;
    }
}
