// Modified Bessel functions I and K of orders 0 and 1, for real arguments, plain and scaled. Within 0.9 ulp.
#pragma once

namespace kor::special {

// |x| <= 711.6, where the values stay below the overflow limit.
double bessel_i0(double x);
double bessel_i1(double x);

// 0 < x <= 8000; 0 where the value underflows. bessel_k1 from x = 2^-1022 on.
double bessel_k0(double x);
double bessel_k1(double x);

// exp(-|x|) I and exp(x) K, for any finite argument in the domains of I and K.
double scaled_bessel_i0(double x);
double scaled_bessel_i1(double x);
double scaled_bessel_k0(double x);
double scaled_bessel_k1(double x);

} // namespace kor::special
