// g01efc: tail probabilities of the gamma law.
#include <kor/g01.h>

#include <cmath>

#include "frame/report.hpp"
#include "stats/gamma_law.hpp"

double g01efc(Integer tail, double g, double a, double b, KorError *fail)
{
    const kor::Report report{"g01efc", fail};
    if (!kor::stats::one_sided(tail)) return report.error<NE_BAD_PARAM>("tail"), 0.0;
    if (g < 0.0) return report.error<NE_REAL_ARG_LT>("g", "0.0", "g", g), 0.0;
    if (a <= 0.0) return report.error<NE_REAL_ARG_LE>("a", "0.0", "a", a), 0.0;
    if (b <= 0.0) return report.error<NE_REAL_ARG_LE>("b", "0.0", "b", b), 0.0;
    report.success();
    const double x = g / b;
    if (std::isnan(x) || std::isnan(a)) return NAN;
    const kor::stats::Tails tails = kor::stats::gamma_tails(a, x);
    return tail == Kor_LowerTail ? tails.lower : tails.upper;
}
