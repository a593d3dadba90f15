// Normal scores: the mean of the density of an order statistic, ~ P(x)^(i-1) Q(x)^(n-i) phi(x), which is analytic everywhere
// and falls off at both ends like a Gaussian. Its mass is the divisor: no factorials are needed.
#include "stats/normal_scores.hpp"

#include <cmath>

#include "frame/constants.hpp"
#include "stats/normal_law.hpp"
#include "stats/peak_integral.hpp"

namespace kor::stats {

namespace {

constexpr double kFarthest = 37.0; // no score, and no density that counts, lies beyond
constexpr int kMostEvaluations = 100000;

// (i - 1) ln P + (n - i) ln Q - x^2/2.
double log_density(double x, double below, double above)
{
    const double tail = normal_upper(std::fabs(x));
    const double log_tail = std::log(tail), log_rest = std::log1p(-tail);
    return (x < 0.0 ? below * log_tail + above * log_rest : above * log_tail + below * log_rest) - 0.5 * x * x;
}

// 1 / sqrt(-second derivative) of the logarithm of the density.
double spread(double x, double below, double above)
{
    const double density = std::exp(-0.5 * x * x) / 2.5066282746310002;
    const double r = density / normal_lower(x), m = density / normal_upper(x);
    return 1.0 / std::sqrt(1.0 + below * r * (r + x) + above * m * (m - x));
}

} // namespace

NormalScore expected_normal_score(Integer i, Integer n)
{
    if (2 * static_cast<std::int64_t>(i) == static_cast<std::int64_t>(n) + 1) return {0.0, 0.0};
    const double below = i - 1.0, above = static_cast<double>(n) - i;
    const double centre = normal_quantile((i - 0.375) / (n + 0.25)); // Blom's approximation
    const double width = spread(centre, below, above);
    const double at_centre = log_density(centre, below, above);
    const auto density = [&](double offset) {
        const double x = centre + offset;
        return std::fabs(x) < kFarthest ? std::exp(log_density(x, below, above) - at_centre) : 0.0;
    };
    const PeakIntegral integral = integrate_peak(density, width, kPrecision, kMostEvaluations);
    // The logarithms, as large as n, were rounded.
    const double rounding = kPrecision * (4.0 * std::fabs(centre) + width * (8.0 + std::fabs(at_centre)));
    return {centre + integral.mean, width * integral.error + rounding};
}

} // namespace kor::stats
