// f06hgc: changes the sign of a complex vector.
#include <kor/f06.h>

#include "linalg/vector_operations.hpp"

void f06hgc(Integer n, Complex x[], Integer incx) { kor::linalg::negate(n, x, incx); }
