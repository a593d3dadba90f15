// f06gfc: copies a complex vector (zcopy).
#include <kor/f06.h>

#include "linalg/vector_operations.hpp"

void f06gfc(Integer n, const Complex x[], Integer incx, Complex y[], Integer incy)
{
    kor::linalg::copy(n, x, incx, y, incy);
}
