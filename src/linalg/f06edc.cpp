// f06edc: multiplies a real vector by a number (dscal).
#include <kor/f06.h>

#include "linalg/vector_operations.hpp"

void f06edc(Integer n, double alpha, double x[], Integer incx) { kor::linalg::scal(n, alpha, x, incx); }
