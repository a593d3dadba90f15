// Elementary reflections H = I - u u', u = (zeta; z), u' u = 2: zeta is in [1, sqrt 2], or 0 for H = I.
#pragma once

#include <kor.h>

namespace kor::linalg {

// Chooses H so that H (alpha; x) = (beta; 0): alpha becomes beta = -sign(alpha) |(alpha; x)|, x becomes z. Returns zeta.
// H is I, and alpha and x stay, if no element of x exceeds max(tol, precision |alpha|) in modulus.
double make_reflection(Integer n, double &alpha, double *x, Integer incx, double tol);

// The same in complex numbers: H = I - gamma u conj(u)', gamma = 1 + i theta.im, zeta = theta.re; beta is real. With x
// negligible H = I only if alpha is real; else x is cleared and H turns alpha alone.
Complex make_reflection(Integer n, Complex &alpha, Complex *x, Integer incx, double tol);

// (delta; y) := H (delta; y)
void apply_reflection(Integer n, double zeta, const double *z, Integer incz, double &delta, double *y, Integer incy);

} // namespace kor::linalg
