// f06yjc: solves systems with a real triangular matrix for several right-hand sides (dtrsm).
#include <kor/f06.h>

#include "linalg/matrix_matrix.hpp"

void f06yjc(Integer side, Integer uplo, Integer transa, Integer diag, Integer m, Integer n, double alpha,
            const double a[], Integer tda, double b[], Integer tdb)
{
    kor::linalg::trsm("f06yjc/dtrsm", side, uplo, transa, diag, m, n, alpha, a, tda, b, tdb);
}
