// The gamma law: the incomplete gamma ratios, and Newton's method on them.
#include "stats/gamma_law.hpp"

#include "frame/constants.hpp"
#include "special/gamma.hpp"
#include "special/incomplete_gamma.hpp"
#include "stats/normal_law.hpp"

namespace kor::stats {

namespace {

constexpr double kLargeShape = 16.0;

special::IncompleteGamma gamma_ratios(double a, double x)
{
    constexpr double kVanishing = 1e-250; // with a large shape it leaves nothing, nor could quotients tell
    if (a >= kLargeShape && x < kVanishing) return {0.0, 1.0, 0.0};
    return special::incomplete_gamma(a, x);
}

// Where P = x^a / Gamma(a + 1): a lower bound of the quantile, and sharp for small ones.
double small_quantile(double a, double p) { return std::exp((std::log(p) + special::log_gamma(a + 1.0)) / a); }

// The quantile for shapes a >= 16, upper tail erfc(eta0 sqrt(a/2)) / 2, |eta0| <= 1, by the inverse of the uniform expansion;
// the tail there is right to 1e-7.
double inverse_uniform_expansion(double a, double eta0)
{
    using special::polynomial;
    const auto &[e1, e2, e3, e4] = special::tables::kQuantileShifts;
    const double u = 1.0 / a, square = u * u;
    const double shift =
        (polynomial(e1, eta0) + u * polynomial(e2, eta0)) + square * (polynomial(e3, eta0) + u * polynomial(e4, eta0));
    const double eta = eta0 + u * shift;
    return a + a * (eta * polynomial(special::tables::kMuSlope, eta));
}

// Where to start; 0 where the quantile is below the doubles.
double start_quantile(double a, Target target)
{
    double start = 0.0;
    if (a > 0.5) {
        const double below = normal_quantile(target.probability), z = target.upper ? -below : below;
        if (a >= kLargeShape && a <= special::kGammaStepFrom && z * z <= a)
            return inverse_uniform_expansion(a, z / std::sqrt(a));
        // Wilson and Hilferty: the cube root is nearly normal.
        const double c = 1.0 / (9.0 * a);
        const double cube_root = 1.0 - c + z * std::sqrt(c);
        constexpr double kGood = 0.5;
        if (cube_root > 0.0) start = a * cube_root * cube_root * cube_root;
        if (cube_root > kGood) return start;
    }
    const double p = target.upper ? 1.0 - target.probability : target.probability;
    if (p == 0.0) return kSmallest;
    // The lower bound tells when the answer is below the doubles; above it P = bound to all digits.
    const double bound = small_quantile(a, p);
    if (p <= 0.5 && bound < kSmallest) return 0.0;
    start = std::fmax(start, bound);
    if (a <= 0.5 && target.upper) {
        // Q < x^(a-1) exp(-x) / Gamma(a) < a exp(-x) for x > 1.
        const double far = std::log(a) - std::log(target.probability);
        if (far > 1.0) start = std::fmin(far, std::fmax(start, 1.0));
    }
    return std::fmax(start, kSmallest);
}

} // namespace

Tails gamma_tails(double a, double x)
{
    const special::IncompleteGamma ratios = gamma_ratios(a, x);
    return {ratios.p, ratios.q};
}

Quantile gamma_quantile(double a, Target target)
{
    const double start = start_quantile(a, target);
    if (start == 0.0) return {0.0, true};
    return solve_tail(
        [a](double x) {
            const special::IncompleteGamma at = gamma_ratios(a, x);
            return PointOfLaw{{at.p, at.q}, a * at.term, a - x};
        },
        target, start);
}

} // namespace kor::stats
