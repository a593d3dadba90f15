// g01hac: lower tail probabilities of the bivariate normal law.
#include <kor/g01.h>

#include "frame/report.hpp"
#include "stats/bivariate_normal.hpp"

double g01hac(double x, double y, double rho, KorError *fail)
{
    const kor::Report report{"g01hac", fail};
    if (rho < -1.0 || rho > 1.0) return report.error<NE_REAL_ARG_CONS>("rho", rho, "-1.0 <= rho <= 1.0"), 0.0;
    report.success();
    return kor::stats::bivariate_normal_lower(x, y, rho);
}
