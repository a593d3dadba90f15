// f06sac: product of a complex general matrix and a vector (zgemv).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06sac(Integer trans, Integer m, Integer n, Complex alpha, const Complex a[], Integer tda, const Complex x[],
            Integer incx, Complex beta, Complex y[], Integer incy)
{
    kor::linalg::gemv("f06sac/zgemv", trans, m, n, alpha, a, tda, x, incx, beta, y, incy);
}
