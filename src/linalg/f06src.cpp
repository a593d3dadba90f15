// f06src: update of rank 2 of a complex Hermitian matrix (zher2).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06src(Integer uplo, Integer n, Complex alpha, const Complex x[], Integer incx, const Complex y[], Integer incy,
            Complex a[], Integer tda)
{
    kor::linalg::her2("f06src/zher2", uplo, n, alpha, x, incx, y, incy, a, tda);
}
