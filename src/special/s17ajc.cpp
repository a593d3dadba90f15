// s17ajc: the derivative of the Airy function Ai.
#include <kor/s17.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/airy.hpp"
#include "special/bessel_limits.hpp"
#include "special/limit_text.hpp"

double s17ajc(double x, KorError *fail)
{
    using namespace kor::special;
    const kor::Report report{"s17ajc", fail};
    if (std::isnan(x)) return x;

    if (x < kSmallestAirySlope) {
        report.error<NE_REAL_ARG_GT>("-x", LimitText{-kSmallestAirySlope, "%7.2g"}.text(), "x", x);
        return 0.0;
    }
    const double value = airy_ai_slope(x);
    report.success();
    return value;
}
