// f06gbc: scalar product of two complex vectors, the first conjugated (zdotc).
#include <kor/f06.h>

#include "linalg/vector_operations.hpp"

Complex f06gbc(Integer n, const Complex x[], Integer incx, const Complex y[], Integer incy)
{
    return kor::linalg::dot(n, x, incx, y, incy);
}
