// The F law: df1 f / df2 are the odds of a beta variable with shapes df1/2 and df2/2. From degrees on that no double can
// tell from infinity a chi-squared law takes its place.
#include "stats/f_law.hpp"

#include "stats/beta_law.hpp"
#include "stats/gamma_law.hpp"

namespace kor::stats {

namespace {

using namespace special;

constexpr double kInfiniteFrom = 1e22;
constexpr double kSmallOdds = 1e-280, kLargeOdds = 1e280; // products with a low part stay in range between them

} // namespace

Tails f_tails(double f, double df1, double df2)
{
    if (f == 0.0) return {0.0, 1.0};
    if (f > 0x1.fffffffffffffp1023) return {1.0, 0.0};
    if (df2 >= kInfiniteFrom) return gamma_tails(0.5 * df1, 0.5 * df1 * f);
    if (df1 >= kInfiniteFrom) {
        const Tails mirrored = gamma_tails(0.5 * df2, 0.5 * df2 / f);
        return {mirrored.upper, mirrored.lower};
    }
    const BetaLaw law{0.5 * df1, 0.5 * df2};
    const double odds = df1 / df2 * f;
    if (odds < kSmallOdds) return odds > 0.0 ? law.tails({odds}, {1.0}) : Tails{0.0, 1.0};
    if (odds > kLargeOdds) {
        const double y = df2 / df1 / f;
        return y > 0.0 ? law.tails({1.0}, {y}) : Tails{1.0, 0.0};
    }
    return law.tails_at_odds(two_product(df1, f) / df2);
}

Quantile f_quantile(Target target, double df1, double df2)
{
    if (df2 >= kInfiniteFrom) {
        const Quantile chi_squared = gamma_quantile(0.5 * df1, target);
        return {chi_squared.value / (0.5 * df1), chi_squared.converged};
    }
    if (df1 >= kInfiniteFrom) {
        const Quantile chi_squared = gamma_quantile(0.5 * df2, {!target.upper, target.probability});
        return {0.5 * df2 / chi_squared.value, chi_squared.converged};
    }
    const Quantile odds = BetaLaw{0.5 * df1, 0.5 * df2}.odds(target);
    return {(two_product(odds.value, df2) / df1).rounded(), odds.converged};
}

} // namespace kor::stats
