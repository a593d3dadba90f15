// The table behind g05ecc and g05edc: weights of a law with one mode, by their ratios from the mode outwards. The scale
// is free, so nothing overflows and no logarithm or exponential is formed; what lies in the far tails may become 0.
#pragma once

#include <cmath>

#include "frame/report.hpp"
#include "frame/workspace.hpp"
#include "random/reference_vector.hpp"

namespace kor::random {

// The values of a law that its table holds: all but a mass of about 10^-12 in each tail.
struct Range {
    double low, high;
};

inline Range range_of_law(double mean, double sigma)
{
    constexpr double kSpread = 7.15, kMargin = 8.5;
    return {std::fmax(std::trunc(mean - kSpread * sigma), 0.0), std::trunc(mean + kSpread * sigma + kMargin)};
}

// `ratio(k)` is the mass at k + 1 over that at k. False when there is no memory.
template <class Ratio>
bool set_reference_by_ratios(Range range, double mode, Ratio ratio, double r[], Integer nr)
{
    const auto points = static_cast<std::ptrdiff_t>(range.high - range.low) + 1;
    Workspace<double> weights{Count{points}};
    if (!weights) return false;
    const auto peak = static_cast<std::ptrdiff_t>(std::fmin(std::fmax(mode, range.low), range.high) - range.low);
    weights[peak] = 1.0;
    for (std::ptrdiff_t i = peak; i + 1 < points; ++i)
        weights[i + 1] = weights[i] * ratio(range.low + static_cast<double>(i));
    for (std::ptrdiff_t i = peak; i > 0; --i)
        weights[i - 1] = weights[i] / ratio(range.low + static_cast<double>(i - 1));
    set_reference(weights.data(), points, false, range.low, r, nr);
    return true;
}

} // namespace kor::random
