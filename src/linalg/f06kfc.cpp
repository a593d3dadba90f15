// f06kfc: copies a real vector into a complex one.
#include <kor/f06.h>

#include "linalg/strided.hpp"

void f06kfc(Integer n, const double x[], Integer incx, Complex y[], Integer incy)
{
    const kor::linalg::Strided<const double> u{x, n, incx};
    const kor::linalg::Strided<Complex> v{y, n, incy};
    for (Integer i = 0; i < n; ++i) v[i] = {u[i], 0.0};
}
