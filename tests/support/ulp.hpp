// Distance of doubles in units in the last place.
#pragma once

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

namespace kor::testing {

// |computed - exact| in ulps of `exact`; 0 for equal infinities and for two NaNs, infinite if only one is a NaN.
inline double ulps(double computed, double exact)
{
    if (computed == exact || (std::isnan(computed) && std::isnan(exact))) return 0.0;
    if (!std::isfinite(computed) || !std::isfinite(exact)) return std::numeric_limits<double>::infinity();
    const int exponent = std::max(std::ilogb(exact), -1022);
    return std::fabs(computed - exact) / std::ldexp(1.0, (exact == 0.0 ? -1022 : exponent) - 52);
}

} // namespace kor::testing
