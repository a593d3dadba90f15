// One standard normal deviate, by random bits and comparisons alone.
//
// The half line is cut where the tail holds 2^-k. The bits of a fraction choose the interval; within it the density is
// that at the left end times exp(-t), t = w (w/2 + left), and a run of uniform numbers accepts with just that probability,
// with no exponential. What is left of the last number is uniform again: it gives the sign and the next call's fraction.
#include "random/standard_normal.hpp"

#include "random/standard_normal_tables.hpp"

namespace kor::random {

double standard_normal(State &state)
{
    constexpr int kLastInterval = static_cast<int>(kDyadicQuantiles.size()) - 2;
    int interval = 0;
    for (double v = state.normal_fraction; !(v > 0.5) && interval < kLastInterval; v += v) ++interval;
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
            const double fraction = (next - t) / (1.0 - t);
            const double size = w + left;
            if (fraction > 0.5) {
                state.normal_fraction = 2.0 * fraction - 1.0;
                return -size;
            }
            state.normal_fraction = 2.0 * fraction;
            return size;
        }
        u = (t - next) / (1.0 - next);
    }
}

} // namespace kor::random
