// f06fgc: changes the sign of a real vector.
#include <kor/f06.h>

#include "linalg/vector_operations.hpp"

void f06fgc(Integer n, double x[], Integer incx) { kor::linalg::negate(n, x, incx); }
