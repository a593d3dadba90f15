// f06dbc: loads a constant into a vector of integers.
#include <kor/f06.h>

#include "linalg/vector_operations.hpp"

void f06dbc(Integer n, Integer con, Integer x[], Integer incx) { kor::linalg::fill(n, con, x, incx); }
