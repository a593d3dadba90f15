// f06sec: product of a packed complex Hermitian matrix and a vector (zhpmv).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06sec(Integer uplo, Integer n, Complex alpha, const Complex ap[], const Complex x[], Integer incx, Complex beta,
            Complex y[], Integer incy)
{
    kor::linalg::hpmv("f06sec/zhpmv", uplo, n, alpha, ap, x, incx, beta, y, incy);
}
