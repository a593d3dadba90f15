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

// The same before it is normalised: value.large has but 26 bits.
struct OpenExponential {
    OpenSum value;
    int exponent;

    KOR_INLINE operator Exponential() const { return {value, exponent}; }
    KOR_INLINE double rounded() const { return times_power_of_two(value.rounded(), exponent); }
};

// exp(x), |x| <= 8000. With n the multiple of ln 2 / 64 nearest to x: 2^(n/64) (1 + (exp(r) - 1)), |r| <= ln 2 / 128.
KOR_INLINE OpenExponential open_exp(DoubleDouble x)
{
    using namespace tables;
    const NearestInteger n = nearest_integer(x.hi * kExpStepsPerUnit);
    const double r_hi = x.hi - n.value * kExpStepHigh; // exact
    const double r_lo = x.lo - n.value * kExpStepLow;
    const double r = r_hi + r_lo;
    const double growth = r_hi + (r_lo + r * r * polynomial(kExpSeries, r));
    const DoubleDouble power = kPowersOfTwo[static_cast<unsigned>(n.count) % 64];
    return {{power.hi, power.lo + power.rounded() * growth}, n.count >> 6};
}

KOR_INLINE Exponential extended_exp(DoubleDouble x) { return open_exp(x); }

// x = 2^exponent m, m in the cell.
struct LogCellAndExponent {
    const tables::LogCell &cell;
    int exponent;
};

// x normal.
KOR_INLINE LogCellAndExponent find_log_cell(double x)
{
    constexpr std::uint64_t kFirstCell = 0x3fe6800000000000; // 45/64
    const std::uint64_t offset = std::bit_cast<std::uint64_t>(x) - kFirstCell;
    return {tables::kLogCells[(offset >> 45) % 128], static_cast<int>(static_cast<std::int64_t>(offset) >> 52)};
}

// m factor = 1 + r1 + rest.
struct LogReduction : LogCellAndExponent {
    double r1, rest;
};

// r1 has so few bits that its square is exact, and |rest| is below 2^-20.
KOR_INLINE LogReduction reduce_for_log(double x)
{
    constexpr std::uint64_t kHalfOfBit20 = std::uint64_t{1} << 32;
    constexpr std::uint64_t kUpper20Bits = ~((std::uint64_t{1} << 33) - 1);
    const bool subnormal = x < 0x1p-1022;
    if (subnormal) [[unlikely]]
        x *= 0x1p54;
    const auto [cell, exponent] = find_log_cell(x);
    const std::uint64_t m_bits = std::bit_cast<std::uint64_t>(x) - (static_cast<std::uint64_t>(exponent) << 52);
    const double m = std::bit_cast<double>(m_bits);
    const double m_hi = std::bit_cast<double>((m_bits + kHalfOfBit20) & kUpper20Bits);
    return {{cell, subnormal ? exponent - 54 : exponent}, m_hi * cell.factor - 1.0, (m - m_hi) * cell.factor};
}

// The logarithm of a reduced number whose rest has become rest.hi + rest.lo: r1 - r1^2/2 + rest, joined exactly, and
// - r1 rest - rest^2/2 + r^3 (...).
KOR_INLINE DoubleDouble join_log(const LogReduction &x, DoubleDouble rest)
{
    using namespace tables;
    const double r = x.r1 + rest.hi;
    const double high = x.exponent * kLn2High + x.cell.log_hi + x.r1; // exact
    const DoubleDouble second = fast_two_sum(high, -0.5 * x.r1 * x.r1);
    const DoubleDouble third = fast_two_sum(second.hi, rest.hi);
    const double small = r * r * r * polynomial(kLogSeries, r) - rest.hi * (x.r1 + 0.5 * rest.hi);
    const double low = rest.lo + (x.exponent * kLn2Low + x.cell.log_lo);
    return fast_two_sum(third.hi, third.lo + (second.lo + (small + low)));
}

// ln(x), x positive and finite; accurate relative to ln(x) also next to 1.
KOR_INLINE DoubleDouble extended_log(double x)
{
    const LogReduction reduced = reduce_for_log(x);
    return join_log(reduced, {reduced.rest});
}

// The same for a number with a low part; where x.hi is 1 the low part may be anything small.
KOR_INLINE DoubleDouble extended_log(DoubleDouble x)
{
    const LogReduction reduced = reduce_for_log(x.hi);
    // x.lo 2^-exponent; from 2^1023 on it is of no account, and beside subnormal numbers it is zero.
    const int power = std::abs(reduced.exponent) < 1023 ? 1023 - reduced.exponent : 0;
    const double low = x.lo * std::bit_cast<double>(static_cast<std::uint64_t>(power) << 52);
    return join_log(reduced, two_sum(reduced.rest, low * reduced.cell.factor));
}

