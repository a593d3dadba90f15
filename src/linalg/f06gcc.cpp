// f06gcc: adds a multiple of a complex vector to another (zaxpy).
#include <kor/f06.h>

#include "linalg/vector_operations.hpp"

void f06gcc(Integer n, Complex alpha, const Complex x[], Integer incx, Complex y[], Integer incy)
{
    kor::linalg::axpy(n, alpha, x, incx, y, incy);
}
