// f06skc: solves a system with a complex triangular band matrix (ztbsv).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06skc(Integer uplo, Integer trans, Integer diag, Integer n, Integer k, const Complex a[], Integer tda,
            Complex x[], Integer incx)
{
    kor::linalg::tbsv("f06skc/ztbsv", uplo, trans, diag, n, k, a, tda, x, incx);
}
