// Bessel functions J and Y of orders 0 and 1, for real arguments.
#pragma once

namespace kor::special {

// |x| <= 2^54. Within 0.9 ulp, relative to the value itself for |x| < 66, relative to sqrt(2 / (pi x)) from there on.
double bessel_j0(double x);
double bessel_j1(double x);

// The same for 0 < x <= 2^54; bessel_y1 from x = 2^-1022 on.
double bessel_y0(double x);
double bessel_y1(double x);

} // namespace kor::special
