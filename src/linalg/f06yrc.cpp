// f06yrc: update of rank 2k of a real symmetric matrix (dsyr2k).
#include <kor/f06.h>

#include "linalg/matrix_matrix.hpp"

void f06yrc(Integer uplo, Integer trans, Integer n, Integer k, double alpha, const double a[], Integer tda,
            const double b[], Integer tdb, double beta, double c[], Integer tdc)
{
    kor::linalg::syr2k("f06yrc/dsyr2k", uplo, trans, n, k, alpha, a, tda, b, tdb, beta, c, tdc);
}
