// Normal scores by the trapezoidal rule.
//
// The density of an order statistic, ~ P(x)^(i-1) Q(x)^(n-i) phi(x), is analytic everywhere and falls off at both ends like
// a Gaussian: the rule converges exponentially, and the sum with twice the step squares the error. So the difference of the
// two tells the error long before it reaches the last digit. The integral of the density itself, by the same rule, is the
// divisor: no factorials are needed.
#include "stats/normal_scores.hpp"

#include <cmath>

#include "frame/constants.hpp"
#include "stats/normal_law.hpp"

namespace kor::stats {

namespace {

constexpr double kFarthest = 37.0; // no score, and no density that counts, lies beyond

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

// Sums over the points centre + k h spread: of the density, and of k times it.
struct Sums {
    double mass = 0.0, first = 0.0;
    void add(double k, double density)
    {
        mass += density;
        first += k * density;
    }
    double mean() const { return first / mass; }
};

} // namespace

NormalScore expected_normal_score(Integer i, Integer n)
{
    if (2 * static_cast<std::int64_t>(i) == static_cast<std::int64_t>(n) + 1) return {0.0, 0.0};
    const double below = i - 1.0, above = static_cast<double>(n) - i;
    const double centre = normal_quantile((i - 0.375) / (n + 0.25)); // Blom's approximation
    const double width = spread(centre, below, above);
    const double at_centre = log_density(centre, below, above);

    constexpr double kNegligible = 1e-19;
    constexpr double kConverged = 1e-9; // of the difference: its square is the error
    constexpr int kHalvings = 6;
    double step = 0.5;
    NormalScore score{};
    for (int halving = 0; halving < kHalvings; ++halving, step *= 0.5) {
        Sums all, even;
        all.add(0.0, 1.0);
        even.add(0.0, 1.0);
        for (const double direction : {-1.0, 1.0}) {
            for (double k = direction;; k += direction) {
                const double x = centre + k * step * width;
                if (std::fabs(x) > kFarthest) break;
                const double density = std::exp(log_density(x, below, above) - at_centre);
                all.add(k, density);
                if (std::fmod(k, 2.0) == 0.0) even.add(k, density);
                if (density * std::fabs(k) < kNegligible * all.mass) break;
            }
        }
        const double difference = std::fabs(all.mean() - even.mean()) * step;
        // The logarithms, as large as n, were rounded.
        const double rounding = kPrecision * (4.0 * std::fabs(centre) + width * (8.0 + std::fabs(at_centre)));
        score = {centre + width * step * all.mean(), width * difference * difference + rounding};
        if (difference < kConverged) break;
    }
    return score;
}

} // namespace kor::stats
