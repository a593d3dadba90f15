// Airy functions Ai and Bi of a real argument, and their derivatives.
#pragma once

namespace kor::special {

// x >= -5.6e10, for the derivatives x >= -1.8e9; 0 where Ai underflows; Bi and its derivative up to x = 104.2, where they
// overflow. Within 0.9 ulp, relative to the value itself for x > -20.6, below relative to the amplitude.
double airy_ai(double x);
double airy_bi(double x);
double airy_ai_slope(double x);
double airy_bi_slope(double x);

} // namespace kor::special
