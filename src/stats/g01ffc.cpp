// g01ffc: deviates of the gamma law.
#include <kor/g01.h>

#include <cmath>

#include "frame/report.hpp"
#include "stats/gamma_law.hpp"

double g01ffc(double p, double a, double b, double /*tol: full accuracy meets any*/, KorError *fail)
{
    constexpr double kLargestShape = 1.0e6;
    const kor::Report report{"g01ffc", fail};
    if (p < 0.0) return report.error<NE_REAL_ARG_LT>("p", "0.0", "p", p), 0.0;
    if (p >= 1.0) return report.error<NE_REAL_ARG_GE>("p", "1.0", "p", p), 0.0;
    if (a <= 0.0) return report.error<NE_REAL_ARG_LE>("a", "0.0", "a", a), 0.0;
    if (a > kLargestShape) return report.error<NE_REAL_ARG_GT>("a", "1.0e6", "a", a), 0.0;
    if (b <= 0.0) return report.error<NE_REAL_ARG_LE>("b", "0.0", "b", b), 0.0;
    if (std::isnan(p) || std::isnan(a) || std::isnan(b)) return report.success(), NAN;
    if (p == 0.0) return report.success(), 0.0;

    const kor::stats::Quantile x = kor::stats::gamma_quantile(a, kor::stats::target_of_lower(p));
    if (x.value == 0.0) return report.error<NE_PROBAB_CLOSE_TO_TAIL>(), 0.0;
    if (x.converged)
        report.success();
    else
        report.error<NE_ALG_NOT_CONV>(kor::stats::kMaxNewtonSteps);
    return x.value * b;
}
