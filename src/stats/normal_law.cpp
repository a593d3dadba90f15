// Quantiles of the normal law: a rough start and two steps of Halley's method, whose residual is the tail itself.
#include "stats/normal_law.hpp"

#include <cmath>

namespace kor::stats {

namespace {

constexpr double kRootTwoPi = 2.5066282746310002;
constexpr double kCentral = 0.125; // up to here the probability is measured from the median
constexpr int kSteps = 2;

// One step for a residual r = (P(x) - p) / density(x), the ratio of the second derivative to the first being -x.
double halley(double x, double r) { return x - r / (1.0 + 0.5 * x * r); }

// The residual (q - Q(x)) / density(x) of the upper tail.
double upper_residual(double x, double q)
{
    constexpr double kScaledFrom = 0.75; // below it nothing can underflow
    if (x < kScaledFrom) return (q - special::normal_upper_tail(x)) * kRootTwoPi * std::exp(0.5 * x * x);
    const special::Exponential tail = special::extended_normal_upper_tail(x);
    // (q - Q) / Q, times Mills' ratio Q / density.
    const double scaled_q = std::ldexp(q, -tail.exponent);
    const double relative = ((scaled_q - tail.value.hi) - tail.value.lo) / tail.value.hi;
    const double mills = 0.5 * kRootTwoPi * special::scaled_erfc(x * 0.7071067811865476);
    return relative * mills;
}

} // namespace

double normal_hazard(double x)
{
    constexpr double kScaledFrom = 0.75; // below it nothing can underflow
    if (x < kScaledFrom) return std::exp(-0.5 * x * x) / (kRootTwoPi * normal_upper(x));
    return 2.0 / (kRootTwoPi * special::scaled_erfc(x * 0.7071067811865476));
}

double normal_central_quantile(double half)
{
    if (half > kCentral) return normal_upper_quantile(0.5 - half);
    // x = s + s^3/6 + 7 s^5/120 + ..., s = sqrt(2 pi) half.
    const double s = kRootTwoPi * half, s2 = s * s;
    double x = s * (1.0 + s2 * (1.0 / 6.0 + s2 * (7.0 / 120.0 + s2 * (127.0 / 5040.0))));
    constexpr double kSeriesIsExact = 1e-4;
    if (s < kSeriesIsExact) return x;
    // Halley's error is the cube of the start's, 3e-6 at most.
    const double exact_half = 0.5 * special::erf(x * 0.7071067811865476);
    return halley(x, (exact_half - half) * kRootTwoPi * std::exp(0.5 * x * x));
}

double normal_upper_quantile(double q)
{
    if (std::isnan(q)) return q;
    if (0.5 - q <= kCentral) return normal_central_quantile(0.5 - q);
    // Hastings' fit, within 4.5e-4.
    const double t = std::sqrt(-2.0 * std::log(q));
    double x = t - (2.515517 + t * (0.802853 + t * 0.010328)) / (1.0 + t * (1.432788 + t * (0.189269 + t * 0.001308)));
    for (int step = 0; step < kSteps; ++step) x = halley(x, upper_residual(x, q));
    return x;
}

double normal_two_sided_quantile(double q)
{
    return q > 0.5 ? normal_central_quantile(0.5 * (1.0 - q)) : normal_upper_quantile(0.5 * q);
}

double normal_quantile(double p)
{
    // 1 - p is exact for p >= 1/2.
    return p < 0.5 ? -normal_upper_quantile(p) : normal_upper_quantile(1.0 - p);
}

} // namespace kor::stats
