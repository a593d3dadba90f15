// f06ssc: update of rank 2 of a packed complex Hermitian matrix (zhpr2).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06ssc(Integer uplo, Integer n, Complex alpha, const Complex x[], Integer incx, const Complex y[], Integer incy,
            Complex ap[])
{
    kor::linalg::hpr2("f06ssc/zhpr2", uplo, n, alpha, x, incx, y, incy, ap);
}
