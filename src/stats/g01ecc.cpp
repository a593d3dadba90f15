// g01ecc: tail probabilities of the chi-squared law.
#include <kor/g01.h>

#include <cmath>

#include "frame/report.hpp"
#include "stats/gamma_law.hpp"

double g01ecc(Integer tail, double x, double df, KorError *fail)
{
    const kor::Report report{"g01ecc", fail};
    if (!kor::stats::one_sided(tail)) return report.error<NE_BAD_PARAM>("tail"), 0.0;
    if (x < 0.0) return report.error<NE_REAL_ARG_LT>("x", "0.0", "x", x), 0.0;
    if (df <= 0.0) return report.error<NE_REAL_ARG_LE>("df", "0.0", "df", df), 0.0;
    report.success();
    if (std::isnan(x) || std::isnan(df)) return NAN;
    const kor::stats::Tails tails = kor::stats::gamma_tails(0.5 * df, 0.5 * x);
    return tail == Kor_LowerTail ? tails.lower : tails.upper;
}
