// f06ekc: sum of the absolute values of a real vector (dasum).
#include <kor/f06.h>

#include "linalg/vector_operations.hpp"

double f06ekc(Integer n, const double x[], Integer incx) { return kor::linalg::asum(n, x, incx); }
