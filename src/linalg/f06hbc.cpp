// f06hbc: loads a constant into a complex vector.
#include <kor/f06.h>

#include "linalg/vector_operations.hpp"

void f06hbc(Integer n, Complex con, Complex x[], Integer incx) { kor::linalg::fill(n, con, x, incx); }
