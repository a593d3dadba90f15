// Complex scalars, for the a02 chapter and for every chapter that computes with them.
//
// Sums, products, quotients and moduli are formed in double. The functions that would cancel or overflow half-way, roots,
// powers and the elementary functions, are formed in long double and rounded once.
#pragma once

#include <cmath>

#include <kor.h>

namespace kor {

inline Complex sum(Complex a, Complex b) { return {a.re + b.re, a.im + b.im}; }
inline Complex difference(Complex a, Complex b) { return {a.re - b.re, a.im - b.im}; }
inline Complex negative(Complex z) { return {-z.re, -z.im}; }
inline Complex conjugate(Complex z) { return {z.re, -z.im}; }
inline Complex product(Complex a, Complex b) { return {a.re * b.re - a.im * b.im, b.im * a.re + a.im * b.re}; }
inline Complex scaled(Complex z, double r) { return {z.re * r, z.im * r}; }

// The modulus overflows only when it is too large itself.
inline double modulus(double x, double y) { return std::hypot(x, y); }
inline double modulus(Complex z) { return modulus(z.re, z.im); }
inline double argument(Complex z) { return std::atan2(z.im, z.re); }

Complex quotient(Complex z, Complex w);
Complex square_root(Complex z); // principal: the real part is never negative
Complex logarithm(Complex z);   // principal
Complex exponential(Complex z);
Complex power(Complex z, Integer n); // 1 for n = 0
Complex power(Complex z, double r);  // exp(r log z)
Complex power(Complex z, Complex w); // exp(w log z)
Complex sine(Complex z);
Complex cosine(Complex z);
Complex tangent(Complex z);

} // namespace kor
