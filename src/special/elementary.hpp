// Exponential, logarithm, sine and cosine with a low part: the leading factors of the special functions.
//
// Each cuts its argument by a table, so that what is left for a short series is below 2^-6, and sums table value and
// series as two doubles. Relative errors: exponential 2^-59, logarithm 2^-67, sine and cosine 2^-64.
#pragma once

#include "special/elementary_tables.hpp"
#include "special/evaluate.hpp"

namespace kor::special {

// The nearest integer, for |x| < 2^31, as a double and as an int.
struct NearestInteger {
    double value;
    int count;
};

KOR_INLINE NearestInteger nearest_integer(double x)
{
    // Adding 1.5 2^52 leaves no room for a fraction, and the integer stands in the low bits.
    constexpr double kShift = 0x1.8p52;
    const double shifted = x + kShift;
    return {shifted - kShift, static_cast<int>(static_cast<std::uint32_t>(std::bit_cast<std::uint64_t>(shifted)))};
}

// x 2^exponent, rounded once more only where it becomes subnormal.
KOR_INLINE double times_power_of_two(double x, int exponent)
{
    const auto power = [](int e) { return std::bit_cast<double>(static_cast<std::uint64_t>(e + 1023) << 52); };
    if (exponent >= -1022 && exponent <= 1023) [[likely]]
        return x * power(exponent);
    if (exponent > 0) return exponent > 2046 ? x * power(1023) * power(1023) : x * power(1023) * power(exponent - 1023);
    return exponent < -2000 ? x * power(-1022) * power(-1022) : x * power(exponent + 1000) * power(-1000);
}

// value 2^exponent, value in [0.7, 1.42): an exponential that can neither overflow nor lose its low part.
struct Exponential {
    DoubleDouble value;
    int exponent;

    KOR_INLINE double rounded() const { return times_power_of_two(value.rounded(), exponent); }
};

// exp(x), |x| <= 8000. With n the multiple of ln 2 / 64 nearest to x: 2^(n/64) (1 + (exp(r) - 1)), |r| <= ln 2 / 128.
KOR_INLINE Exponential extended_exp(DoubleDouble x)
{
    using namespace tables;
    const NearestInteger n = nearest_integer(x.hi * kExpStepsPerUnit);
    const DoubleDouble r = two_sum(x.hi - n.value * kExpStepHigh, x.lo - n.value * kExpStepLow); // the first is exact
    const DoubleDouble growth = fast_two_sum(r.hi, r.lo + r.hi * r.hi * polynomial(kExpSeries, r.hi));
    const DoubleDouble power = kPowersOfTwo[static_cast<unsigned>(n.count) % 64];
    return {fast_two_sum(power.hi, power.hi * growth.hi + (power.lo + power.hi * growth.lo)), n.count >> 6};
}

// ln(1 + r) for what the table leaves, |r| < 2^-6.9, joined to the high and low parts of the table's logarithm.
KOR_INLINE DoubleDouble join_log(double high, double low, DoubleDouble r)
{
    const DoubleDouble half_square = two_square(r.hi).scaled(0.5);
    const DoubleDouble first = fast_two_sum(high, r.hi);
    const DoubleDouble second = fast_two_sum(first.hi, -half_square.hi);
    const double cube = r.hi * r.hi * r.hi * polynomial(tables::kLogSeries, r.hi);
    const double rest = (cube - half_square.lo) + (r.lo - r.hi * r.lo) + (low + first.lo + second.lo);
    return fast_two_sum(second.hi, rest);
}

// ln(x), x positive and normal; accurate relative to ln(x) also next to 1. x.lo may be as large as ulp(x.hi), and where
// x.hi is 1 it may be anything small.
KOR_INLINE DoubleDouble extended_log(DoubleDouble x)
{
    using namespace tables;
    constexpr std::uint64_t kFirstCell = 0x3fe6800000000000; // 45/64
    const std::uint64_t bits = std::bit_cast<std::uint64_t>(x.hi);
    const std::uint64_t offset = bits - kFirstCell;
    const int exponent = static_cast<int>(static_cast<std::int64_t>(offset) >> 52);
    const LogCell &cell = kLogCells[(offset >> 45) % 128];

    const double m = std::bit_cast<double>(bits - (static_cast<std::uint64_t>(exponent) << 52));
    const double m_hi = upper_half(m), m_lo = m - m_hi;
    DoubleDouble r = two_sum(m_hi * cell.factor - 1.0, m_lo * cell.factor); // products of 26 and 11 bits
    if (x.lo != 0.0) {
        // exponent may not fit the scale of a double in one step only for subnormal results, which lo never makes.
        r = fast_two_sum(r.hi, r.lo + times_power_of_two(x.lo, -exponent) * cell.factor);
    }
    return join_log(exponent * kLn2High + cell.log_hi, exponent * kLn2Low + cell.log_lo, r); // the first is exact
}

struct SineAndCosine {
    DoubleDouble sine, cosine;
};

// For |r| <= 0.8 (beyond pi/4 by a little).
SineAndCosine extended_sine_cosine(DoubleDouble r);

// x = quadrant pi/2 + r, |r| <= pi/4 (1 + 2^-20), quadrant counted modulo 4.
struct ReducedAngle {
    DoubleDouble r;
    int quadrant;
};

// |x| <= 2^54. The absolute error of r is 2^-106 for |x| < 2^20 and 2^-78 at most.
ReducedAngle reduce_angle(DoubleDouble x);

// Sine and cosine of any angle up to 2^54.
SineAndCosine extended_sine_cosine_reduced(ReducedAngle angle);
inline SineAndCosine extended_sine_cosine_of(DoubleDouble x) { return extended_sine_cosine_reduced(reduce_angle(x)); }

// Sine and cosine of pi x, x any finite double, the reduction being exact. Zeros are exact.
SineAndCosine extended_sine_cosine_pi(double x);

} // namespace kor::special
