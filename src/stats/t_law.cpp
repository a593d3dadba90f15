// Student's t: t^2 / df are the odds of a beta variable with shapes 1/2 and df/2. Where the odds leave the range of doubles
// the leading power of the tail is the tail.
#include "stats/t_law.hpp"

#include "stats/beta_law.hpp"
#include "stats/normal_law.hpp"

namespace kor::stats {

namespace {

using namespace special;

constexpr double kNormalFrom = 1e20;  // df: t is normal to all digits, for the relative difference is about t^4 / df
constexpr double kLinearBelow = 1e-9; // t: P(|T| <= t) is proportional to t
constexpr double kPowerFrom = 1e9;    // t / sqrt(df): P(|T| > t) is proportional to t^-df

// 1 / B(1/2, df/2), from the slope at odds so small that the power of y is 1.
DoubleDouble reciprocal_beta(const BetaLaw &law)
{
    const Exponential slope = law.slope({0x1p-200}, {1.0});
    constexpr int kRootOfOdds = 100;
    const double scale = times_power_of_two(1.0, slope.exponent + kRootOfOdds);
    return slope.value * scale;
}

// ln(2 / (df B(1/2, df/2))): P(|T| > t) = exp(this) (t / sqrt(df))^-df for large t.
DoubleDouble log_tail_factor(const BetaLaw &law, double df) { return extended_log(2.0 * reciprocal_beta(law) / df); }

} // namespace

Tails t_two_sided(double t, double df)
{
    if (df >= kNormalFrom) return {special::erf(t * 0.7071067811865476), 2.0 * normal_upper(t)};
    const BetaLaw law{0.5, 0.5 * df};
    if (t < kLinearBelow) {
        const double lower = (2.0 * t * reciprocal_beta(law) / sqrt(DoubleDouble{df})).rounded();
        return {lower, 1.0 - lower};
    }
    if (t >= kPowerFrom * std::sqrt(df)) {
        if (t > 0x1.fffffffffffffp1023) return {1.0, 0.0};
        const DoubleDouble exponent =
            log_tail_factor(law, df) - df * (extended_log({t}) - extended_log({df}).scaled(0.5));
        constexpr double kUnderflow = -2000.0;
        const double upper = exponent.hi < kUnderflow ? 0.0 : extended_exp(exponent).rounded();
        return {1.0 - upper, upper};
    }
    return law.tails_at_odds(two_square(t) / df);
}

Quantile t_two_sided_quantile(Target target, double df)
{
    if (df >= kNormalFrom) {
        const double half = 0.5 * target.probability;
        return {target.upper ? normal_upper_quantile(half) : normal_central_quantile(half), true};
    }
    const BetaLaw law{0.5, 0.5 * df};
    constexpr double kNearMedian = 1e-8; // of the probability: only below it t may be below kLinearBelow
    constexpr double kLogPowerFrom = 20.723265836946414; // ln(kPowerFrom)
    if (!target.upper && target.probability < kNearMedian) {
        const double linear = (0.5 * target.probability * sqrt(DoubleDouble{df}) / reciprocal_beta(law)).rounded();
        if (linear < kLinearBelow) return {linear, true};
    }
    // The tail there is at most kPowerFrom^-df.
    if (target.upper && std::log(target.probability) < 1.0 - kLogPowerFrom * df) {
        const DoubleDouble log_ratio = (log_tail_factor(law, df) - extended_log({target.probability})) / df;
        if (log_ratio.hi > kLogPowerFrom)
            return {(extended_exp(log_ratio + extended_log({df}).scaled(0.5))).rounded(), true};
    }
    const Quantile odds = law.odds(target);
    return {sqrt(two_product(df, odds.value)).rounded(), odds.converged};
}

} // namespace kor::stats
