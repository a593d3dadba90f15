// What the sine and the cosine integral share: their auxiliary functions for large arguments.
#pragma once

#include "special/integral_tables.hpp"

namespace kor::special {

inline constexpr double kAuxiliaryFrom = 16.0; // from here on Ci = f sin - g cos, Si = pi/2 - f cos - g sin
inline constexpr double kAuxiliaryUpTo = 1e16; // beyond, f is 1/x and g nothing

// x f(x) and x^2 g(x).
struct Auxiliary {
    DoubleDouble f, g;
};

KOR_INLINE Auxiliary scaled_auxiliary(double x)
{
    const double u = 1.0 / (x * x);
    return {tables::kAuxiliaryF(u), tables::kAuxiliaryG(u)};
}

} // namespace kor::special
