// Derivatives of the logarithm of the gamma function.
#pragma once

#include <kor.h>

namespace kor::special {

enum PolygammaStatus : Integer {
    kPolygammaDone = 0,
    kPolygammaOrder = 1,     // k out of range
    kPolygammaPole = 2,      // the argument is a pole
    kPolygammaUnderflow = 3, // the value is below the smallest normal number
    kPolygammaOverflow = 4,
};

// `value` is 0 unless all is well.
struct Polygamma {
    double value;
    Integer status;
};

// psi^(k)(x), 0 <= k <= 6.
Polygamma s14aef_f(double x, Integer k);

// psi^(k)(z), 0 <= k <= 4.
Integer s14aff_f(Complex z, Integer k, Complex *value);

} // namespace kor::special
