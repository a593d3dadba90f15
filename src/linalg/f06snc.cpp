// f06snc: adds a multiple of the outer product of two complex vectors, the second conjugated, to a matrix (zgerc).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06snc(Integer m, Integer n, Complex alpha, const Complex x[], Integer incx, const Complex y[], Integer incy,
            Complex a[], Integer tda)
{
    kor::linalg::gerc("f06snc/zgerc", m, n, alpha, x, incx, y, incy, a, tda);
}
