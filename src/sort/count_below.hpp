// Bisection without a branch that depends on the data.
#pragma once

#include <cstddef>

namespace kor::sort {

// How many of n ascending elements are less than the value, or not greater than it.
template <bool or_equal>
inline __attribute__((always_inline)) std::ptrdiff_t count_below(const double *a, std::ptrdiff_t n, double value)
{
    std::ptrdiff_t low = 0;
    while (n > 0) {
        const std::ptrdiff_t half = n / 2;
        const bool is_below = or_equal ? a[low + half] <= value : a[low + half] < value;
        low = is_below ? low + half + 1 : low;
        n = is_below ? n - half - 1 : half;
    }
    return low;
}

} // namespace kor::sort
