// f06sqc: update of rank 1 of a packed complex Hermitian matrix (zhpr).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06sqc(Integer uplo, Integer n, double alpha, const Complex x[], Integer incx, Complex ap[])
{
    kor::linalg::hpr("f06sqc/zhpr", uplo, n, alpha, x, incx, ap);
}
