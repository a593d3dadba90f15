// s10acc: the hyperbolic cosine.
#include <kor/s10.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/hyperbolic.hpp"
#include "special/limit_text.hpp"

namespace {

constexpr double kSeriesBelow = 0.5;
constexpr double kExponentialFrom = 20.0; // from here on exp(-x) is nothing beside exp(x)
constexpr double kLargestArgument = 708.0;

double cosh_of_positive(double x)
{
    using namespace kor::special;
    if (x < kSeriesBelow) return 1.0 + x * x * polynomial(tables::kCoshSeries, x * x);
    const Exponential e = extended_exp({x});
    if (x >= kExponentialFrom) return times_power_of_two(e.value.rounded(), e.exponent - 1);
    const DoubleDouble half = e.value.scaled(times_power_of_two(0.5, e.exponent));
    return half.hi + (half.lo + 0.25 / half.hi);
}

} // namespace

double s10acc(double x, KorError *fail)
{
    const kor::Report report{"s10acc", fail};
    if (std::isnan(x)) return x;

    const double size = std::fabs(x);
    if (size > kLargestArgument) {
        report.error<NE_REAL_ARG_GT>("|x|", kor::special::LimitText{kLargestArgument}.text(), "|x|", size);
        return cosh_of_positive(kLargestArgument);
    }
    const double value = cosh_of_positive(size);
    report.success();
    return value;
}
