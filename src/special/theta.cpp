// Jacobi's theta functions.
//
// For small q the defining series; for q beyond exp(-pi) the same functions as sums of Gauss curves, by Jacobi's imaginary
// transformation: theta_3(pi x, q) = sqrt(pi/h) sum exp(-pi^2 (x+n)^2 / h) with h = -ln q, theta_2 with alternating signs, and
// theta_4 and theta_1 from these half a unit further. In both ranges the ratio of neighbouring terms is below exp(-pi), and
// zeros stand out as factors.
#include "special/theta.hpp"

#include <cmath>

#include "special/elementary.hpp"

namespace kor::special {

namespace {

constexpr double kSeriesUpTo = 0.0432139182637723; // exp(-pi)

struct DoubleAngles {
    double c2, c4, c6; // cosines of 2 pi x, 4 pi x, 6 pi x
};

DoubleAngles double_angles(const SineAndCosine &angle)
{
    const double c2 = (angle.cosine.hi - angle.sine.hi) * (angle.cosine.hi + angle.sine.hi);
    const double c4 = 2.0 * c2 * c2 - 1.0;
    return {c2, c4, c2 * (2.0 * c4 - 1.0)};
}

// 1 + 2 sign q cos 2 pi x + 2 q^4 cos 4 pi x + 2 sign q^9 cos 6 pi x + ...
double even_series(double sign, double x, double q)
{
    const auto [c2, c4, c6] = double_angles(extended_sine_cosine_pi(x));
    const double q3 = q * q * q;
    return 1.0 + 2.0 * q * (sign * c2 + q3 * (c4 + sign * q3 * q * q * c6));
}

// 2 q^(1/4) (first -+ q^2 third harmonic + q^6 fifth -+ ...): the harmonics divided by the first are 1 + 2 sign cos 2 pi x,
// 1 + 2 sign cos 2 pi x + 2 cos 4 pi x, ..., with sign 1 for sines and -1 for cosines.
double odd_series(bool sines, double x, double q)
{
    const SineAndCosine angle = extended_sine_cosine_pi(x);
    const auto [c2, c4, c6] = double_angles(angle);
    const double sign = sines ? 1.0 : -1.0, q2 = q * q, q4 = q2 * q2;
    const double third = 1.0 + 2.0 * sign * c2, fifth = third + 2.0 * c4, seventh = fifth + 2.0 * sign * c6;
    const double rest = -sign * q2 * (third - sign * q4 * (fifth - sign * q4 * q2 * seventh));
    const DoubleDouble root = sqrt(sqrt(DoubleDouble{q})).scaled(2.0);
    return (root * (sines ? angle.sine : angle.cosine) * fast_two_sum(1.0, rest)).rounded();
}

// For h = -ln q: rate = pi^2 / h, amplitude = sqrt(pi / h).
struct Gaussians {
    DoubleDouble rate, amplitude;

    explicit Gaussians(double q)
    {
        const DoubleDouble over_h = tables::kPi / -extended_log({q});
        rate = tables::kPi * over_h;
        amplitude = sqrt(over_h);
    }
    // amplitude exp(-rate r^2) times `rest`, the sum relative to its largest term.
    double times(DoubleDouble r, DoubleDouble rest) const
    {
        constexpr double kUnderflow = 800.0;
        const DoubleDouble exponent = rate * square(r);
        if (exponent.hi > kUnderflow) return 0.0;
        const Exponential e = extended_exp(-exponent);
        return times_power_of_two((e.value * amplitude * rest).rounded(), e.exponent);
    }
};

// sum exp(-rate (r+n)^2), 0 <= r <= 1/2, with gap = 1 - 2 r.
double even_sum(DoubleDouble r, double gap, double q)
{
    const Gaussians g{q};
    const double a = g.rate.hi;
    // n = -1, 1, -2, 2, -3 relative to n = 0.
    const double rest = std::exp(-a * gap) + std::exp(-a * (2.0 - gap)) + std::exp(-2.0 * a * (1.0 + gap)) +
                        std::exp(-2.0 * a * (3.0 - gap)) + std::exp(-3.0 * a * (2.0 + gap));
    return g.times(r, two_sum(1.0, rest));
}

// sum (-1)^n exp(-rate (r+n)^2), 0 <= r <= 1/2: with gap = 1 - 2 r the terms n and -1-n make exp(-rate (r+n)^2) times
// 1 - exp(-rate (2n+1) gap), which shows the zero at r = 1/2.
double alternating_sum(DoubleDouble r, double gap, double q)
{
    const Gaussians g{q};
    const double a = g.rate.hi;
    const DoubleDouble small = g.rate * gap;
    const double first = -std::expm1(-small.hi) + small.lo * std::exp(-small.hi);
    const double rest = std::exp(-a * (2.0 - gap)) * std::expm1(-3.0 * a * gap) -
                        std::exp(-2.0 * a * (3.0 - gap)) * std::expm1(-5.0 * a * gap) +
                        std::exp(-3.0 * a * (4.0 - gap)) * std::expm1(-7.0 * a * gap);
    return g.times(r, two_sum(first, rest));
}

} // namespace

double theta(int k, double x, double q)
{
    const bool sines = k == 1;
    if (q <= kSeriesUpTo) return k == 1 || k == 2 ? odd_series(sines, x, q) : even_series(k == 3 ? 1.0 : -1.0, x, q);

    // Distances from the nearest integer and, the other way, from the nearest half integer.
    const double nearest = std::rint(x), r = x - nearest, size = std::fabs(r);
    const DoubleDouble to_half = fast_two_sum(0.5, -size);
    const double parity = std::fmod(nearest, 2.0) != 0.0 ? -1.0 : 1.0;
    switch (k) {
    case 1:
        return parity * std::copysign(alternating_sum(to_half, 2.0 * size, q), r);
    case 2:
        return parity * alternating_sum({size}, 1.0 - 2.0 * size, q);
    case 3:
        return even_sum({size}, 1.0 - 2.0 * size, q);
    default:
        return even_sum(to_half, 2.0 * size, q);
    }
}

} // namespace kor::special
