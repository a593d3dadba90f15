// s21bbc: Carlson's elliptic integral of the first kind, RF(x, y, z).
#include <kor/s21.h>

#include <cmath>

#include "frame/constants.hpp"
#include "special/carlson.hpp"
#include "special/elliptic_limits.hpp"

namespace {

constexpr double kLowerLimit = 5.0 * kor::kSmallest;
constexpr double kUpperLimit = kor::kLargest / 5.0;

} // namespace

double s21bbc(double x, double y, double z, KorError *fail)
{
    using namespace kor::special;
    const kor::Report report{"s21bbc", fail};
    if (std::isnan(x) || std::isnan(y) || std::isnan(z)) return NAN;
    if (refuse_elliptic_arguments(report, x, y, z, kLowerLimit, kUpperLimit)) return 0.0;

    const double value = carlson_rf(x, y, z);
    report.success();
    return value;
}
