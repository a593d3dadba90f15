// The gamma function and its logarithm.
#pragma once

#include "special/evaluate.hpp"

namespace kor::special {

// Gamma(x), x a finite double in [-171, 171.6] but not zero or a negative integer, and not so near zero that 1/x
// overflows; within 0.8 ulp.
double gamma(double x);

// Gamma(x) for x in [1/2, 171.6], relative error about 2^-56.
DoubleDouble extended_gamma(DoubleDouble x);

// ln Gamma(x), x positive, at most 2.55e305; within 1 ulp, also next to the zeros at 1 and 2.
double log_gamma(double x);

// The same with a relative error of about 2^-55.
DoubleDouble extended_log_gamma(double x);

// ln Gamma(1 + d), d in [-1/2, 2), relative error about 2^-56.
DoubleDouble extended_log_gamma_one_plus(double d);

// Stirling's correction ln Gamma(x) - ((x - 1/2) ln x - x + ln sqrt(2 pi)), x >= 12: 1/(12 x) - 1/(360 x^3) + ...
DoubleDouble stirling_correction(double x);

} // namespace kor::special
