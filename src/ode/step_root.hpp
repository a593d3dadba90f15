// The root of an error ratio that a step size is proportional to.
#pragma once

#include <algorithm>
#include <cmath>

namespace kor::ode {

// x^exponent to six digits: a step size needs no more, and single precision is several times faster. NaN stays NaN.
inline double step_root(double x, double exponent)
{
    constexpr double kLeast = 1e-30, kMost = 1e30;
    return std::pow(static_cast<float>(std::clamp(x, kLeast, kMost)), static_cast<float>(exponent));
}

} // namespace kor::ode
