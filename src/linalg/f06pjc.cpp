// f06pjc: solves a system with a real triangular matrix (dtrsv).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06pjc(Integer uplo, Integer trans, Integer diag, Integer n, const double a[], Integer tda, double x[],
            Integer incx)
{
    kor::linalg::trsv("f06pjc/dtrsv", uplo, trans, diag, n, a, tda, x, incx);
}
