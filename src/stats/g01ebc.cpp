// g01ebc: tail probabilities of Student's t law.
#include <kor/g01.h>

#include <cmath>

#include "frame/report.hpp"
#include "stats/t_law.hpp"

double g01ebc(Integer tail, double t, double df, KorError *fail)
{
    const kor::Report report{"g01ebc", fail};
    if (!kor::stats::one_or_two_sided(tail)) return report.error<NE_BAD_PARAM>("tail"), 0.0;
    if (df < 1.0) return report.error<NE_REAL_ARG_LT>("df", "1.0", "df", df), 0.0;
    report.success();
    if (std::isnan(t) || std::isnan(df)) return NAN;

    const kor::stats::Tails two_sided = kor::stats::t_two_sided(std::fabs(t), df);
    if (tail == Kor_TwoTailSignif) return two_sided.upper;
    if (tail == Kor_TwoTailConfid) return two_sided.lower;
    const bool outer = (tail == Kor_UpperTail) == (t > 0.0); // the tail lies on the side of t
    return outer ? 0.5 * two_sided.upper : 0.5 + 0.5 * two_sided.lower;
}
