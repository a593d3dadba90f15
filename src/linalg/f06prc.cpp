// f06prc: update of rank 2 of a real symmetric matrix (dsyr2).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06prc(Integer uplo, Integer n, double alpha, const double x[], Integer incx, const double y[], Integer incy,
            double a[], Integer tda)
{
    kor::linalg::her2("f06prc/dsyr2", uplo, n, alpha, x, incx, y, incy, a, tda);
}
