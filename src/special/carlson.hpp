// Carlson's symmetric elliptic integrals.
//
//   RF(x, y, z)    = 1/2 integral over t >= 0 of dt / s(t),           s(t) = sqrt((t+x)(t+y)(t+z))
//   RC(x, y)       = RF(x, y, y)
//   RJ(x, y, z, p) = 3/2 integral over t >= 0 of dt / (s(t) (t+p))
//   RD(x, y, z)    = RJ(x, y, z, z)
//
// Arguments are not negative, at most one of x, y, z is zero, p and the y of RC are positive.
#pragma once

#include <complex>

#include "special/evaluate.hpp"

namespace kor::special {

// Relative error about 2^-56.
DoubleDouble extended_rc(double x, double y);

double carlson_rc(double x, double y);
double carlson_rf(double x, double y, double z);
double carlson_rd(double x, double y, double z);
double carlson_rj(double x, double y, double z, double p);

// Cauchy's principal values for y < 0 and p < 0.
double carlson_rc_principal(double x, double y);
double carlson_rj_principal(double x, double y, double z, double p);

// Complex arguments off the negative real axis, at most one of x, y, z zero; a few eps. False: no convergence.
using Cplx = std::complex<double>;
bool carlson_rf(Cplx x, Cplx y, Cplx z, Cplx &value);
bool carlson_rd(Cplx x, Cplx y, Cplx z, Cplx &value);

} // namespace kor::special
