// s17ahc: the Airy function Bi.
#include <kor/s17.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/airy.hpp"
#include "special/bessel_limits.hpp"
#include "special/limit_text.hpp"

double s17ahc(double x, KorError *fail)
{
    using namespace kor::special;
    const kor::Report report{"s17ahc", fail};
    if (std::isnan(x)) return x;

    if (x < kSmallestAiry) {
        report.error<NE_REAL_ARG_GT>("-x", LimitText{-kSmallestAiry, "%7.2g"}.text(), "x", x);
        return 0.0;
    }
    if (x > kLargestBi) {
        report.error<NE_REAL_ARG_GT>("x", LimitText{kLargestBi, "%7.4g"}.text(), "x", x);
        return kBiAtLargest;
    }
    const double value = airy_bi(x);
    report.success();
    return value;
}
