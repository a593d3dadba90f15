// s18aec: the modified Bessel function I0.
#include <kor/s18.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/bessel_ik.hpp"
#include "special/bessel_limits.hpp"
#include "special/limit_text.hpp"

double s18aec(double x, KorError *fail)
{
    using namespace kor::special;
    const kor::Report report{"s18aec", fail};
    if (std::isnan(x)) return x;

    if (std::fabs(x) > kLargestI) {
        report.error<NE_REAL_ARG_GT>("|x|", LimitText{kLargestI, "%7.4g"}.text(), "x", x);
        return kIAtLargest;
    }
    const double value = bessel_i0(x);
    report.success();
    return value;
}
