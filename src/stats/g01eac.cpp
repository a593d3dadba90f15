// g01eac: tail probabilities of the standard normal law.
#include <kor/g01.h>

#include <cmath>

#include "frame/report.hpp"
#include "stats/normal_law.hpp"
#include "stats/tails.hpp"

double g01eac(Integer tail, double x, KorError *fail)
{
    constexpr double kRootHalf = 0.7071067811865476;
    const kor::Report report{"g01eac", fail};
    if (!kor::stats::one_or_two_sided(tail)) return report.error<NE_BAD_PARAM>("tail"), 0.0;
    report.success();
    switch (tail) {
    case Kor_LowerTail:
        return kor::stats::normal_lower(x);
    case Kor_UpperTail:
        return kor::stats::normal_upper(x);
    case Kor_TwoTailSignif:
        return 2.0 * kor::stats::normal_upper(std::fabs(x));
    default:
        return kor::special::erf(std::fabs(x) * kRootHalf);
    }
}
