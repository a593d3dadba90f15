// s11aac: the inverse hyperbolic tangent.
#include <kor/s11.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/hyperbolic.hpp"

namespace {

constexpr double kSeriesBelow = 0.25;
constexpr double kPiecesBelow = 0.875;

// Next to 1, ln((1 + x) / (1 - x)) / 2, the quotient in two doubles.
double arctanh(double x)
{
    using namespace kor::special;
    if (x < kSeriesBelow) return odd_function(tables::kArctanhSeries, x);
    if (x < kPiecesBelow) return tables::kArctanh.open({x}).rounded();
    return 0.5 * extended_log(two_sum(1.0, x) / DoubleDouble{1.0 - x}).rounded();
}

} // namespace

double s11aac(double x, KorError *fail)
{
    const kor::Report report{"s11aac", fail};
    if (std::isnan(x)) return x;

    const double size = std::fabs(x);
    if (size >= 1.0) {
        report.error<NE_REAL_ARG_GE>("|x|", "1.0", "|x|", size);
        return 0.0;
    }
    const double value = std::copysign(arctanh(size), x);
    report.success();
    return value;
}
