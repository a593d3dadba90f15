// s17aec: the Bessel function J0.
#include <kor/s17.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/bessel_jy.hpp"
#include "special/bessel_limits.hpp"
#include "special/limit_text.hpp"

double s17aec(double x, KorError *fail)
{
    using namespace kor::special;
    const kor::Report report{"s17aec", fail};
    if (std::isnan(x)) return x;

    if (std::fabs(x) > kLargestOscillating) {
        report.error<NE_REAL_ARG_GT>("|x|", LimitText{kLargestOscillating}.text(), "x", x);
        return bessel_amplitude(std::fabs(x));
    }
    const double value = bessel_j0(x);
    report.success();
    return value;
}
