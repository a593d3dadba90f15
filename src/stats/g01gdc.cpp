// g01gdc: lower tail probabilities of the non-central F law.
#include <kor/g01.h>

#include <cmath>

#include "frame/constants.hpp"
#include "frame/report.hpp"
#include "stats/f_law.hpp"
#include "stats/noncentral_laws.hpp"

double g01gdc(double f, double df1, double df2, double lambda, double tol, Integer max_iter, KorError *fail)
{
    using namespace kor::special;
    constexpr double kLargestDegrees = 1.0e6;
    const kor::Report report{"g01gdc", fail};
    if (f < 0.0) return report.error<NE_REAL_ARG_LT>("f", "0.0", "f", f), 0.0;
    if (df1 <= 0.0 || df1 > kLargestDegrees)
        return report.error<NE_REAL_ARG_CONS>("df1", df1, "0.0 < df1 <= 1.0e6"), 0.0;
    if (df2 <= 0.0 || df2 > kLargestDegrees)
        return report.error<NE_REAL_ARG_CONS>("df2", df2, "0.0 < df2 <= 1.0e6"), 0.0;
    if (lambda < 0.0 || lambda > -2.0 * std::log(kor::kSafeSmall))
        return report.error<NE_REAL_ARG_CONS>("lambda", lambda, "0.0 <= lambda <= -2.0*log(X02AMC)"), 0.0;
    if (max_iter < 1) return report.error<NE_INT_ARG_LT>("max_iter", "1", "max_iter", max_iter), 0.0;
    if (std::isnan(f + df1 + df2 + lambda)) return report.success(), NAN;
    if (lambda == 0.0) return report.success(), kor::stats::f_tails(f, df1, df2).lower;
    // Odds beyond these are as good as 0 and infinity unless a degree of freedom is below 1e-2.
    constexpr double kSmallOdds = 1e-280, kLargeOdds = 1e280;
    const double rough = df1 / df2 * f;
    if (rough == 0.0 || rough > kLargeOdds) return report.success(), rough == 0.0 ? 0.0 : 1.0;
    const DoubleDouble odds = rough < kSmallOdds ? DoubleDouble{rough} : two_product(df1, f) / df2;
    const DoubleDouble y = 1.0 / (1.0 + odds);

    const kor::stats::MixtureSum sum = kor::stats::noncentral_beta(odds * y, y, 0.5 * df1, 0.5 * df2, lambda,
                                                                   {kor::stats::effective_tolerance(tol), max_iter});
    if (!sum.converged) return report.error<NE_CONV>("max_iter or tol"), 0.0;
    report.success();
    return sum.value;
}
