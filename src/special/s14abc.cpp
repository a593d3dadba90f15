// s14abc: the logarithm of the gamma function.
#include <kor/s14.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/gamma.hpp"
#include "special/limit_text.hpp"

namespace {

constexpr double kLargestArgument = 2.55e305;
constexpr double kValueTooLarge = 1.79e308;
constexpr double kLogarithmBelow = 1e-15; // where ln gamma(x) is -ln x

} // namespace

double s14abc(double x, KorError *fail)
{
    const kor::Report report{"s14abc", fail};
    if (std::isnan(x)) return x;

    if (x <= 0.0) {
        report.error<NE_REAL_ARG_LE>("x", "0.0", "x", x);
        return 0.0;
    }
    if (x > kLargestArgument) {
        report.error<NE_REAL_ARG_GT>("x", kor::special::LimitText{kLargestArgument, "%9.2g"}.text(), "x", x);
        return kValueTooLarge;
    }
    const double value = x <= kLogarithmBelow ? -std::log(x) : kor::special::log_gamma(x);
    report.success();
    return value;
}
