// f06fbc: loads a constant into a real vector.
#include <kor/f06.h>

#include "linalg/vector_operations.hpp"

void f06fbc(Integer n, double con, double x[], Integer incx) { kor::linalg::fill(n, con, x, incx); }
