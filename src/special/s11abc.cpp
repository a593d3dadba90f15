// s11abc: the inverse hyperbolic sine.
#include <kor/s11.h>

#include <cmath>

#include "special/hyperbolic.hpp"

namespace {

constexpr double kSeriesBelow = 0.25;
constexpr double kLogarithmBeyond = 1e9;

// ln(x + sqrt(x^2 + 1)) in two doubles.
double arcsinh(double x)
{
    using namespace kor::special;
    if (x < kSeriesBelow) return odd_function(tables::kArcsinhSeries, x);
    if (x > kLogarithmBeyond) return std::isinf(x) ? x : log_of_twice(x);
    return extended_log(x + sqrt(1.0 + two_square(x))).rounded();
}

} // namespace

double s11abc(double x)
{
    if (std::isnan(x)) return x;
    return std::copysign(arcsinh(std::fabs(x)), x);
}
