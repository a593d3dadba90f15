// f06fdc: multiplies a real vector by a number, into another vector.
#include <kor/f06.h>

#include "linalg/vector_operations.hpp"

void f06fdc(Integer n, double alpha, const double x[], Integer incx, double y[], Integer incy)
{
    if (alpha == 0.0) return kor::linalg::fill(n, 0.0, y, incy);
    if (alpha == 1.0) return kor::linalg::copy(n, x, incx, y, incy);
    const kor::linalg::Strided<const double> u{x, n, incx};
    const kor::linalg::Strided<double> v{y, n, incy};
    for (Integer i = 0; i < n; ++i) v[i] = alpha * u[i];
}
