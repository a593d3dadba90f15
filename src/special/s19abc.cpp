// s19abc: the Kelvin function bei.
#include <kor/s19.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/bessel_limits.hpp"
#include "special/kelvin.hpp"
#include "special/limit_text.hpp"

double s19abc(double x, KorError *fail)
{
    using namespace kor::special;
    const kor::Report report{"s19abc", fail};
    if (std::isnan(x)) return x;

    if (std::fabs(x) >= kLargestBer) {
        report.error<NE_REAL_ARG_GT>("|x|", LimitText{kLargestBer, "%7.5g"}.text(), "x", x);
        return 0.0;
    }
    const double value = kelvin_bei(x);
    report.success();
    return value;
}
