// g01fac: deviates of the standard normal law.
#include <kor/g01.h>

#include "frame/report.hpp"
#include "stats/normal_law.hpp"
#include "stats/tails.hpp"

double g01fac(Integer tail, double p, KorError *fail)
{
    const kor::Report report{"g01fac", fail};
    if (!kor::stats::one_or_two_sided(tail)) return report.error<NE_BAD_PARAM>("tail"), 0.0;
    if (p <= 0.0) return report.error<NE_REAL_ARG_LE>("p", "0.0", "p", p), 0.0;
    if (p >= 1.0) return report.error<NE_REAL_ARG_GE>("p", "1.0", "p", p), 0.0;
    report.success();
    switch (tail) {
    case Kor_LowerTail:
        return kor::stats::normal_quantile(p);
    case Kor_UpperTail:
        return -kor::stats::normal_quantile(p);
    case Kor_TwoTailSignif:
        return kor::stats::normal_two_sided_quantile(p);
    default:
        return kor::stats::normal_central_quantile(0.5 * p);
    }
}
