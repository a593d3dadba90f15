// s10aac: the hyperbolic tangent.
#include <kor/s10.h>

#include <cmath>

#include "special/hyperbolic.hpp"

namespace {

constexpr double kSeriesBelow = 0.5;
constexpr double kPiecesBelow = 4.0;
constexpr double kOneBeyond = 18.5;

} // namespace

double s10aac(double x)
{
    using namespace kor::special;
    const double size = std::fabs(x);
    if (size < kSeriesBelow) return odd_function(tables::kTanhSeries, x);
    if (size < kPiecesBelow) return std::copysign(tables::kTanh.open({size}).rounded(), x);
    if (size <= kOneBeyond) return std::copysign(1.0 - 2.0 / (std::exp(2.0 * size) + 1.0), x);
    return std::isnan(x) ? x : std::copysign(1.0, x);
}
