// One standard normal deviate, by random bits and comparisons alone.
//
// The half line is cut where the tail holds 2^-k. The bits of a fraction choose the interval; within it the density is
// that at the left end times exp(-t), t = w (w/2 + left), and a run of uniform numbers accepts with just that probability,
// with no exponential. What is left of the last number is uniform again: it gives the sign and the next call's fraction.
#include "random/standard_normal.hpp"

#include <algorithm>

#include "random/elementary.hpp"
#include "random/standard_normal_tables.hpp"

namespace kor::random {

namespace {

// How often v, at most 1, must be doubled to exceed 1/2, but not beyond the table: the exponent of the next smaller double
// tells. What is not positive never gets there.
std::size_t interval_of(double v)
{
    constexpr std::uint64_t kHalfExponent = 1022;
    constexpr std::uint64_t kLast = kDyadicQuantiles.size() - 2;
    return static_cast<std::size_t>(std::min(kHalfExponent - ((lane::bits(v) - 1) >> lane::kFractionBits), kLast));
}

} // namespace

double standard_normal(State &state)
{
    const std::size_t interval = interval_of(std::min(state.normal_fraction, 1.0));
    const double left = kDyadicQuantiles[interval], width = kDyadicQuantiles[interval + 1] - left;

    for (double u = uniform(state);;) {
        const double w = width * u;
        double t = w * (0.5 * w + left), next = uniform(state);
        // Falling runs t > next > ...: one of odd length accepts w, one of even length rejects it.
        while (t > next) {
            t = uniform(state);
            if (t > next) break;
            next = uniform(state);
        }
        if (t <= next) {
            const double twice = 2.0 * ((next - t) / (1.0 - t));
            const bool upper = twice > 1.0;
            state.normal_fraction = lane::choose(upper, twice - 1.0, twice);
            return lane::choose(upper, -(w + left), w + left);
        }
        u = (t - next) / (1.0 - next);
    }
}

} // namespace kor::random
