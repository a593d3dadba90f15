// f06psc: update of rank 2 of a packed real symmetric matrix (dspr2).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06psc(Integer uplo, Integer n, double alpha, const double x[], Integer incx, const double y[], Integer incy,
            double ap[])
{
    kor::linalg::hpr2("f06psc/dspr2", uplo, n, alpha, x, incx, y, incy, ap);
}
