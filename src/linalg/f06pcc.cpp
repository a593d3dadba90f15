// f06pcc: product of a real symmetric matrix and a vector (dsymv).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06pcc(Integer uplo, Integer n, double alpha, const double a[], Integer tda, const double x[], Integer incx,
            double beta, double y[], Integer incy)
{
    kor::linalg::hemv("f06pcc/dsymv", uplo, n, alpha, a, tda, x, incx, beta, y, incy);
}
