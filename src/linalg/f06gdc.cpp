// f06gdc: multiplies a complex vector by a complex number (zscal).
#include <kor/f06.h>

#include "linalg/vector_operations.hpp"

void f06gdc(Integer n, Complex alpha, Complex x[], Integer incx) { kor::linalg::scal(n, alpha, x, incx); }
