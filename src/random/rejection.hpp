// Rejection sampling in bulk: a round of trials at once, of which the stream sees those that one at a time would have
// made. A trial takes two uniform numbers.
#pragma once

#include <algorithm>

#include "random/lookahead.hpp"

namespace kor::random {

inline constexpr std::ptrdiff_t kTrials = 64;   // trials a round, at most
inline constexpr std::ptrdiff_t kTrialStep = 8; // they come in groups that fill the widest vector

// `tries(count, u, x, taken)` makes `count` trials.
template <class Tries>
void sample_by_rejection(State &state, const Tries tries, std::ptrdiff_t n, double *x)
{
    Lookahead ahead{state};
    while (n > 0) {
        // Most often two trials in three succeed, or more.
        const std::ptrdiff_t wanted = n + n / 2 + 1;
        const std::ptrdiff_t trials = std::min(kTrials, (wanted + kTrialStep - 1) / kTrialStep * kTrialStep);
        double u[2 * kTrials], candidate[kTrials], taken[kTrials];
        ahead.peek(2 * trials, u);
        tries(trials, u, candidate, taken);
        std::ptrdiff_t tried = 0, kept = 0;
        for (; tried < trials && kept < n; ++tried) {
            x[kept] = candidate[tried];
            kept += taken[tried] > 0.0;
        }
        ahead.draw(2 * tried);
        x += kept;
        n -= kept;
    }
}

} // namespace kor::random
