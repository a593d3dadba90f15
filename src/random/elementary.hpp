// Logarithm, exponential, sine and cosine for the samplers: inline and without branches, so that a loop over them becomes
// vector code; in plain multiplications and additions, so that every processor gives the same bits.
//
// Errors stay below 1 ulp; bench/random/bench_elementary.cpp measures them against MPFR.
#pragma once

#include <array>
#include <bit>
#include <cstdint>

#include "random/elementary_tables.hpp"

namespace kor::random {

#define KOR_LANE [[gnu::always_inline]] inline

namespace lane {

KOR_LANE std::uint64_t bits(double x) { return std::bit_cast<std::uint64_t>(x); }
KOR_LANE double real(std::uint64_t bits) { return std::bit_cast<double>(bits); }

// a or b without a branch, where a processor could only guess.
KOR_LANE double choose(bool first, double a, double b)
{
    const std::uint64_t mask = 0 - static_cast<std::uint64_t>(first);
    return real((bits(a) & mask) | (bits(b) & ~mask));
}

// By halves, not from one end: what counts is the length of the chain of operations.
template <std::size_t first, std::size_t count, std::size_t n>
KOR_LANE double polynomial_part(const std::array<double, n> &coefficient, const double (&power)[4])
{
    if constexpr (count == 1) {
        return coefficient[first];
    } else {
        constexpr std::size_t half = std::bit_ceil(count) / 2;
        return polynomial_part<first, half>(coefficient, power) +
               power[std::countr_zero(half)] * polynomial_part<first + half, count - half>(coefficient, power);
    }
}

template <std::size_t n>
KOR_LANE double polynomial(const std::array<double, n> &coefficient, double x)
{
    static_assert(n <= 16);
    const double x2 = x * x, x4 = x2 * x2;
    return polynomial_part<0, n>(coefficient, {x, x2, x4, x4 * x4});
}

// 2^52 and, for signed values, 2^52 + 2^51: added to a small integer they put it into the last bits of the fraction.
inline constexpr double kShift = 0x1p52;
inline constexpr double kSignedShift = 0x1.8p52;
inline constexpr int kFractionBits = 52;
inline constexpr std::uint64_t kFractionMask = (std::uint64_t{1} << kFractionBits) - 1;

// x cut to 26 bits: products of two such numbers are exact.
KOR_LANE double leading_half(double x)
{
    constexpr std::uint64_t kLowHalf = (std::uint64_t{1} << 27) - 1;
    return real(bits(x) & ~kLowHalf);
}

// x = 2^k (1 + f), 1 + f from sqrt(1/2) to sqrt(2), for normal positive x.
struct Reduced {
    double k, f;
};
KOR_LANE Reduced reduced(double x)
{
    constexpr std::uint64_t kRootHalf = 0x3fe6a09e667f3bcd;
    constexpr int kBias = 1024; // keeps the shifted exponent positive
    const std::uint64_t shifted = bits(x) - kRootHalf;
    const std::uint64_t biased = (shifted + (std::uint64_t{kBias} << kFractionBits)) >> kFractionBits;
    return {real(biased | bits(kShift)) - (kShift + kBias), real((shifted & kFractionMask) + kRootHalf) - 1.0};
}

// f - log(1 + f) for the f of a reduced number, without cancellation.
KOR_LANE double log_defect(double f)
{
    const double s = f / (2.0 + f), z = s * s, half_square = 0.5 * f * f;
    return half_square - s * (half_square + z * polynomial(kLogSeries, z));
}

KOR_LANE double log_from(Reduced x, double defect)
{
    const double whole = x.k * kLog2High, sum = whole + x.f, rounding = x.f - (sum - whole);
    return sum + (rounding + (x.k * kLog2Low - defect));
}

} // namespace lane

// log x for normal positive x.
KOR_LANE double lane_log(double x)
{
    const lane::Reduced r = lane::reduced(x);
    return lane::log_from(r, lane::log_defect(r.f));
}

// log(1 + t) and t - log(1 + t), without cancellation, for t > -1.
struct Log1p {
    double value, defect;
};
KOR_LANE Log1p lane_log1p(double t)
{
    lane::Reduced r = lane::reduced(1.0 + t);
    const bool near_1 = r.k == 0.0;
    r.f = near_1 ? t : r.f; // 1 + t has lost digits
    const double defect = lane::log_defect(r.f), value = lane::log_from(r, defect);
    return {value, near_1 ? defect : t - value};
}

// exp x, and exp x - 1 - x without cancellation. Arguments beyond what doubles can hold give 0 and infinity.
struct Exp {
    double value, defect;
};
KOR_LANE Exp lane_exp(double x)
{
    constexpr double kFar = 800.0;
    constexpr std::uint64_t kExponentBias = 1023;
    double near = x > -kFar ? x : -kFar;
    near = near < kFar ? near : kFar;
    const double shifted = near * kOverLog2 + lane::kSignedShift, n = shifted - lane::kSignedShift;
    const double r = (near - n * kLog2High) - n * kLog2Low;
    const double defect = r * r * (0.5 + r * lane::polynomial(kExpSeries, r));
    // 2^n in two factors, neither of which overflows or underflows.
    const double half_shifted = 0.5 * n + lane::kSignedShift, half = half_shifted - lane::kSignedShift;
    const double first = lane::real((lane::bits(half_shifted) + kExponentBias) << lane::kFractionBits);
    const double second =
        lane::real((lane::bits((n - half) + lane::kSignedShift) + kExponentBias) << lane::kFractionBits);
    const double value = (1.0 + (r + defect)) * first * second;
    return {value, n == 0.0 ? defect : (value - 1.0) - x};
}

// cos(2 pi u) and sin(2 pi u) for u from 0 to 1.
struct Turn {
    double cosine, sine;
};
KOR_LANE Turn lane_turn(double u)
{
    constexpr int kToSign = 62; // from the second bit of the quarter to the sign
    const double shifted = 4.0 * u + lane::kSignedShift;
    const std::uint64_t quarter = lane::bits(shifted);
    const double r = u - 0.25 * (shifted - lane::kSignedShift), z = r * r; // r is exact, |r| <= 1/8

    // 2 pi r = theta + rest with exact theta; theta^2 / 2 = short_theta^2 / 2 + excess with an exact square.
    const double r_high = lane::leading_half(r), r_low = r - r_high;
    const double theta = r_high * kTwoPiHigh, rest = r_high * kTwoPiLow + r_low * kTwoPi;
    const double sine = theta + (rest + r * z * lane::polynomial(kSineSeries, z));
    const double short_theta = lane::leading_half(theta), left = (theta - short_theta) + rest;
    const double half_square = 0.5 * short_theta * short_theta, excess = left * (short_theta + 0.5 * left);
    const double w = 1.0 - half_square;
    const double cosine = w + (((1.0 - w) - half_square) + (z * z * lane::polynomial(kCosineSeries, z) - excess));

    const std::uint64_t exchange = 0 - (quarter & 1);
    const std::uint64_t s = lane::bits(sine), c = lane::bits(cosine);
    const std::uint64_t across = (s ^ c) & exchange;
    return {lane::real((c ^ across) ^ (((quarter + 1) & 2) << kToSign)),
            lane::real((s ^ across) ^ ((quarter & 2) << kToSign))};
}

} // namespace kor::random
