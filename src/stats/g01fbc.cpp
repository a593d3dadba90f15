// g01fbc: deviates of Student's t law.
#include <kor/g01.h>

#include <cmath>

#include "frame/report.hpp"
#include "stats/t_law.hpp"

double g01fbc(Integer tail, double p, double df, KorError *fail)
{
    const kor::Report report{"g01fbc", fail};
    if (!kor::stats::one_or_two_sided(tail)) return report.error<NE_BAD_PARAM>("tail"), 0.0;
    if (p <= 0.0) return report.error<NE_REAL_ARG_LE>("p", "0.0", "p", p), 0.0;
    if (p >= 1.0) return report.error<NE_REAL_ARG_GE>("p", "1.0", "p", p), 0.0;
    if (df < 1.0) return report.error<NE_REAL_ARG_LT>("df", "1.0", "df", df), 0.0;
    if (std::isnan(p) || std::isnan(df)) return report.success(), NAN;

    // The two-sided probability that is the smaller: within (-t, t) near the median, outside it in the tails. Doubling,
    // 1/2 - p and 1 - p are exact where they are used.
    constexpr double kNearMedian = 0.25;
    kor::stats::Target target;
    double sign = 1.0;
    if (tail == Kor_TwoTailSignif) {
        target = p <= 0.5 ? kor::stats::Target{true, p} : kor::stats::Target{false, 1.0 - p};
    } else if (tail == Kor_TwoTailConfid) {
        target = kor::stats::target_of_lower(p);
    } else {
        if (p == 0.5) return report.success(), 0.0;
        sign = (tail == Kor_UpperTail) == (p < 0.5) ? 1.0 : -1.0;
        const double outside = p < 0.5 ? p : 1.0 - p;
        target = outside < kNearMedian ? kor::stats::Target{true, 2.0 * outside}
                                       : kor::stats::Target{false, 2.0 * (0.5 - outside)};
    }
    const kor::stats::Quantile t = kor::stats::t_two_sided_quantile(target, df);
    if (t.converged)
        report.success();
    else
        report.error<NE_SOL_NOT_CONV>();
    return sign * t.value;
}
