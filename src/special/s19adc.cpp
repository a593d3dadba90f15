// s19adc: the Kelvin function kei.
#include <kor/s19.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/bessel_limits.hpp"
#include "special/kelvin.hpp"
#include "special/limit_text.hpp"

double s19adc(double x, KorError *fail)
{
    using namespace kor::special;
    const kor::Report report{"s19adc", fail};
    if (std::isnan(x)) return x;

    if (x <= 0.0) {
        report.error<NE_REAL_ARG_LE>("x", "0.0", "x", x);
        return 0.0;
    }
    if (x > kLargestKer) {
        report.error<NE_REAL_ARG_GT>("x", LimitText{kLargestKer, "%7.5g"}.text(), "x", x);
        return 0.0;
    }
    const double value = kelvin_kei(x);
    report.success();
    return value;
}
