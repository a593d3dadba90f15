// f06zwc: update of rank 2k of a complex symmetric matrix (zsyr2k).
#include <kor/f06.h>

#include "linalg/matrix_matrix.hpp"

void f06zwc(Integer uplo, Integer trans, Integer n, Integer k, Complex alpha, const Complex a[], Integer tda,
            const Complex b[], Integer tdb, Complex beta, Complex c[], Integer tdc)
{
    kor::linalg::syr2k("f06zwc/zsyr2k", uplo, trans, n, k, alpha, a, tda, b, tdb, beta, c, tdc);
}
