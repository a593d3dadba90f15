// The generator of one thread: the one stateful corner of the library.
#pragma once

#include <cstddef>
#include <cstdint>

#include <kor.h>

#include "random/recurrence.hpp"

namespace kor::random {

inline constexpr std::ptrdiff_t kBuffer = 63;   // numbers made at a time
inline constexpr double kNoSpareNormal = 256.0; // never a deviate: sqrt(-2 log 2^-59) is 9.04
inline constexpr double kNoSpareSquare = -1.0;
inline constexpr double kFirstFraction = 1.0;

// What g05drc keeps of the mean that it was last called with.
struct PoissonConstants {
    double mean;                                  // 0: none yet
    double centre, hat_scale, shift, hat_height;  // k = trunc(centre + hat_scale t) under a hat of height hat_height
    double lower_height, lower_left, lower_right; // the bound below which t is accepted at once
    double upper_height, upper_curvature;         // the bound above which it is rejected
    double root;                                  // sqrt(1 / mean)
    double zero_term;                             // exp(-mean), for small means
    double log_scale;                             // -mean - log(1 / sqrt(2 pi mean)); 0 while not yet wanted
};

struct State {
    std::uint64_t word;     // of the last number in the buffer
    Integer count;          // saved and restored; nothing else reads it
    double normal_fraction; // bg05ca[0]: the fraction from which g05ddc takes its random bits
    double spare_square;    // bg05ca[1]: half the square of a normal deviate that g05dgc has in hand; negative if none
    double rp[kBuffer];     // the buffer
    std::ptrdiff_t ip;      // its next unread number; kBuffer when it is used up
    double spare_normal;    // dg05ca: a normal deviate that g05fdc has in hand
    PoissonConstants poisson;

    // Word of the last number that was delivered, or of the starting value when none was.
    std::uint64_t delivered() const { return earlier(word, kBuffer - ip); }
};

// This thread's state once it has been touched. Its place is fixed when the library is loaded: one load finds it.
extern constinit thread_local State *current __attribute__((tls_model("initial-exec")));

// Sets up this thread's state in its default form.
State &install_default_state();

// Starts the stream behind the term `word`, with the carries given.
void start_stream(State &state, std::uint64_t word, double normal_fraction = kFirstFraction,
                  double spare_square = kNoSpareSquare, double spare_normal = kNoSpareNormal);
void start_default_stream(State &state);
// As g05cbc and g05ccc start it: x = 2 |seed| + 1, and one term is skipped.
void start_seeded_stream(State &state, std::int64_t seed);

// The single door to the state.
inline State &g05caz()
{
    State *state = current;
    if (state == nullptr) [[unlikely]]
        state = &install_default_state();
    return *state;
}

// Fills the buffer with the next 63 numbers.
void g05cay(State &state);

inline double uniform(State &state)
{
    if (state.ip >= kBuffer) [[unlikely]]
        g05cay(state);
    return state.rp[state.ip++];
}

// The next n numbers, n >= 0.
void uniforms(State &state, std::ptrdiff_t n, double *u);

} // namespace kor::random
