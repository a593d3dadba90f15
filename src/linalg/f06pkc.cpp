// f06pkc: solves a system with a real triangular band matrix (dtbsv).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06pkc(Integer uplo, Integer trans, Integer diag, Integer n, Integer k, const double a[], Integer tda, double x[],
            Integer incx)
{
    kor::linalg::tbsv("f06pkc/dtbsv", uplo, trans, diag, n, k, a, tda, x, incx);
}
