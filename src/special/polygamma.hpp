// Derivatives of the logarithm of the gamma function.
#pragma once

#include <kor.h>

namespace kor::special {

// digamma(x), x not zero or a negative integer; also accurate next to its positive zero.
double digamma(double x);

enum PolygammaStatus : Integer {
    kPolygammaDone = 0,
    kPolygammaOrder = 1,     // k out of range
    kPolygammaPole = 2,      // the argument is a pole
    kPolygammaUnderflow = 3, // the value is below the smallest normal number
    kPolygammaOverflow = 4,
};

// psi^(k)(x), 0 <= k <= 6; `value` is 0 unless all is well.
Integer s14aef_f(double x, Integer k, double *value);

// psi^(k)(z), 0 <= k <= 4.
Integer s14aff_f(Complex z, Integer k, Complex *value);

} // namespace kor::special
