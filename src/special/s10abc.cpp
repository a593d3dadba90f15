// s10abc: the hyperbolic sine.
#include <kor/s10.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/hyperbolic.hpp"
#include "special/limit_text.hpp"

namespace {

constexpr double kSeriesBelow = 1.0;
constexpr double kExponentialFrom = 20.0; // from here on exp(-x) is nothing beside exp(x)
constexpr double kLargestArgument = 708.0;

double sinh_of_positive(double x)
{
    using namespace kor::special;
    const Exponential e = extended_exp({x});
    if (x >= kExponentialFrom) return times_power_of_two(e.value.rounded(), e.exponent - 1);
    const double half_power = times_power_of_two(0.5, e.exponent);
    const DoubleDouble half = e.value.scaled(half_power);
    return half.hi + (half.lo - 0.25 / half.hi);
}

} // namespace

double s10abc(double x, KorError *fail)
{
    const kor::Report report{"s10abc", fail};
    if (std::isnan(x)) return x;

    const double size = std::fabs(x);
    if (size > kLargestArgument) {
        report.error<NE_REAL_ARG_GT>("|x|", kor::special::LimitText{kLargestArgument}.text(), "|x|", size);
        return std::copysign(sinh_of_positive(kLargestArgument), x);
    }
    const double value = size < kSeriesBelow ? kor::special::odd_function(kor::special::tables::kSinhSeries, x)
                                             : std::copysign(sinh_of_positive(size), x);
    report.success();
    return value;
}
