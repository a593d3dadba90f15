// g01gcc: lower tail probabilities of the non-central chi-squared law.
#include <kor/g01.h>

#include <cmath>

#include "frame/report.hpp"
#include "stats/gamma_law.hpp"
#include "stats/noncentral_laws.hpp"

double g01gcc(double x, double df, double lambda, double tol, Integer max_iter, KorError *fail)
{
    const kor::Report report{"g01gcc", fail};
    if (x < 0.0) return report.error<NE_REAL_ARG_LT>("x", "0.0", "x", x), 0.0;
    if (df < 0.0) return report.error<NE_REAL_ARG_LT>("df", "0.0", "df", df), 0.0;
    if (lambda < 0.0) return report.error<NE_REAL_ARG_LT>("lambda", "0.0", "lambda", lambda), 0.0;
    if (lambda == 0.0 && df == 0.0)
        return report.error<NE_2_REAL_ARG_CONS>("lambda", lambda, "df", df, "lambda > 0.0 if df = 0.0"), 0.0;
    if (max_iter < 1) return report.error<NE_INT_ARG_LT>("max_iter", "1", "max_iter", max_iter), 0.0;
    if (std::isnan(x + df + lambda)) return report.success(), NAN;
    if (x == 0.0) return report.success(), df == 0.0 ? std::exp(-0.5 * lambda) : 0.0;
    if (lambda == 0.0) return report.success(), kor::stats::gamma_tails(0.5 * df, 0.5 * x).lower;
    if (std::isinf(x)) return report.success(), 1.0;
    if (std::isinf(df) || std::isinf(lambda)) return report.success(), 0.0;

    const kor::stats::MixtureSum sum =
        kor::stats::noncentral_chi_squared(x, df, lambda, {kor::stats::effective_tolerance(tol), max_iter});
    if (!sum.converged) return report.error<NE_CONV>("max_iter or tol"), 0.0;
    report.success();
    return sum.value;
}
