// s11abc: the inverse hyperbolic sine.
#include <kor/s11.h>

#include <cmath>

#include "special/hyperbolic.hpp"

namespace {

constexpr double kSeriesBelow = 0.25;
constexpr double kTailFrom = 16.0;
constexpr double kLogarithmBeyond = 1e9;

double arcsinh(double x)
{
    using namespace kor::special;
    if (x < kSeriesBelow) return odd_function(tables::kArcsinhSeries, x);
    if (x < kTailFrom) return tables::kArcsinh.open({x}).rounded();
    if (x > kLogarithmBeyond) return std::isinf(x) ? x : log_of_twice(x).rounded();
    return with_tail(log_of_twice(x), tables::kArcsinhTail, x);
}

} // namespace

double s11abc(double x)
{
    if (std::isnan(x)) return x;
    return std::copysign(arcsinh(std::fabs(x)), x);
}
