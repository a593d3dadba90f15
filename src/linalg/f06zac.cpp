// f06zac: product of two complex general matrices (zgemm).
#include <kor/f06.h>

#include "linalg/matrix_matrix.hpp"

void f06zac(Integer transa, Integer transb, Integer m, Integer n, Integer k, Complex alpha, const Complex a[],
            Integer tda, const Complex b[], Integer tdb, Complex beta, Complex c[], Integer tdc)
{
    kor::linalg::gemm("f06zac/zgemm", transa, transb, m, n, k, alpha, a, tda, b, tdb, beta, c, tdc);
}
