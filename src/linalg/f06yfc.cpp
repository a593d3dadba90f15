// f06yfc: product of a real triangular and a general matrix (dtrmm).
#include <kor/f06.h>

#include "linalg/matrix_matrix.hpp"

void f06yfc(Integer side, Integer uplo, Integer transa, Integer diag, Integer m, Integer n, double alpha,
            const double a[], Integer tda, double b[], Integer tdb)
{
    kor::linalg::trmm("f06yfc/dtrmm", side, uplo, transa, diag, m, n, alpha, a, tda, b, tdb);
}
