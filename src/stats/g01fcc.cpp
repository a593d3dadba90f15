// g01fcc: deviates of the chi-squared law.
#include <kor/g01.h>

#include <cmath>

#include "frame/report.hpp"
#include "stats/gamma_law.hpp"

double g01fcc(double p, double df, KorError *fail)
{
    const kor::Report report{"g01fcc", fail};
    if (p < 0.0) return report.error<NE_REAL_ARG_LT>("p", "0.0", "p", p), 0.0;
    if (p >= 1.0) return report.error<NE_REAL_ARG_GE>("p", "1.0", "p", p), 0.0;
    if (df <= 0.0) return report.error<NE_REAL_ARG_LE>("df", "0.0", "df", df), 0.0;
    if (std::isnan(p) || std::isnan(df)) return report.success(), NAN;
    if (p == 0.0) return report.success(), 0.0;

    const kor::stats::Quantile half = kor::stats::gamma_quantile(0.5 * df, kor::stats::target_of_lower(p));
    if (half.value == 0.0) return report.error<NE_PROBAB_CLOSE_TO_TAIL>(), 0.0;
    if (half.converged)
        report.success();
    else
        report.error<NE_SOL_NOT_CONV>();
    return 2.0 * half.value;
}
