// f06pec: product of a packed real symmetric matrix and a vector (dspmv).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06pec(Integer uplo, Integer n, double alpha, const double ap[], const double x[], Integer incx, double beta,
            double y[], Integer incy)
{
    kor::linalg::hpmv("f06pec/dspmv", uplo, n, alpha, ap, x, incx, beta, y, incy);
}
