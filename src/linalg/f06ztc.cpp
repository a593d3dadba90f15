// f06ztc: product of a complex symmetric and a general matrix (zsymm).
#include <kor/f06.h>

#include "linalg/matrix_matrix.hpp"

void f06ztc(Integer side, Integer uplo, Integer m, Integer n, Complex alpha, const Complex a[], Integer tda,
            const Complex b[], Integer tdb, Complex beta, Complex c[], Integer tdc)
{
    kor::linalg::symm("f06ztc/zsymm", side, uplo, m, n, alpha, a, tda, b, tdb, beta, c, tdc);
}
