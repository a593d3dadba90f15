// f06jdc: multiplies a complex vector by a real number (zdscal).
#include <kor/f06.h>

#include "linalg/vector_operations.hpp"

void f06jdc(Integer n, double alpha, Complex x[], Integer incx) { kor::linalg::scal(n, alpha, x, incx); }
