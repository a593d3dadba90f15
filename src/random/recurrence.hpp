// The recurrence x(i+1) = 13^13 x(i) mod 2^59, and the numbers x / 2^59 that it makes.
//
// A *word* holds 2^5 x in 64 bits, so that the product of words modulo 2^64, which costs nothing to reduce, is the
// recurrence, and the number is word / 2^64, rounded once. Terms k steps apart differ by the factor 13^(13 k): a block of
// terms is one word times a table of powers, without a chain from one term to the next.
#pragma once

#include <array>
#include <cstdint>

#include "frame/constants.hpp"

namespace kor::random {

inline constexpr std::uint64_t kMultiplier = 302875106592253; // 13^13
inline constexpr int kGuardBits = 5;                          // a word is x 2^5
inline constexpr int kBlock = 64;                             // terms that one table of powers reaches
inline constexpr double kLargestUniform = 1.0 - kPrecision;   // 1 - 2^-53: what rounds to 1 is clipped to it

constexpr std::uint64_t inverse_modulo_2_64(std::uint64_t odd)
{
    std::uint64_t inverse = odd; // right to 3 bits; each round doubles them
    for (int round = 0; round < 5; ++round) inverse *= 2 - odd * inverse;
    return inverse;
}

// factor^(first), factor^(first+1), ...
template <int count>
constexpr std::array<std::uint64_t, count> powers(std::uint64_t factor, int first)
{
    std::array<std::uint64_t, count> table{};
    std::uint64_t power = 1;
    for (int i = 0; i < first; ++i) power *= factor;
    for (std::uint64_t &entry : table) {
        entry = power;
        power *= factor;
    }
    return table;
}

alignas(64) inline constexpr auto kForward = powers<kBlock>(kMultiplier, 1);
inline constexpr auto kBackward = powers<kBlock>(inverse_modulo_2_64(kMultiplier), 0);

// The word `steps` terms later.
inline std::uint64_t later(std::uint64_t word, std::ptrdiff_t steps)
{
    for (; steps >= kBlock; steps -= kBlock) word *= kForward[kBlock - 1];
    return steps > 0 ? word * kForward[steps - 1] : word;
}

// The word `steps` terms earlier, steps < kBlock.
inline std::uint64_t earlier(std::uint64_t word, std::ptrdiff_t steps) { return word * kBackward[steps]; }

inline double uniform_of(std::uint64_t word)
{
    const double u = static_cast<double>(word) * 0x1p-64;
    return u < kLargestUniform ? u : kLargestUniform;
}

} // namespace kor::random
