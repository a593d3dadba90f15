// f06efc: copies a real vector (dcopy).
#include <kor/f06.h>

#include "linalg/vector_operations.hpp"

void f06efc(Integer n, const double x[], Integer incx, double y[], Integer incy)
{
    kor::linalg::copy(n, x, incx, y, incy);
}
