// f06zjc: solves systems with a complex triangular matrix for several right-hand sides (ztrsm).
#include <kor/f06.h>

#include "linalg/matrix_matrix.hpp"

void f06zjc(Integer side, Integer uplo, Integer transa, Integer diag, Integer m, Integer n, Complex alpha,
            const Complex a[], Integer tda, Complex b[], Integer tdb)
{
    kor::linalg::trsm("f06zjc/ztrsm", side, uplo, transa, diag, m, n, alpha, a, tda, b, tdb);
}
