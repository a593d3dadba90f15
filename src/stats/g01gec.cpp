// g01gec: lower tail probabilities of the non-central beta law.
#include <kor/g01.h>

#include <cmath>

#include "frame/constants.hpp"
#include "frame/report.hpp"
#include "special/evaluate.hpp"
#include "stats/beta_law.hpp"
#include "stats/noncentral_laws.hpp"

double g01gec(double x, double a, double b, double lambda, double tol, Integer max_iter, KorError *fail)
{
    constexpr double kLargestShape = 1.0e6;
    const kor::Report report{"g01gec", fail};
    if (x < 0.0 || x > 1.0) return report.error<NE_REAL_ARG_CONS>("x", x, "0.0 <= x <= 1.0"), 0.0;
    if (a <= 0.0 || a > kLargestShape) return report.error<NE_REAL_ARG_CONS>("a", a, "0.0 < a <= 1.0e6"), 0.0;
    if (b <= 0.0 || b > kLargestShape) return report.error<NE_REAL_ARG_CONS>("b", b, "0.0 < b <= 1.0e6"), 0.0;
    if (lambda < 0.0 || lambda > -2.0 * std::log(kor::kSafeSmall))
        return report.error<NE_REAL_ARG_CONS>("lambda", lambda, "0.0 <= lambda <= -2.0*log(X02AMC)"), 0.0;
    if (max_iter < 1) return report.error<NE_INT_ARG_LT>("max_iter", "1", "max_iter", max_iter), 0.0;
    if (std::isnan(x + a + b + lambda)) return report.success(), NAN;
    if (x == 0.0 || x == 1.0) return report.success(), x;
    const kor::special::DoubleDouble y = kor::special::two_sum(1.0, -x);
    if (lambda == 0.0) return report.success(), kor::stats::BetaLaw(a, b).tails({x}, y).lower;

    const kor::stats::MixtureSum sum =
        kor::stats::noncentral_beta({x}, y, a, b, lambda, {kor::stats::effective_tolerance(tol), max_iter});
    if (!sum.converged) return report.error<NE_CONV>("max_iter or tol"), 0.0;
    report.success();
    return sum.value;
}
