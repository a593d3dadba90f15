// The stages of a transform of length n: one for each factor of n, with its part of the table of roots.
#pragma once

#include <cmath>
#include <cstdint>
#include <initializer_list>

#include <kor.h>

#include "transforms/c06fpz.hpp"

namespace kor::transforms {

enum class Kind { complex, real, hermitian };

class PrimeTransform;

// Radices above this are primes: their butterflies read roots of unity from the table, and the table's rows for them
// hold those roots where the others hold the twiddle factor 1.
inline constexpr Index kLargestPlainRadix = 6;

// Primes above this are worked out by convolution, those up to it by the definition.
inline constexpr Index kLargestDirectPrime = 61;

// n = before * radix * after, with `before` the product of the factors earlier in the list.
struct Stage {
    Index radix;
    Index before;
    Index after;
    // cosines[(k-1) * after + j] = cos(2 pi j k / (radix * after)), k = 1..radix-1; for a radix above
    // kLargestPlainRadix the element j = 0 holds cos(2 pi k / radix) instead. `sines`: -sin.
    const double *cosines;
    const double *sines;
    PrimeTransform *prime; // for a radix too large to work out by its definition, otherwise null
};

// Lengths with a butterfly of their own, whose roots are constants: their bits are set. Those of real and Hermitian
// points are half as long, and more of them pay.
inline constexpr int kLongestButterfly = 45;
constexpr std::uint64_t lengths_up_to_33_and(std::initializer_list<int> more)
{
    std::uint64_t lengths = 0;
    for (const int n :
         {2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 24, 25, 26, 27, 28, 30, 32, 33})
        lengths |= std::uint64_t{1} << n;
    for (const int n : more) lengths |= std::uint64_t{1} << n;
    return lengths;
}
constexpr bool has_butterfly(Kind kind, Index n)
{
    constexpr std::uint64_t kComplex = lengths_up_to_33_and({35}), kPacked = lengths_up_to_33_and({36, 45});
    return n <= kLongestButterfly && ((kind == Kind::complex ? kComplex : kPacked) >> n & 1) != 0;
}

// n^-1/2, the scale of all transforms, for n >= 1. Known beforehand for butterflies, which take no longer than a square
// root and a division.
struct Scales {
    double length[kLongestButterfly + 1];
};
inline constexpr Scales kScales = [] {
    Scales scales{};
    for (int n = 1; n <= kLongestButterfly; ++n) {
        constexpr int kEnough = 40; // steps of Newton's method, from below
        long double y = 1.0L / n;
        for (int i = 0; i < kEnough; ++i) y = y * (1.5L - 0.5L * n * y * y);
        scales.length[n] = static_cast<double>(y);
    }
    return scales;
}();
inline double unitary_scale(Index n)
{
    return n <= kLongestButterfly ? kScales.length[n] : 1.0 / std::sqrt(static_cast<double>(n));
}

// Stages that the first pass of a single complex sequence can take together.
struct Lead {
    int count;
    int radix[3];

    // The product of the radices from number `from` on.
    constexpr int points(int from = 0) const
    {
        int product = 1;
        for (int i = from; i < count; ++i) product *= radix[i];
        return product;
    }
    bool is(const Stage *stages, int stage_count) const
    {
        if (stage_count != count) return false;
        for (int i = 0; i < count; ++i)
            if (stages[i].radix != radix[i]) return false;
        return true;
    }
};
inline constexpr Lead kLeads[] = {{1, {2}},    {1, {3}},       {1, {4}},      {1, {5}},    {1, {6}},    {1, {7}},
                                  {1, {11}},   {1, {13}},      {2, {6, 6}},   {2, {6, 4}}, {2, {6, 2}}, {2, {6, 3}},
                                  {2, {6, 5}}, {2, {4, 4}},    {2, {4, 2}},   {2, {4, 3}}, {2, {4, 5}}, {2, {4, 7}},
                                  {2, {2, 5}}, {2, {2, 7}},    {2, {3, 3}},   {2, {3, 5}}, {2, {3, 7}}, {2, {5, 5}},
                                  {2, {5, 7}}, {3, {3, 3, 3}}, {3, {3, 3, 5}}};
inline constexpr int kLeadCount = sizeof kLeads / sizeof kLeads[0];

struct Stages {
    Stage stage[kMaxFactors];
    int count;             // 0 for n = 1
    int in_first_pass = 0; // how many stages the first of two passes takes, where two will do; otherwise 0

    // `trig` holds 2n elements as c06gzc fills them.
    Stages(Index n, const double *trig);

    // As few stages as will do for this kind of data: the last ones are taken together as far as there is a butterfly
    // for them.
    static Stages fewest(Kind kind, Index n, const double *trig);

  private:
    template <class Number>
    Stages(const Number *radices, int radix_count, int first_count, Index n, const double *trig);
    Stages(const Factors &factors, Index n, const double *trig)
        : Stages{factors.factor, n > 1 ? factors.count : 0, 0, n, trig}
    {
    }
};

} // namespace kor::transforms
