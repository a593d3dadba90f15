// Kelvin functions ber, bei, ker, kei of order 0. Within 0.9 ulp, ker and kei for x >= 16 relative to |ker + i kei|.
#pragma once

namespace kor::special {

// |x| < 44.625.
double kelvin_ber(double x);
double kelvin_bei(double x);

// 0 < x <= 8000.
double kelvin_ker(double x);
double kelvin_kei(double x);

} // namespace kor::special
