// f06pqc: update of rank 1 of a packed real symmetric matrix (dspr).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06pqc(Integer uplo, Integer n, double alpha, const double x[], Integer incx, double ap[])
{
    kor::linalg::hpr("f06pqc/dspr", uplo, n, alpha, x, incx, ap);
}
