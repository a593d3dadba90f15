// s01bac: ln(1 + x), accurate also for small x.
//
// 1 + x is formed exactly, as two doubles, and the logarithm takes both.
#include <kor/s01.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/elementary.hpp"

double s01bac(double x, KorError *fail)
{
    using namespace kor::special;
    const kor::Report report{"s01bac", fail};
    if (std::isnan(x)) return x;

    if (x <= -1.0) {
        report.error<NE_REAL_ARG_LE>("x", "-1.0", "x", x);
        return 0.0;
    }
    const double value = std::isinf(x) ? x : extended_log(two_sum(1.0, x)).rounded();
    report.success();
    return value;
}