// The logarithm of a reduced number by fewer steps, for sums that plain arithmetic goes on with: relative error 2^-60 next to
// 1, absolute error 2^-69 elsewhere.
KOR_INLINE OpenSum join_open_log(const LogReduction &x)
{
    using namespace tables;
    const double high = x.exponent * kLn2High + x.cell.log_hi + x.r1; // exact
    const DoubleDouble sum = fast_two_sum(high, x.rest);
    const double r = x.r1 + x.rest;
    return {sum.hi, (sum.lo + (x.exponent * kLn2Low + x.cell.log_lo)) + r * r * polynomial(kLogBend, r)};
}

// ln(x), x positive and finite.
KOR_INLINE OpenSum open_log(double x) { return join_open_log(reduce_for_log(x)); }

// ln(1 + x), -1 < x < 2^36. With f = factor 2^-exponent from the cell of the rounded sum, (1 + x) f = 1 + (f - 1) + x f, where
// the upper half of x goes into r1: f has so few bits that products and sums are exact.
KOR_INLINE OpenSum open_log_one_plus(double x)
{
    const LogCellAndExponent found = find_log_cell(1.0 + x);
    const double f = std::bit_cast<double>(std::bit_cast<std::uint64_t>(found.cell.factor) -
                                           (static_cast<std::uint64_t>(found.exponent) << 52));
    const double x_1 = upper_half(x), x_2 = x - x_1;
    return join_open_log({found, (f - 1.0) + x_1 * f, x_2 * f});
}

struct SineAndCosine {
    DoubleDouble sine, cosine;
};

// An angle r = j pi/128 + d, |r| <= pi/2 and a little more: sine and cosine of the table, and of the rest the sine, as
// d + d^3 (...), and cos d - 1.
struct ArcStep {
    DoubleDouble s, c, sine;
    double versine;
};

KOR_INLINE ArcStep nearest_arc_step(DoubleDouble r)
{
    using namespace tables;
    const NearestInteger j = nearest_integer(r.hi * kArcStepsPerRadian);
    const auto &[s, c] = kSineCosine[std::abs(j.count)];
    const double sign = std::copysign(1.0, r.hi); // a product costs less than a branch that nobody can predict
    const DoubleDouble d = two_sum(r.hi - j.value * kArcStepHigh, r.lo - j.value * kArcStepLow);
    const double square = d.hi * d.hi;
    return {s.scaled(sign), c, fast_two_sum(d.hi, d.lo + d.hi * square * polynomial(kSineSeries, square)),
            square * (square * polynomial(kCosineSeries, square) - 0.5) - d.hi * d.lo};
}

KOR_INLINE SineAndCosine extended_sine_cosine(DoubleDouble r)
{
    const auto [s, c, sine, versine] = nearest_arc_step(r);
    const DoubleDouble c_sine = two_product(c.hi, sine.hi);
    const DoubleDouble s_sine = two_product(s.hi, sine.hi);
    const DoubleDouble sum_s = fast_two_sum(s.hi, c_sine.hi);
    const DoubleDouble sum_c = fast_two_sum(c.hi, -s_sine.hi);
    const double rest_s = s.hi * versine + (c_sine.lo + c.hi * sine.lo + c.lo * sine.hi) + (sum_s.lo + s.lo);
    const double rest_c = c.hi * versine - (s_sine.lo + s.hi * sine.lo + s.lo * sine.hi) + (sum_c.lo + c.lo);
    return {fast_two_sum(sum_s.hi, rest_s), fast_two_sum(sum_c.hi, rest_c)};
}

// x = quadrant pi/2 + r, |r| <= pi/4 (1 + 2^-20), quadrant counted modulo 4.
struct ReducedAngle {
    DoubleDouble r;
    int quadrant;
};

// |x| from 2^20 to 2^54; absolute error of r 2^-78.
[[gnu::cold]] ReducedAngle reduce_large_angle(DoubleDouble x);

// |x| <= 2^54; absolute error of r 2^-106 below 2^20.
KOR_INLINE ReducedAngle reduce_angle(DoubleDouble x)
{
    using tables::kHalfPi, tables::kTwoOverPi;
    constexpr double kLarge = 0x1p20;
    if (std::fabs(x.hi) >= kLarge) [[unlikely]]
        return reduce_large_angle(x);
    // One exact step, one exact sum, and the rest in the low part.
    const NearestInteger n = nearest_integer(x.hi * kTwoOverPi);
    const DoubleDouble first = two_sum(x.hi - n.value * kHalfPi[0], -n.value * kHalfPi[1]);
    const double rest = x.lo - (n.value * kHalfPi[3] + n.value * kHalfPi[4]);
    return {first + (-n.value * kHalfPi[2]) + rest, n.count & 3};
}

KOR_INLINE void swap_if(bool condition, double &a, double &b)
{
    const std::uint64_t mask = -static_cast<std::uint64_t>(condition);
    const std::uint64_t a_bits = std::bit_cast<std::uint64_t>(a), b_bits = std::bit_cast<std::uint64_t>(b);
    const std::uint64_t difference = (a_bits ^ b_bits) & mask;
    a = std::bit_cast<double>(a_bits ^ difference);
    b = std::bit_cast<double>(b_bits ^ difference);
}

