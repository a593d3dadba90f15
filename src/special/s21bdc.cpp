// s21bdc: Carlson's elliptic integral of the third kind, RJ(x, y, z, r), with Cauchy's principal value for r < 0.
#include <kor/s21.h>

#include <cmath>

#include "special/carlson.hpp"
#include "special/elliptic_limits.hpp"

namespace {

// Between these the value neither overflows nor underflows.
constexpr double kLowerLimit = 4.9e-103; // (5 x02akc)^(1/3)
constexpr double kUpperLimit = 9.9e101;  // 0.3 (x02alc / 5)^(1/3)

} // namespace

double s21bdc(double x, double y, double z, double r, KorError *fail)
{
    using namespace kor::special;
    const kor::Report report{"s21bdc", fail};
    if (std::isnan(x) || std::isnan(y) || std::isnan(z) || std::isnan(r)) return NAN;

    if (refuse_elliptic_arguments(report, x, y, z, kLowerLimit, kUpperLimit)) return 0.0;
    const double size = std::fabs(r);
    if (r == 0.0) return report.error<NE_REAL_ARG_EQ>("r", "0.0", "r", r), 0.0;
    if (size < kLowerLimit) return report.error<NE_REAL_ARG_LT>("|r|", LimitText{kLowerLimit}.text(), "|r|", size), 0.0;
    if (size > kUpperLimit) return report.error<NE_REAL_ARG_GT>("|r|", LimitText{kUpperLimit}.text(), "|r|", size), 0.0;

    const double value = r > 0.0 ? carlson_rj(x, y, z, r) : carlson_rj_principal(x, y, z, r);
    report.success();
    return value;
}
