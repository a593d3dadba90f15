// What the Bessel, Airy and Kelvin functions share: constants, and the logarithm down to the smallest argument.
#pragma once

#include "special/elementary.hpp"
#include "special/evaluate.hpp"

namespace kor::special {

inline constexpr DoubleDouble kTwoOverPi{0x1.45f306dc9c883p-1, -0x1.6b01ec5417056p-55};
inline constexpr DoubleDouble kHalfPi{0x1.921fb54442d18p+0, 0x1.1a62633145c07p-54};
inline constexpr DoubleDouble kQuarterPi{0x1.921fb54442d18p-1, 0x1.1a62633145c07p-55};
inline constexpr DoubleDouble kThreeQuarterPi{0x1.2d97c7f3321d2p+1, 0x1.a79394c9e8a0ap-54};
inline constexpr DoubleDouble kEighthPi{0x1.921fb54442d18p-2, 0x1.1a62633145c07p-56};
inline constexpr DoubleDouble kRootHalf{0x1.6a09e667f3bcdp-1, -0x1.bdd3413b26456p-55};
inline constexpr DoubleDouble kInverseRootPi{0x1.20dd750429b6dp-1, 0x1.1ae3a914fed80p-57};

// Where the piecewise polynomials of functions with a logarithm begin; below it their series hold.
inline constexpr double kSmallArgument = 0.25;

// size cos(angle) and size sin(angle): what oscillating functions are for large arguments.
struct Oscillation {
    DoubleDouble size, angle;

    DoubleDouble cosine() const { return size * extended_sine_cosine_of(angle).cosine; }
    DoubleDouble sine() const { return size * extended_sine_cosine_of(angle).sine; }
};

// ln(x) for any x > 0, subnormal ones included.
KOR_INLINE DoubleDouble extended_log_of(double x)
{
    constexpr double kSmallestNormal = 0x1p-1022, kScale = 0x1p54;
    if (x >= kSmallestNormal) [[likely]]
        return extended_log({x});
    return extended_log({x * kScale}) + DoubleDouble{-54 * tables::kLn2High, -54 * tables::kLn2Low};
}

} // namespace kor::special
