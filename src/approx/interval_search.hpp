// The interval of a point among non-decreasing nodes.
#pragma once

#include <algorithm>
#include <cstddef>

namespace kor::approx {

// The largest i <= n-2 with x[i] <= p, of n >= 2 nodes; 0 if there is none.
inline std::ptrdiff_t interval_of(const double *x, std::ptrdiff_t n, double p)
{
    constexpr std::ptrdiff_t few = 16; // intervals that are searched as fast as one of them is guessed
    const std::ptrdiff_t intervals = n - 1;
    if (intervals > few) {
        // Where the point lies if the inner nodes are equally spaced: often right, or next to it. A spline through points has
        // two of them in its first and last intervals, so that these tell nothing of the others.
        const double place = 1.0 + (p - x[1]) * (static_cast<double>(intervals - 2) / (x[n - 2] - x[1]));
        // In this order a NaN gives a bound.
        const double bounded = std::max(0.0, std::min(static_cast<double>(intervals - 1), place));
        const auto guess = static_cast<std::ptrdiff_t>(bounded);
        const std::ptrdiff_t i = std::clamp(guess + (x[guess + 1] <= p) - (p < x[guess]), std::ptrdiff_t{0}, n - 2);
        if (x[i] <= p && p < x[i + 1]) return i;
    }
    const double *left = x;
    for (std::ptrdiff_t length = intervals; length > 1; length -= length / 2) {
        const double *const middle = left + length / 2;
        left = *middle <= p ? middle : left; // a move, not a branch: nobody could foresee it
    }
    return left - x;
}

// The same, where points often come in order: they find theirs at the interval of the point before, or next to it.
inline std::ptrdiff_t interval_near(const double *x, std::ptrdiff_t n, double p, std::ptrdiff_t before)
{
    const std::ptrdiff_t i = before + (before < n - 2 && x[before + 1] <= p);
    return x[i] <= p && p < x[i + 1] ? i : interval_of(x, n, p);
}

} // namespace kor::approx
