// f06sjc: solves a system with a complex triangular matrix (ztrsv).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06sjc(Integer uplo, Integer trans, Integer diag, Integer n, const Complex a[], Integer tda, Complex x[],
            Integer incx)
{
    kor::linalg::trsv("f06sjc/ztrsv", uplo, trans, diag, n, a, tda, x, incx);
}
