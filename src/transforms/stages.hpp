// The stages of a transform of length n: one for each factor of n, with its part of the table of roots.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>

#include <kor.h>

namespace kor::transforms {

using Index = std::ptrdiff_t;

class PrimeTransform;

// Radices above this are primes: their butterflies read roots of unity from the table, and the table's rows for them hold
// those roots where the others hold the twiddle factor 1.
inline constexpr Index kLargestPlainRadix = 6;

// Primes above this are worked out by convolution, those up to it by the definition.
inline constexpr Index kLargestDirectPrime = 61;

// No length below 2^33 has more factors in the list than this.
inline constexpr int kMaxFactors = 30;

struct Factors {
    Index factor[kMaxFactors];
    int count;
};

// c06fpz: the factors of n >= 1 in the order of the table: all 6, all 4, then 2, 3, 5 and the larger primes; 1 for n = 1.
Factors c06fpz(Index n);

// n = before * radix * after, with `before` the product of the factors earlier in the list.
struct Stage {
    Index radix;
    Index before;
    Index after;
    // cosines[(k-1) * after + j] = cos(2 pi j k / (radix * after)), k = 1..radix-1; for a radix above kLargestPlainRadix
    // the element j = 0 holds cos(2 pi k / radix) instead. `sines`: -sin.
    const double *cosines;
    const double *sines;
    PrimeTransform *prime; // for a radix too large to work out by its definition, otherwise null
};

// Lengths with a butterfly of their own, whose roots are constants: their bits are set.
inline constexpr int kLongestButterfly = 32;
inline constexpr std::uint64_t kButterflies = [] {
    std::uint64_t lengths = 0;
    for (const int n : {2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 24, 25, 27, 28, 30, 32})
        lengths |= std::uint64_t{1} << n;
    return lengths;
}();
constexpr bool has_butterfly(Index n) { return n <= kLongestButterfly && (kButterflies >> n & 1) != 0; }

struct Stages {
    Stage stage[kMaxFactors];
    int count; // 0 for n = 1

    // `trig` holds 2n elements as c06gzc fills them.
    Stages(Index n, const double *trig);

    // As few stages as will do: the last ones are taken together as far as there is a butterfly for them.
    static Stages fewest(Index n, const double *trig);
};

} // namespace kor::transforms
