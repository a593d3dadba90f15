// f06ecc: adds a multiple of a real vector to another (daxpy).
#include <kor/f06.h>

#include "linalg/vector_operations.hpp"

void f06ecc(Integer n, double alpha, const double x[], Integer incx, double y[], Integer incy)
{
    kor::linalg::axpy(n, alpha, x, incx, y, incy);
}
