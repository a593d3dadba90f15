// f06sgc: product of a complex triangular band matrix and a vector (ztbmv).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06sgc(Integer uplo, Integer trans, Integer diag, Integer n, Integer k, const Complex a[], Integer tda,
            Complex x[], Integer incx)
{
    kor::linalg::tbmv("f06sgc/ztbmv", uplo, trans, diag, n, k, a, tda, x, incx);
}
