// The loops of the vector samplers, inline: the library compiles each for several generations of processors, and the tests
// for one generation at a time.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>

#include "random/elementary.hpp"

namespace kor::random {

// Box and Muller: two deviates from two numbers.
KOR_LANE void box_muller_loop(std::ptrdiff_t pairs, const double *__restrict u, double *__restrict z)
{
    for (std::ptrdiff_t i = 0; i < pairs; ++i) {
        const double radius = std::sqrt(-2.0 * lane_log(u[2 * i]));
        const Turn turn = lane_turn(u[2 * i + 1]);
        z[2 * i] = radius * turn.cosine;
        z[2 * i + 1] = radius * turn.sine;
    }
}

KOR_LANE void exponential_loop(std::ptrdiff_t n, double scale, double *__restrict x)
{
    for (std::ptrdiff_t i = 0; i < n; ++i) x[i] = -scale * lane_log(x[i]);
}

// A trial of a rejection sampler: a candidate, and whether it is taken (1 or 0).
struct Trial {
    double x;
    std::int64_t taken;
};

// Tries u[2i], u[2i+1] for each i. `Law::trial(u1, u2)` must be inline and without branches.
template <class Law>
KOR_LANE void trial_loop(const Law law, std::ptrdiff_t trials, const double *__restrict u, double *__restrict x,
                         std::int64_t *__restrict taken)
{
    for (std::ptrdiff_t i = 0; i < trials; ++i) {
        const Trial trial = law.trial(u[2 * i], u[2 * i + 1]);
        x[i] = trial.x;
        taken[i] = trial.taken;
    }
}

} // namespace kor::random
