// f06zcc: product of a complex Hermitian and a general matrix (zhemm).
#include <kor/f06.h>

#include "linalg/matrix_matrix.hpp"

void f06zcc(Integer side, Integer uplo, Integer m, Integer n, Complex alpha, const Complex a[], Integer tda,
            const Complex b[], Integer tdb, Complex beta, Complex c[], Integer tdc)
{
    kor::linalg::hemm("f06zcc/zhemm", side, uplo, m, n, alpha, a, tda, b, tdb, beta, c, tdc);
}
