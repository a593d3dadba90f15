// f06epc: applies a plane rotation to two real vectors (drot).
#include <kor/f06.h>

#include "linalg/vector_operations.hpp"

void f06epc(Integer n, double x[], Integer incx, double y[], Integer incy, double c, double s)
{
    kor::linalg::rot(n, x, incx, y, incy, c, s);
}
