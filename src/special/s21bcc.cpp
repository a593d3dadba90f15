// s21bcc: Carlson's elliptic integral of the second kind, RD(x, y, z).
#include <kor/s21.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/carlson.hpp"
#include "special/limit_text.hpp"

namespace {

// Between these the value neither overflows nor underflows.
constexpr double kLowerLimit = 6.3e-206; // 2 / x02alc^(2/3)
constexpr double kUpperLimit = 5.1e202;  // (0.00026 / x02akc)^(2/3)

} // namespace

double s21bcc(double x, double y, double z, KorError *fail)
{
    using namespace kor::special;
    const kor::Report report{"s21bcc", fail};
    if (std::isnan(x) || std::isnan(y) || std::isnan(z)) return NAN;

    if (x < 0.0) return report.error<NE_REAL_ARG_LT>("x", "0.0", "x", x), 0.0;
    if (y < 0.0) return report.error<NE_REAL_ARG_LT>("y", "0.0", "y", y), 0.0;
    if (x == 0.0 && y == 0.0) return report.error<NE_REAL_ARG_EQ>("x and y", "0.0", "x and y", 0.0), 0.0;
    if (x + y < kLowerLimit)
        return report.error<NE_REAL_ARG_LT>("x+y", LimitText{kLowerLimit}.text(), "x+y", x + y), 0.0;
    if (z <= 0.0) return report.error<NE_REAL_ARG_LE>("z", "0.0", "z", z), 0.0;
    if (z < kLowerLimit) return report.error<NE_REAL_ARG_LT>("z", LimitText{kLowerLimit}.text(), "z", z), 0.0;
    if (x > kUpperLimit) return report.error<NE_REAL_ARG_GT>("x", LimitText{kUpperLimit}.text(), "x", x), 0.0;
    if (y > kUpperLimit) return report.error<NE_REAL_ARG_GT>("y", LimitText{kUpperLimit}.text(), "y", y), 0.0;
    if (z > kUpperLimit) return report.error<NE_REAL_ARG_GT>("z", LimitText{kUpperLimit}.text(), "z", z), 0.0;

    const double value = carlson_rd(x, y, z);
    report.success();
    return value;
}
