// Jacobi's theta functions.
//
// For small q the defining series; for q beyond exp(-pi) the same functions as sums of Gauss curves, by Jacobi's imaginary
// transformation: theta_3(pi x, q) = sqrt(pi/h) sum exp(-pi^2 (x+n)^2 / h) with h = -ln q, theta_2 with alternating signs, and
// theta_4 and theta_1 from these half a unit further. In both ranges the ratio of neighbouring terms is below exp(-pi), and
// zeros stand out as factors.
#include "special/theta.hpp"

#include <array>
#include <cmath>

#include "special/elementary.hpp"

namespace kor::special {

namespace {

constexpr double kSeriesUpTo = 0.0432139182637723; // exp(-pi)

// What the series are made of: for q up to exp(-pi) the terms left out are below 1e-21.
struct Harmonics {
    DoubleDouble sine, cosine; // of pi x
    double c2, c4, c6;         // cosines of 2 pi x, 4 pi x, 6 pi x
    double q;

    Harmonics(double x, double nome) : q{nome}
    {
        const auto [s, c] = extended_sine_cosine_pi(x);
        sine = s;
        cosine = c;
        c2 = (c.hi - s.hi) * (c.hi + s.hi);
        c4 = 2.0 * c2 * c2 - 1.0;
        c6 = c2 * (2.0 * c4 - 1.0);
    }
    // theta_3 (sign 1) or theta_4 (sign -1) less 1.
    double even_rest(double sign) const
    {
        const double q3 = q * q * q;
        return 2.0 * q * (sign * c2 + q3 * (c4 + sign * q3 * q * q * c6));
    }
    // theta_1 / (2 q^(1/4) sin pi x) (sign 1) or theta_2 / (2 q^(1/4) cos pi x) (sign -1), less 1: higher harmonics
    // divided by the first are 1 + 2 sign cos 2 pi x, 1 + 2 sign cos 2 pi x + 2 cos 4 pi x, ...
    double odd_rest(double sign) const
    {
        const double third = 1.0 + 2.0 * sign * c2, fifth = third + 2.0 * c4, seventh = fifth + 2.0 * sign * c6;
        const double q2 = q * q, q4 = q2 * q2;
        return -q2 * (third - q4 * (fifth - q4 * q2 * seventh));
    }
};

// A point as its distances from the nearest integer and, the other way, from the nearest half integer.
struct Distances {
    double from_integer; // 0 to 1/2
    DoubleDouble from_half;
    double sign_1, sign_2; // of theta_1 and theta_2 there

