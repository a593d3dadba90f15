// All zeros of a polynomial of any degree, behind c02afc and c02agc.
#pragma once

#include "roots/extended_complex.hpp"
#include <kor.h>

namespace kor::roots {

enum class PolynomialStatus { found, not_converged, underflow, overflow };

// Coefficients by powers: b[k] belongs to z^k, b[n] is not zero; destroyed. Zeros that are found, and are doubles, replace
// the first elements of `z`; with real coefficients they come in exactly conjugate pairs.
PolynomialStatus polynomial_zeros(Integer n, ExtendedComplex *b, Complex *z);
PolynomialStatus polynomial_zeros(Integer n, Extended *b, Complex *z);

} // namespace kor::roots
