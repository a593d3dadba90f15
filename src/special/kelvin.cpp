// Kelvin functions: series, piecewise polynomials, and modulus and phase for large arguments.
#include "special/kelvin.hpp"

#include "special/bessel_support.hpp"
#include "special/kelvin_tables.hpp"

namespace kor::special {

namespace {

using namespace tables::kelvin;

// ker + i kei = size exp(-i angle) 2^exponent for large x.
struct DecayingOscillation {
    Oscillation oscillation;
    int exponent;

    explicit DecayingOscillation(double x)
    {
        const DoubleDouble t = kRootHalf * x;
        const double u = 1.0 / x;
        const Exponential decay = extended_exp(-t);
        oscillation = {sqrt(kHalfPi / x) * kModulus(u) * decay.value, t + (kEighthPi - kPhase(u).hi / x)};
        exponent = decay.exponent;
    }
    double ker() const { return times_power_of_two(oscillation.cosine().rounded(), exponent); }
    double kei() const { return -times_power_of_two(oscillation.sine().rounded(), exponent); }
};

double small_ker(double x)
{
    const double z = x * x, w = z * z;
    const DoubleDouble log_x = extended_log_of(x);
    return (kSmallKer(z) - log_x + -log_x.hi * (w * polynomial(kSmallBer, w))).rounded();
}

double small_bei(double x)
{
    const DoubleDouble z = two_square(x);
    const DoubleDouble quotient = kSmallBei(z.hi * z.hi);
    return z.hi * quotient.hi + (z.lo * quotient.hi + z.hi * quotient.lo);
}

double small_kei(double x)
{
    const double z = x * x;
    const DoubleDouble rest = kSmallKei(z);
    return rest.hi + (rest.lo - extended_log_of(x).hi * (z * kSmallBei(z * z).hi));
}

} // namespace

double kelvin_ber(double x) { return kBer(std::fabs(x)); }

double kelvin_bei(double x)
{
    const double a = std::fabs(x);
    return a < kBei.begin() ? small_bei(a) : kBei(a);
}

double kelvin_ker(double x)
{
    if (x < kSmallArgument) return small_ker(x);
    return x < kKer.end() ? kKer(x) : DecayingOscillation{x}.ker();
}

double kelvin_kei(double x)
{
    if (x < kSmallArgument) return small_kei(x);
    return x < kKei.end() ? kKei(x) : DecayingOscillation{x}.kei();
}

} // namespace kor::special
