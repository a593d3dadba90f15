// f06zfc: product of a complex triangular and a general matrix (ztrmm).
#include <kor/f06.h>

#include "linalg/matrix_matrix.hpp"

void f06zfc(Integer side, Integer uplo, Integer transa, Integer diag, Integer m, Integer n, Complex alpha,
            const Complex a[], Integer tda, Complex b[], Integer tdb)
{
    kor::linalg::trmm("f06zfc/ztrmm", side, uplo, transa, diag, m, n, alpha, a, tda, b, tdb);
}
