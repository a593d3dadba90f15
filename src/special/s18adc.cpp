// s18adc: the modified Bessel function K1.
#include <kor/s18.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/bessel_ik.hpp"
#include "special/bessel_limits.hpp"

double s18adc(double x, KorError *fail)
{
    using namespace kor::special;
    const kor::Report report{"s18adc", fail};
    if (std::isnan(x)) return x;

    if (x <= 0.0) {
        report.error<NE_REAL_ARG_LE>("x", "0.0", "x", x);
        return 0.0;
    }
    if (x < kSmallestWithPole) {
        report.error<NE_REAL_ARG_TOO_SMALL>(x);
        return kK1AtPole;
    }
    const double value = x > kLargestK ? 0.0 : bessel_k1(x);
    report.success();
    return value;
}
