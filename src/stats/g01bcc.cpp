// g01bcc: the upper tail of the chi-squared law with a whole number of degrees of freedom.
#include <kor/g01.h>

#include <cmath>

#include "frame/report.hpp"
#include "stats/gamma_law.hpp"

double g01bcc(double x, Integer n, KorError *fail)
{
    const kor::Report report{"g01bcc", fail};
    if (x < 0.0) return report.error<NE_REAL_ARG_LT>("x", "0.0", "x", x), 0.0;
    if (n < 1) return report.error<NE_INT_ARG_LT>("n", "1", "n", n), 0.0;
    report.success();
    return std::isnan(x) ? x : kor::stats::gamma_tails(0.5 * n, 0.5 * x).upper;
}
