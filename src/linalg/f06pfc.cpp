// f06pfc: product of a real triangular matrix and a vector (dtrmv).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06pfc(Integer uplo, Integer trans, Integer diag, Integer n, const double a[], Integer tda, double x[],
            Integer incx)
{
    kor::linalg::trmv("f06pfc/dtrmv", uplo, trans, diag, n, a, tda, x, incx);
}
