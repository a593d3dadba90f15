// g01edc: tail probabilities of the F law.
#include <kor/g01.h>

#include <cmath>

#include "frame/report.hpp"
#include "stats/f_law.hpp"

double g01edc(Integer tail, double f, double df1, double df2, KorError *fail)
{
    const kor::Report report{"g01edc", fail};
    if (!kor::stats::one_sided(tail)) return report.error<NE_BAD_PARAM>("tail"), 0.0;
    if (df1 <= 0.0) return report.error<NE_REAL_ARG_LE>("df1", "0.0", "df1", df1), 0.0;
    if (df2 <= 0.0) return report.error<NE_REAL_ARG_LE>("df2", "0.0", "df2", df2), 0.0;
    if (f < 0.0) return report.error<NE_REAL_ARG_LT>("f", "0.0", "f", f), 0.0;
    report.success();
    if (std::isnan(f) || std::isnan(df1) || std::isnan(df2)) return NAN;
    const kor::stats::Tails tails = kor::stats::f_tails(f, df1, df2);
    return tail == Kor_LowerTail ? tails.lower : tails.upper;
}
