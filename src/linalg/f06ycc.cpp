// f06ycc: product of a real symmetric and a general matrix (dsymm).
#include <kor/f06.h>

#include "linalg/matrix_matrix.hpp"

void f06ycc(Integer side, Integer uplo, Integer m, Integer n, double alpha, const double a[], Integer tda,
            const double b[], Integer tdb, double beta, double c[], Integer tdc)
{
    kor::linalg::symm("f06ycc/dsymm", side, uplo, m, n, alpha, a, tda, b, tdb, beta, c, tdc);
}
