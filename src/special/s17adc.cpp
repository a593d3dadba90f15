// s17adc: the Bessel function Y1.
#include <kor/s17.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/bessel_jy.hpp"
#include "special/bessel_limits.hpp"
#include "special/limit_text.hpp"

double s17adc(double x, KorError *fail)
{
    using namespace kor::special;
    const kor::Report report{"s17adc", fail};
    if (std::isnan(x)) return x;

    if (x <= 0.0) {
        report.error<NE_REAL_ARG_LE>("x", "0.0", "x", x);
        return 0.0;
    }
    if (x > kLargestOscillating) {
        report.error<NE_REAL_ARG_GT>("x", LimitText{kLargestOscillating}.text(), "x", x);
        return bessel_amplitude(x);
    }
    if (x < kSmallestWithPole) {
        report.error<NE_REAL_ARG_TOO_SMALL>(x);
        return kY1AtPole;
    }
    const double value = bessel_y1(x);
    report.success();
    return value;
}
