// f06eac: scalar product of two real vectors (ddot).
#include <kor/f06.h>

#include "linalg/vector_operations.hpp"

double f06eac(Integer n, const double x[], Integer incx, const double y[], Integer incy)
{
    return kor::linalg::dot(n, x, incx, y, incy);
}
