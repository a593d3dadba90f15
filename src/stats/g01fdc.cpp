// g01fdc: deviates of the F law.
#include <kor/g01.h>

#include <cmath>

#include "frame/report.hpp"
#include "stats/f_law.hpp"

double g01fdc(double p, double df1, double df2, KorError *fail)
{
    const kor::Report report{"g01fdc", fail};
    if (p < 0.0) return report.error<NE_REAL_ARG_LT>("p", "0.0", "p", p), 0.0;
    if (p >= 1.0) return report.error<NE_REAL_ARG_GE>("p", "1.0", "p", p), 0.0;
    if (df1 <= 0.0) return report.error<NE_REAL_ARG_LE>("df1", "0.0", "df1", df1), 0.0;
    if (df2 <= 0.0) return report.error<NE_REAL_ARG_LE>("df2", "0.0", "df2", df2), 0.0;
    if (std::isnan(p) || std::isnan(df1) || std::isnan(df2)) return report.success(), NAN;
    if (p == 0.0) return report.success(), 0.0;

    const kor::stats::Quantile f = kor::stats::f_quantile(kor::stats::target_of_lower(p), df1, df2);
    if (f.value == 0.0 || !std::isfinite(f.value)) return report.error<NE_PROBAB_CLOSE_TO_TAIL>(), 0.0;
    if (f.converged)
        report.success();
    else
        report.error<NE_SOL_NOT_CONV>();
    return f.value;
}
