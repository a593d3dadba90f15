// The engine on a finite range with the weight cos(omega x) or sin(omega x).
#pragma once

#include "quadrature/adaptive.hpp"
#include "quadrature/fourier_rule.hpp"

namespace kor::quadrature {

AdaptiveResult integrate_fourier_range(Integrand f, double a, double b, double omega, FourierRule &rule, Subdivision &s,
                                       Tolerance tolerance);

} // namespace kor::quadrature
