// f06sdc: product of a complex Hermitian band matrix and a vector (zhbmv).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06sdc(Integer uplo, Integer n, Integer k, Complex alpha, const Complex a[], Integer tda, const Complex x[],
            Integer incx, Complex beta, Complex y[], Integer incy)
{
    kor::linalg::hbmv("f06sdc/zhbmv", uplo, n, k, alpha, a, tda, x, incx, beta, y, incy);
}
