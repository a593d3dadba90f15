// f06yac: product of two real general matrices (dgemm).
#include <kor/f06.h>

#include "linalg/matrix_matrix.hpp"

void f06yac(Integer transa, Integer transb, Integer m, Integer n, Integer k, double alpha, const double a[],
            Integer tda, const double b[], Integer tdb, double beta, double c[], Integer tdc)
{
    kor::linalg::gemm("f06yac/dgemm", transa, transb, m, n, k, alpha, a, tda, b, tdb, beta, c, tdc);
}
