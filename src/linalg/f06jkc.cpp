// f06jkc: sum of the absolute values of the parts of a complex vector (dzasum).
#include <kor/f06.h>

#include "linalg/vector_operations.hpp"

double f06jkc(Integer n, const Complex x[], Integer incx) { return kor::linalg::asum(n, x, incx); }
