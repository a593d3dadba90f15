// g01cec: the deviate of a lower tail probability of the standard normal law.
#include <kor/g01.h>

#include "frame/report.hpp"
#include "stats/normal_law.hpp"

double g01cec(double p, KorError *fail)
{
    const kor::Report report{"g01cec", fail};
    if (p <= 0.0) return report.error<NE_REAL_ARG_LE>("p", "0.0", "p", p), 0.0;
    if (p >= 1.0) return report.error<NE_REAL_ARG_GE>("p", "1.0", "p", p), 0.0;
    report.success();
    return kor::stats::normal_quantile(p);
}
