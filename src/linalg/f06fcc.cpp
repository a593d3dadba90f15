// f06fcc: multiplies a real vector by a diagonal matrix.
#include <kor/f06.h>

#include "linalg/vector_operations.hpp"

void f06fcc(Integer n, const double d[], Integer incd, double x[], Integer incx)
{
    if (incd == 0 && n > 0) return kor::linalg::scal(n, *d, x, incx);
    const kor::linalg::Strided<const double> factor{d, n, incd};
    const kor::linalg::Strided<double> u{x, n, incx};
    for (Integer i = 0; i < n; ++i) u[i] *= factor[i];
}
