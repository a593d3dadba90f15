// g01gbc: lower tail probabilities of the non-central t law.
#include <kor/g01.h>

#include <cmath>

#include "frame/report.hpp"
#include "stats/noncentral_t.hpp"
#include "stats/t_law.hpp"

double g01gbc(double t, double df, double delta, double tol, Integer max_iter, KorError *fail)
{
    const kor::Report report{"g01gbc", fail};
    if (df < 1.0) return report.error<NE_REAL_ARG_LT>("df", "1.0", "df", df), 0.0;
    if (max_iter < 1) return report.error<NE_INT_ARG_LT>("max_iter", "1", "max_iter", max_iter), 0.0;
    if (std::isnan(t) || std::isnan(df) || std::isnan(delta)) return report.success(), NAN;
    if (std::isinf(t)) return report.success(), t > 0.0 ? 1.0 : 0.0;
    if (std::isinf(delta)) return report.success(), delta > 0.0 ? 0.0 : 1.0;
    if (delta == 0.0) {
        const kor::stats::Tails two_sided = kor::stats::t_two_sided(std::fabs(t), df);
        return report.success(), t < 0.0 ? 0.5 * two_sided.upper : 0.5 + 0.5 * two_sided.lower;
    }
    const kor::stats::NoncentralTails result =
        kor::stats::noncentral_t(t, df, delta, {kor::stats::effective_tolerance(tol), max_iter});
    if (!result.converged) return report.error<NE_CONV>("max_iter or tol"), 0.0;
    report.success();
    return result.tails.lower;
}
