// s13aac: the exponential integral E1, the integral of exp(-t)/t from x to infinity.
#include <kor/s13.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/elementary.hpp"
#include "special/integral_tables.hpp"

namespace {

constexpr double kLogarithmBelow = 0.0625, kScaledFrom = 1.0;
constexpr double kZeroBeyond = 708.3;

double exponential_integral(double x)
{
    using namespace kor::special;
    if (x >= kScaledFrom) {
        const OpenExponential e = open_exp({-x});
        return times_power_of_two(tables::kScaledE1.times_split(e.value, {x}).rounded(), e.exponent);
    }
    if (x < kLogarithmBelow) {
        const OpenSum log = open_log(x), rest = tables::kE1LessLog.open(x);
        const DoubleDouble sum = fast_two_sum(-log.large, rest.large);
        return sum.hi + (sum.lo + (rest.small - log.small));
    }
    return tables::kE1.open({x}).rounded();
}

} // namespace

double s13aac(double x, KorError *fail)
{
    const kor::Report report{"s13aac", fail};
    if (!(x > 0.0)) {
        if (std::isnan(x)) return x;
        report.error<NE_REAL_ARG_LE>("x", "0.0", "x", x);
        return 0.0;
    }
    const double value = x > kZeroBeyond ? 0.0 : exponential_integral(x);
    report.success();
    return value;
}
