// f06dfc: copies a vector of integers.
#include <kor/f06.h>

#include "linalg/strided.hpp"

void f06dfc(Integer n, const Integer x[], Integer incx, Integer y[], Integer incy)
{
    const kor::linalg::Strided<const Integer> u{x, n, incx};
    const kor::linalg::Strided<Integer> v{y, n, incy};
    for (Integer i = 0; i < n; ++i) v[i] = u[i];
}