// Sine and cosine of a reduced angle.
KOR_INLINE SineAndCosine extended_sine_cosine_reduced(ReducedAngle angle)
{
    auto [s, c] = extended_sine_cosine(angle.r);
    // An odd quadrant takes the cosine for the sine and -sine for the cosine. No branch: nobody can predict it.
    const bool odd = angle.quadrant & 1;
    swap_if(odd, s.hi, c.hi);
    swap_if(odd, s.lo, c.lo);
    const double sine_sign = 1 - (angle.quadrant & 2);
    const double cosine_sign = 1 - ((angle.quadrant + 1) & 2);
    return {s.scaled(sine_sign), c.scaled(cosine_sign)};
}

// Sine and cosine of any angle up to 2^54.
KOR_INLINE SineAndCosine extended_sine_cosine_of(DoubleDouble x)
{
    return extended_sine_cosine_reduced(reduce_angle(x));
}

// An angle pi x, x any finite double: x = quadrant/2 + rest without error.
KOR_INLINE ReducedAngle reduce_angle_pi(double x)
{
    constexpr double kSmall = 0x1p29;
    const double within = std::fabs(x) < kSmall ? x : std::fmod(x, 2.0);
    const NearestInteger halves = nearest_integer(2.0 * within);
    return {tables::kPi * (within - 0.5 * halves.value), halves.count & 3};
}

// Sine and cosine of pi x, x any finite double. Zeros are exact.
KOR_INLINE SineAndCosine extended_sine_cosine_pi(double x) { return extended_sine_cosine_reduced(reduce_angle_pi(x)); }

// sin(pi x), x any finite double; relative error 2^-60. Zeros are exact. With |x - n| = j/128 + d, both without error, it is
// S + C pi d + ..., and C pi has few enough bits in its high part for an exact product with the upper half of d.
KOR_INLINE DoubleDouble extended_sine_pi(double x)
{
    using namespace tables;
    constexpr double kSmall = 0x1p30;
    const double within = std::fabs(x) < kSmall ? x : std::fmod(x, 2.0);
    const NearestInteger n = nearest_integer(within);
    const double r = within - n.value, size = std::fabs(r);
    const NearestInteger j = nearest_integer(128.0 * size);
    const auto &[s, c, c_pi] = kSinePi[j.count];

    const double d = size - j.value * (1.0 / 128), d_1 = upper_half(d), d_2 = d - d_1, square = d * d;
    const DoubleDouble sum = fast_two_sum(s.hi, c_pi.hi * d_1);
    const double bend =
        square * (s.hi * polynomial(kVersinePiSeries, square) + c * (d * polynomial(kSinePiSeries, square)));
    const double rest = s.lo + (c_pi.lo * d_1 + (c_pi.hi + c_pi.lo) * d_2);
    const double sign = std::copysign(1.0, r) * (1 - 2 * (n.count & 1));
    return fast_two_sum(sum.hi, sum.lo + (rest + bend)).scaled(sign);
}

// Tangent of a reduced angle, within 0.8 ulp: tan r, or -cot r in odd quadrants. With r = j pi/128 + d, w = tan d and V the
// tangent or cotangent of the table: V + side (1 + V^2) w / (1 - side V w), side -1 for the cotangent; next to 0 series.
KOR_INLINE double tangent_reduced(ReducedAngle angle)
{
    using namespace tables;
    constexpr double kSeriesBelow = 0.1;
    const DoubleDouble r = angle.r;
    const bool odd = angle.quadrant & 1;
    if (std::fabs(r.hi) < kSeriesBelow) {
        const double square = r.hi * r.hi;
        if (!odd) return r.hi + (r.lo + r.hi * (square * polynomial(kTangentNearZero, square)));
        const double reciprocal = 1.0 / r.hi;
        const DoubleDouble product = two_product(reciprocal, r.hi);
        const double remainder = ((1.0 - product.hi) - product.lo) - reciprocal * r.lo;
        return -(reciprocal + (reciprocal * remainder - r.hi * polynomial(kCotangentNearZero, square)));
    }
    const NearestInteger j = nearest_integer(r.hi * kArcStepsPerRadian);
    const double side = odd ? -1.0 : 1.0, sign = std::copysign(side, r.hi * side);
    const DoubleDouble v = kTangents[odd][std::abs(j.count)];
    const double d = std::copysign(1.0, r.hi) * ((r.hi - j.value * kArcStepHigh) + (r.lo - j.value * kArcStepLow));
    const double square = d * d, w = d + d * (square * polynomial(kTangentSeries, square));
    return sign * (v.hi + (v.lo + side * (1.0 + v.hi * v.hi) * w / (1.0 - side * v.hi * w)));
}

} // namespace kor::special
