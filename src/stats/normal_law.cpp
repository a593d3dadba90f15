// Quantiles of the normal law: polynomials in the square of the probability next to the median, in the logarithm of the tail
// from there on.
#include "stats/normal_law.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kor::stats {

namespace {

constexpr double kRootTwoPi = 2.5066282746310002;

// From here on 1/2 less a probability, or less a tail, is exact, so that each side may ask for the other.
constexpr double kCentral = 0.25;

// P(0 < X < x) = half, |half| < kCentral.
KOR_INLINE double central_quantile(double half)
{
    return special::tables::kNormalCentral.times({half}, {half * half}).rounded();
}

// P(X > x) = q <= kCentral.
KOR_INLINE double tail_quantile(double q)
{
    if (std::isnan(q)) return q;
    // Half of the least probability is 0, and its quantile is not infinite.
    constexpr double kLeast = std::numeric_limits<double>::denorm_min();
    const special::OpenSum log = special::open_log(std::max(q, kLeast));
    return special::tables::kNormalTail.open({-log.large, -log.small}).rounded();
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
    return half < kCentral ? central_quantile(half) : tail_quantile(0.5 - half);
}

double normal_upper_quantile(double q) { return q > kCentral ? central_quantile(0.5 - q) : tail_quantile(q); }

double normal_two_sided_quantile(double q)
{
    return q > 0.5 ? normal_central_quantile(0.5 * (1.0 - q)) : normal_upper_quantile(0.5 * q);
}

double normal_quantile(double p)
{
    const double half = p - 0.5;
    if (std::fabs(half) < kCentral) return central_quantile(half);
    // 1 - p is exact for p >= 1/2. Which side it is nobody can predict: no branch.
    return std::copysign(tail_quantile(std::min(p, 1.0 - p)), half);
}

} // namespace kor::stats
