// f06scc: product of a complex Hermitian matrix and a vector (zhemv).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06scc(Integer uplo, Integer n, Complex alpha, const Complex a[], Integer tda, const Complex x[], Integer incx,
            Complex beta, Complex y[], Integer incy)
{
    kor::linalg::hemv("f06scc/zhemv", uplo, n, alpha, a, tda, x, incx, beta, y, incy);
}
