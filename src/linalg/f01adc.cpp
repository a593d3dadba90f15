// f01adc: inverse of a real symmetric positive-definite matrix.
#include <kor/f01.h>

#include "linalg/inverse.hpp"

Integer f01adc(Integer n, double a[], Integer tda)
{
    enum { kDone, kNotPositiveDefinite, kBadArgument = 3 };
    if (n < 1 || tda < n) return kBadArgument;
    return kor::linalg::positive_definite_inverse(n, a, tda) ? kDone : kNotPositiveDefinite;
}
