// f06pgc: product of a real triangular band matrix and a vector (dtbmv).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06pgc(Integer uplo, Integer trans, Integer diag, Integer n, Integer k, const double a[], Integer tda, double x[],
            Integer incx)
{
    kor::linalg::tbmv("f06pgc/dtbmv", uplo, trans, diag, n, k, a, tda, x, incx);
}
