// f06ejc: Euclidean norm of a real vector (dnrm2).
#include <kor/f06.h>

#include "linalg/norm.hpp"

double f06ejc(Integer n, const double x[], Integer incx) { return kor::linalg::euclidean_norm(n, x, incx); }
