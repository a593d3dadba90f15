// s14bac: the incomplete gamma functions P and Q.
#include <kor/s14.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/incomplete_gamma.hpp"

namespace {

constexpr Integer kMaxSteps = 600;

} // namespace

void s14bac(double a, double x, double tol, double *p, double *q, KorError *fail)
{
    const kor::Report report{"s14bac", fail};
    if (std::isnan(a) || std::isnan(x)) {
        *p = *q = NAN;
        return;
    }
    if (a <= 0.0) return report.error<NE_REAL_ARG_LE>("a", "0.0", "a", a);
    if (x < 0.0) return report.error<NE_REAL_ARG_LT>("x", "0.0", "x", x);

    const auto result = kor::special::incomplete_gamma(a, x, tol);
    *p = result.p;
    *q = result.q;
    if (!result.converged) return report.error<NE_ALG_NOT_CONV>(kMaxSteps);
    report.success();
}
