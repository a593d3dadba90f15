// Bessel functions of real argument and fractional order: the kernels behind the public routines s18e.
#pragma once

#include "special/bessel_complex.hpp"

namespace kor::special {

// All return a BesselStatus. kBesselArgument stands for any argument that the routine refuses; the results are then not set.

// I of order nu/4, K of order nu/4, 1 <= |nu| <= 3; scaled by exp(-x) and exp(x), and not scaled.
Integer s18ecf_f(double x, Integer nu, double *value);
Integer s18eef_f(double x, Integer nu, double *value);
Integer s18edf_f(double x, Integer nu, double *value);
Integer s18eff_f(double x, Integer nu, double *value);

// b[k] = K of order ia/ja + k, 0 <= k <= nl <= 100; not scaled, and scaled by exp(x).
Integer s18egf_f(double x, Integer ia, Integer ja, Integer nl, double b[]);
Integer s18ehf_f(double x, Integer ia, Integer ja, Integer nl, double b[]);

// b[k] = I, or J, of order a + k (nl >= 0) or a - k (nl < 0), 0 <= k <= |nl| <= 101.
Integer s18ejf_f(double x, double a, Integer nl, Complex b[]);
Integer s18ekf_f(double x, double a, Integer nl, Complex b[]);

// Whether K of order ia/ja + k is offered: ia/ja is 0, 1/4, 1/3, 1/2, 2/3 or 3/4 in lowest terms, 0 with any ja > 0.
bool valid_order_pair(Integer ia, Integer ja);

// |nl| <= 101.
bool valid_sequence_length(Integer nl);

} // namespace kor::special
