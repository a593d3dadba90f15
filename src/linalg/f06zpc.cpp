// f06zpc: update of rank k of a complex Hermitian matrix (zherk).
#include <kor/f06.h>

#include "linalg/matrix_matrix.hpp"

void f06zpc(Integer uplo, Integer trans, Integer n, Integer k, double alpha, const Complex a[], Integer tda,
            double beta, Complex c[], Integer tdc)
{
    kor::linalg::herk("f06zpc/zherk", uplo, trans, n, k, alpha, a, tda, beta, c, tdc);
}
