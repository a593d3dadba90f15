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

// A trial of a rejection sampler: the candidate x is taken if log z is at most `limit`.
struct Trial {
    double x, z, limit;
};

// Tries u[2i], u[2i+1] for each i; taken[i] is 1 or 0. `Law::trial(u1, u2)` must be inline and without branches. In two
// loops: the chain of operations for one element is long, and shorter ones overlap better.
template <class Law>
KOR_LANE void trial_loop(const Law law, std::ptrdiff_t trials, const double *__restrict u, double *__restrict x,
                         double *__restrict taken)
{
    constexpr std::ptrdiff_t kGroup = 64;
    double z[kGroup], limit[kGroup];
    for (std::ptrdiff_t done = 0; done < trials; done += kGroup) {
        const std::ptrdiff_t count = trials - done < kGroup ? trials - done : kGroup;
        for (std::ptrdiff_t i = 0; i < count; ++i) {
            const Trial trial = law.trial(u[2 * (done + i)], u[2 * (done + i) + 1]);
            x[done + i] = trial.x;
            z[i] = trial.z;
            limit[i] = trial.limit;
        }
        for (std::ptrdiff_t i = 0; i < count; ++i) taken[done + i] = lane_log(z[i]) <= limit[i] ? 1.0 : 0.0;
    }
}

} // namespace kor::random
