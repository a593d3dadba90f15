// Sine and cosine with a low part, and the reduction of angles.
#include "special/elementary.hpp"

namespace kor::special {

namespace {

constexpr double kCount = 0x1p27; // counts of this many bits times 26 bits of pi/2 are exact

// y - count pi/2, count an integer multiple of a power of two with at most 27 bits.
DoubleDouble less_half_pis(DoubleDouble y, double count)
{
    DoubleDouble rest = y;
    for (const double part : tables::kHalfPi) rest = rest + -count * part;
    return rest;
}

// The same for a small count: one exact step, one exact sum, and the rest in the low part.
DoubleDouble less_few_half_pis(double y, double y_lo, double count)
{
    using tables::kHalfPi;
    const DoubleDouble first = two_sum(y - count * kHalfPi[0], -count * kHalfPi[1]);
    return first + (-count * kHalfPi[2]) + (y_lo - (count * kHalfPi[3] + count * kHalfPi[4]));
}

} // namespace

SineAndCosine extended_sine_cosine(DoubleDouble r)
{
    using namespace tables;
    const bool negative = std::signbit(r.hi);
    const DoubleDouble a = negative ? -r : r;
    const int j = static_cast<int>(a.hi * kArcStepsPerRadian + 0.5);
    const auto &[s, c] = kSineCosine[j];

    // With d = a - j pi/128: the sine as d + d^3 (...), the cosine as 1 + versine.
    const DoubleDouble d = two_sum(a.hi - j * kArcStepHigh, a.lo - j * kArcStepLow);
    const double d2 = d.hi * d.hi;
    const DoubleDouble sine = fast_two_sum(d.hi, d.lo + d.hi * d2 * polynomial(kSineSeries, d2));
    const double versine = d2 * (d2 * polynomial(kCosineSeries, d2) - 0.5) - d.hi * d.lo;

    const DoubleDouble c_sine = two_product(c.hi, sine.hi);
    const DoubleDouble s_sine = two_product(s.hi, sine.hi);
    const DoubleDouble sum_s = fast_two_sum(s.hi, c_sine.hi);
    const DoubleDouble sum_c = fast_two_sum(c.hi, -s_sine.hi);
    const DoubleDouble sin_a =
        fast_two_sum(sum_s.hi, s.hi * versine + (c_sine.lo + c.hi * sine.lo + c.lo * sine.hi) + (sum_s.lo + s.lo));
    const DoubleDouble cos_a =
        fast_two_sum(sum_c.hi, c.hi * versine - (s_sine.lo + s.hi * sine.lo + s.lo * sine.hi) + (sum_c.lo + c.lo));
    return {negative ? -sin_a : sin_a, cos_a};
}

ReducedAngle reduce_angle(DoubleDouble x)
{
    constexpr double kFew = 0x1p20;
    constexpr double kTwoOverPi = 0x1.45f306dc9c883p-1;
    DoubleDouble y = x;
    if (std::fabs(x.hi) >= kFew) [[unlikely]] {
        // In two stages: a multiple of 2^27 quarter turns, whole turns that is, then the rest.
        if (std::fabs(x.hi) >= kCount) y = less_half_pis(y, kCount * std::rint(y.hi * kTwoOverPi / kCount));
        const double count = std::rint(y.hi * kTwoOverPi);
        return {less_half_pis(y, count), static_cast<int>(static_cast<std::int64_t>(count) & 3)};
    }
    const NearestInteger n = nearest_integer(y.hi * kTwoOverPi);
    return {less_few_half_pis(y.hi, y.lo, n.value), n.count & 3};
}

SineAndCosine extended_sine_cosine_reduced(ReducedAngle angle)
{
    const auto [s, c] = extended_sine_cosine(angle.r);
    switch (angle.quadrant) {
    case 0:
        return {s, c};
    case 1:
        return {c, -s};
    case 2:
        return {-s, -c};
    default:
        return {-c, s};
    }
}

SineAndCosine extended_sine_cosine_pi(double x)
{
    // fmod is exact, and so is the distance to the nearest half.
    const double within = std::fmod(x, 2.0);
    const NearestInteger halves = nearest_integer(2.0 * within);
    const double rest = within - 0.5 * halves.value;
    return extended_sine_cosine_reduced({tables::kPi * rest, halves.count & 3});
}

} // namespace kor::special
