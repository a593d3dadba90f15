// f06ggc: interchanges two complex vectors (zswap).
#include <kor/f06.h>

#include "linalg/vector_operations.hpp"

void f06ggc(Integer n, Complex x[], Integer incx, Complex y[], Integer incy) { kor::linalg::swap(n, x, incx, y, incy); }
