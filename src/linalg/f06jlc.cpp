// f06jlc: position of the element of a real vector with the greatest absolute value (idamax).
#include <kor/f06.h>

#include "linalg/norm.hpp"

Integer f06jlc(Integer n, const double x[], Integer incx) { return kor::linalg::index_of_greatest(n, x, incx) + 1; }
