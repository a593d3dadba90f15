// f06egc: interchanges two real vectors (dswap).
#include <kor/f06.h>

#include "linalg/vector_operations.hpp"

void f06egc(Integer n, double x[], Integer incx, double y[], Integer incy) { kor::linalg::swap(n, x, incx, y, incy); }
