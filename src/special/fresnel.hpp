// What the two Fresnel integrals share: the phase pi x^2 / 2 and the auxiliary functions for large arguments.
#pragma once

#include <cmath>

#include "special/elementary.hpp"
#include "special/fresnel_tables.hpp"

namespace kor::special {

inline constexpr double kFresnelSeriesBelow = 0.5;
inline constexpr double kFresnelTailFrom = 4.0;
inline constexpr double kFresnelHalfFrom = 1e16; // from here on both are 1/2 to the last bit

// Sine and cosine of pi x^2 / 2. The square is exact in two doubles, and so is its remainder modulo 4.
KOR_INLINE SineAndCosine fresnel_phase(double x)
{
    constexpr double kSmall = 0x1p29;
    const DoubleDouble exact = two_square(x);
    const DoubleDouble within = exact.hi < kSmall ? exact : two_sum(std::fmod(exact.hi, 4.0), std::fmod(exact.lo, 4.0));
    const NearestInteger quarters = nearest_integer(within.hi);
    const DoubleDouble rest = fast_two_sum(within.hi - quarters.value, within.lo);
    return extended_sine_cosine_reduced({tables::kPi.scaled(0.5) * rest, quarters.count & 3});
}

// With u = 1/(pi x) F and v = 1/(pi^2 x^3) G: S = 1/2 - u cos - v sin, C = 1/2 + u sin - v cos of the phase.
struct FresnelTail {
    double u, v;
};

KOR_INLINE FresnelTail fresnel_tail(double x)
{
    constexpr double kOneOverPi = 0.3183098861837907;
    const double reciprocal = kOneOverPi / x, square = 1.0 / (x * x), fourth = square * square;
    return {reciprocal * tables::kFresnelF.open(fourth).rounded(),
            reciprocal * kOneOverPi * square * tables::kFresnelG.open(fourth).rounded()};
}

} // namespace kor::special
