// f06zrc: update of rank 2k of a complex Hermitian matrix (zher2k).
#include <kor/f06.h>

#include "linalg/matrix_matrix.hpp"

void f06zrc(Integer uplo, Integer trans, Integer n, Integer k, Complex alpha, const Complex a[], Integer tda,
            const Complex b[], Integer tdb, double beta, Complex c[], Integer tdc)
{
    kor::linalg::her2k("f06zrc/zher2k", uplo, trans, n, k, alpha, a, tda, b, tdb, beta, c, tdc);
}
