// The gamma function and its logarithm, in pieces for moderate arguments and by Stirling's formula for large ones.
#include "special/gamma.hpp"

#include "special/elementary.hpp"
#include "special/gamma_tables.hpp"

namespace kor::special {

namespace {

constexpr double kStirlingFrom = 12.0;    // gamma
constexpr double kLogStirlingFrom = 16.0; // ln gamma

// 1/(12 x) - 1/(360 x^3) + ..., x >= 12.
KOR_INLINE double plain_stirling_correction(double x)
{
    const double reciprocal = 1.0 / x;
    return reciprocal * tables::kStirling.open(reciprocal * reciprocal).rounded();
}

// ln Gamma(x) = (x - 1/2) ln x - x + ln sqrt(2 pi) + correction, x >= 12; absolute error 2^-59 up to x = 172. The product of
// the upper halves of its factors is exact, and the other products are small beside it.
KOR_INLINE DoubleDouble stirling(DoubleDouble x, OpenSum log_x)
{
    const double factor = x.hi - 0.5; // exact wherever the 1/2 counts
    const double factor_1 = upper_half(factor), factor_2 = (factor - factor_1) + x.lo;
    const double log_1 = upper_half(log_x.large), log_2 = (log_x.large - log_1) + log_x.small;

    const DoubleDouble offset = fast_two_sum(-x.hi, tables::kLogRootTwoPi.hi);
    const double correction = plain_stirling_correction(x.hi) + (tables::kLogRootTwoPi.lo + offset.lo);
    const DoubleDouble sum = fast_two_sum(factor_1 * log_1, offset.hi);
    const double rest = factor_1 * log_2 + factor_2 * log_x.rounded() - x.lo;
    return fast_two_sum(sum.hi, (rest + sum.lo) + correction);
}

KOR_INLINE DoubleDouble stirling(double x) { return stirling({x}, open_log(x)); }

// ln Gamma(1 + d) is zero at 0 and 1; without a branch.
KOR_INLINE double distance_from_zero(double d) { return d - static_cast<double>(d >= 0.5); }

// -pi / (x sin(pi x) Gamma(-x)).
double reflected(double x)
{
    const DoubleDouble x_sine = open_product(extended_sine_pi(x), {-x});
    if (-x < kStirlingFrom) return open_quotient(tables::kPi, tables::kGamma.times(x_sine, {-x})).rounded();
    const OpenExponential e = open_exp(-stirling(-x));
    // The quotient need not wait for the exponential.
    return times_power_of_two(times_split(e.value, open_quotient(tables::kPi, x_sine)).rounded(), e.exponent);
}

} // namespace

DoubleDouble stirling_correction(double x) { return tables::kStirling(1.0 / (x * x)) / x; }

DoubleDouble extended_gamma(DoubleDouble x)
{
    if (x.hi < kStirlingFrom) return tables::kGamma(x);
    OpenSum log_x = open_log(x.hi);
    log_x.small += x.lo / x.hi;
    const Exponential e = extended_exp(stirling(x, log_x));
    return {times_power_of_two(e.value.hi, e.exponent), times_power_of_two(e.value.lo, e.exponent)};
}

double gamma(double x)
{
    if (x >= kStirlingFrom) return open_exp(stirling(x)).rounded();
    if (x >= 0.5) return tables::kGamma.open({x}).rounded();
    if (x < -0.5) return reflected(x);
    return open_quotient(tables::kGamma(fast_two_sum(1.0, x)), {x}).rounded();
}

DoubleDouble extended_log_gamma_one_plus(double d)
{
    return tables::kLogGammaFactor.times({distance_from_zero(d)}, {d});
}

double log_gamma(double x)
{
    constexpr double kLogarithmBelow = 0.0625;
    if (x >= kLogStirlingFrom) return stirling(x).rounded();
    if (x >= 3.0) return tables::kLogGamma.open({x}).rounded();
    if (x >= 0.5) {
        const double d = x - 1.0;
        return tables::kLogGammaFactor.times({distance_from_zero(d)}, {d}).rounded();
    }
    if (x >= kLogarithmBelow) return tables::kLogGammaBelowHalf.open({x}).rounded();
    const OpenSum log_x = open_log(x);
    return -log_x.large + (tables::kLogGammaFactor.times({x}, {x}).rounded() - log_x.small);
}

DoubleDouble extended_log_gamma(double x)
{
    if (x >= kLogStirlingFrom) return stirling(x);
    if (x >= 3.0) return tables::kLogGamma({x});
    if (x >= 0.5) return extended_log_gamma_one_plus(x - 1.0);
    return extended_log_gamma_one_plus(x) - extended_log(x);
}

} // namespace kor::special
