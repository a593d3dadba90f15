// s07aac: the tangent.
//
// The angle is reduced to |r| <= pi/4 with a low part; the tangent of that comes from a table and the addition theorem.
#include <kor/s07.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/elementary.hpp"
#include "special/limit_text.hpp"

namespace {

constexpr double kLargestArgument = 1e10;
constexpr double kPoleDistance = 1e-14; // relative to x: nearer to a pole no digit of the result can be trusted

} // namespace

double s07aac(double x, KorError *fail)
{
    using namespace kor::special;
    const kor::Report report{"s07aac", fail};
    if (std::isnan(x)) return x;

    if (std::fabs(x) > kLargestArgument) {
        report.error<NE_REAL_ARG_GT>("fl1", LimitText{kLargestArgument}.text(), "fl1", std::fabs(x));
        return 0.0;
    }
    const ReducedAngle angle = reduce_angle({x});
    const double nearest = kPoleDistance * std::fabs(x);
    if (angle.quadrant % 2 != 0 && std::fabs(angle.r.hi) < nearest) {
        report.error<NE_FUN_INF>(x);
        return std::copysign(1.0 / nearest, -angle.r.hi);
    }
    const double value = tangent_reduced(angle);
    report.success();
    return value;
}
