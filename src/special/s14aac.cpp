// s14aac: the gamma function.
#include <kor/s14.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/gamma.hpp"
#include "special/limit_text.hpp"

namespace {

constexpr double kLargestArgument = 170.0;
constexpr double kReciprocalBelow = 1e-17; // where gamma(x) is 1/x to the last bit
constexpr double kSmallestArgument = 2.23e-308;
constexpr double kValueTooLarge = 4.3e304; // stands for values beyond gamma(170) and for the poles
constexpr double kValueAtZero = 4.4843049327354256e307;

} // namespace

double s14aac(double x, KorError *fail)
{
    const kor::Report report{"s14aac", fail};
    if (std::isnan(x)) return x;

    if (x < -kLargestArgument) {
        report.error<NE_REAL_ARG_LT>("x", kor::special::LimitText{-kLargestArgument}.text(), "x", x);
        return 0.0;
    }
    if (x > kLargestArgument) {
        report.error<NE_REAL_ARG_GT>("x", kor::special::LimitText{kLargestArgument}.text(), "x", x);
        return kValueTooLarge;
    }
    if (std::fabs(x) < kSmallestArgument) {
        report.error<NE_REAL_ARG_TOO_SMALL>(x);
        return x < 0.0 ? -kValueAtZero : kValueAtZero;
    }
    if (x < 0.0 && x == std::trunc(x)) {
        report.error<NE_REAL_ARG_NEG_INT>(x);
        return kValueTooLarge;
    }
    const double value = std::fabs(x) <= kReciprocalBelow ? 1.0 / x : kor::special::gamma(x);
    report.success();
    return value;
}