    explicit Distances(double x)
    {
        const double nearest = std::rint(x), r = x - nearest; // exact
        const double parity = std::fmod(nearest, 2.0) != 0.0 ? -1.0 : 1.0;
        from_integer = std::fabs(r);
        from_half = fast_two_sum(0.5, -from_integer);
        sign_1 = r < 0.0 ? -parity : parity;
        sign_2 = parity;
    }
};

// exp(-x), x >= 0.
DoubleDouble decay(DoubleDouble x)
{
    constexpr double kNegligible = 700.0;
    if (x.hi > kNegligible) return {0.0};
    const Exponential e = extended_exp(-x);
    return {times_power_of_two(e.value.hi, e.exponent), times_power_of_two(e.value.lo, e.exponent)};
}

// 1 - exp(-x), x >= 0.
DoubleDouble complement_of_decay(DoubleDouble x)
{
    constexpr double kSeriesBelow = 0.35;
    constexpr std::array<double, 12> series = {1.0 / 6,        -1.0 / 24,        1.0 / 120,        -1.0 / 720,
                                               1.0 / 5040,     -1.0 / 40320,     1.0 / 362880,     -1.0 / 3628800,
                                               1.0 / 39916800, -1.0 / 479001600, 1.0 / 6227020800, -1.0 / 87178291200};
    if (x.hi >= kSeriesBelow) return 1.0 - decay(x);
    const double cube = x.hi * x.hi * x.hi;
    return x - square(x).scaled(0.5) + cube * polynomial(series, x.hi);
}

// sum exp(-rate (r+n)^2) / exp(-rate r^2), 0 <= r <= 1/2, with gap = 1 - 2 r: the terms n = 0, -1, 1, -2, 2, -3, 3. The
// second may be as large as the first.
DoubleDouble even(DoubleDouble rate, double gap)
{
    const double a = rate.hi;
    const double rest = std::exp(-a * (2.0 - gap)) + std::exp(-2.0 * a * (1.0 + gap)) +
                        std::exp(-2.0 * a * (3.0 - gap)) + std::exp(-3.0 * a * (2.0 + gap)) +
                        std::exp(-3.0 * a * (4.0 - gap));
    return (1.0 + decay(rate * gap)) + rest;
}

// sum (-1)^n exp(-rate (r+n)^2) / exp(-rate r^2), 0 <= r <= 1/2: with gap = 1 - 2 r the terms n and -1-n make
// exp(-rate (r+n)^2) times 1 - exp(-rate (2n+1) gap), which shows the zero at r = 1/2.
DoubleDouble alternating(DoubleDouble rate, double gap)
{
    const double a = rate.hi;
    const double rest = std::exp(-a * (2.0 - gap)) * std::expm1(-3.0 * a * gap) -
                        std::exp(-2.0 * a * (3.0 - gap)) * std::expm1(-5.0 * a * gap) +
                        std::exp(-3.0 * a * (4.0 - gap)) * std::expm1(-7.0 * a * gap);
    return complement_of_decay(rate * gap) + rest;
}

// sqrt(pi/h) exp(-rate r^2) rest, rate = pi^2 / h.
double gauss_curve(DoubleDouble over_h, DoubleDouble rate, DoubleDouble r, DoubleDouble rest)
{
    constexpr double kUnderflow = 800.0;
    const DoubleDouble exponent = rate * square(r);
    if (exponent.hi > kUnderflow) return 0.0;
    const Exponential e = extended_exp(-exponent);
    return times_power_of_two((e.value * sqrt(over_h) * rest).rounded(), e.exponent);
}

double by_series(int k, double x, double q)
{
    const Harmonics h{x, q};
    if (k == 3) return 1.0 + h.even_rest(1.0);
    if (k != 1 && k != 2) return 1.0 + h.even_rest(-1.0);
    if (q == 0.0) return 0.0;
    const DoubleDouble factor = sqrt(sqrt(DoubleDouble{q})).scaled(2.0) * (k == 1 ? h.sine : h.cosine);
    return (factor * fast_two_sum(1.0, h.odd_rest(k == 1 ? 1.0 : -1.0))).rounded();
}

} // namespace

double theta(int k, double x, double q)
{
    if (q <= kSeriesUpTo) return by_series(k, x, q);

    const DoubleDouble over_h = tables::kPi / -extended_log(q), rate = tables::kPi * over_h;
    const Distances d{x};
    const double r = d.from_integer, gap = 1.0 - 2.0 * r;
    switch (k) {
    case 1:
        return d.sign_1 * gauss_curve(over_h, rate, d.from_half, alternating(rate, 2.0 * r));
    case 2:
        return d.sign_2 * gauss_curve(over_h, rate, {r}, alternating(rate, gap));
    case 3:
        return gauss_curve(over_h, rate, {r}, even(rate, gap));
    default:
        return gauss_curve(over_h, rate, d.from_half, even(rate, 2.0 * r));
    }
}

ThetaQuotients theta_quotients(double x, double h)
{
    // The factors that the numerators and denominators share, q^(1/4) and exp(-rate r^2), never appear.
    if (h >= tables::kPi.hi) {
        const double q = std::exp(-h);
        const Harmonics a{x, q}, origin{0.0, q};
        const double first = 1.0 + a.odd_rest(1.0), second = 1.0 + a.odd_rest(-1.0);
        const double third = 1.0 + a.even_rest(1.0), fourth = 1.0 + a.even_rest(-1.0);
        const double second_0 = 1.0 + origin.odd_rest(-1.0), third_0 = 1.0 + origin.even_rest(1.0);
        const double fourth_0 = 1.0 + origin.even_rest(-1.0);
        return {a.sine.hi * (first * third_0 / (fourth * second_0)),
                a.cosine.hi * (second * fourth_0 / (fourth * second_0)), third * fourth_0 / (fourth * third_0)};
    }
    const double rate = tables::kPi.hi * tables::kPi.hi / h;
    const Distances d{x};
    const double r = d.from_integer, gap = 1.0 - 2.0 * r;
    const double first = alternating({rate}, 2.0 * r).hi, second = alternating({rate}, gap).hi;
    const double third = even({rate}, gap).hi, fourth = even({rate}, 2.0 * r).hi;
    const double second_0 = alternating({rate}, 1.0).hi, third_0 = even({rate}, 1.0).hi;
    const double fourth_0 = even({rate}, 0.0).hi;
    const double of_r = std::exp(-rate * r);
    return {d.sign_1 * (first * third_0 / (fourth * second_0)),
            d.sign_2 * (of_r * second * fourth_0 / (fourth * second_0)), of_r * third * fourth_0 / (fourth * third_0)};
}

} // namespace kor::special
