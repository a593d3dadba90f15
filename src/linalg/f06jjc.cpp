// f06jjc: Euclidean norm of a complex vector (dznrm2).
#include <kor/f06.h>

#include "linalg/norm.hpp"

double f06jjc(Integer n, const Complex x[], Integer incx) { return kor::linalg::euclidean_norm(n, x, incx); }
