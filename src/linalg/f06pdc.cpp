// f06pdc: product of a real symmetric band matrix and a vector (dsbmv).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06pdc(Integer uplo, Integer n, Integer k, double alpha, const double a[], Integer tda, const double x[],
            Integer incx, double beta, double y[], Integer incy)
{
    kor::linalg::hbmv("f06pdc/dsbmv", uplo, n, k, alpha, a, tda, x, incx, beta, y, incy);
}
