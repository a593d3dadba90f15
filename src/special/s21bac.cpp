// s21bac: Carlson's degenerate elliptic integral RC(x, y).
#include <kor/s21.h>

#include <cmath>

#include "frame/constants.hpp"
#include "frame/report.hpp"
#include "special/carlson.hpp"
#include "special/limit_text.hpp"

namespace {

constexpr double kLowerLimit = 5.0 * kor::kSmallest;
constexpr double kUpperLimit = kor::kLargest / 5.0;

} // namespace

double s21bac(double x, double y, KorError *fail)
{
    using namespace kor::special;
    const kor::Report report{"s21bac", fail};
    if (std::isnan(x) || std::isnan(y)) return NAN;

    const double size_y = std::fabs(y), sum = x + size_y;
    if (x < 0.0) return report.error<NE_REAL_ARG_LT>("x", "0.0", "x", x), 0.0;
    if (y == 0.0) return report.error<NE_REAL_ARG_EQ>("y", "0.0", "y", y), 0.0;
    if (sum < kLowerLimit)
        return report.error<NE_REAL_ARG_LT>("x+|y|", LimitText{kLowerLimit}.text(), "x+|y|", sum), 0.0;
    if (x > kUpperLimit) return report.error<NE_REAL_ARG_GT>("x", LimitText{kUpperLimit}.text(), "x", x), 0.0;
    if (size_y > kUpperLimit)
        return report.error<NE_REAL_ARG_GT>("|y|", LimitText{kUpperLimit}.text(), "|y|", size_y), 0.0;

    const double value = y > 0.0 ? carlson_rc(x, y) : carlson_rc_principal(x, y);
    report.success();
    return value;
}
