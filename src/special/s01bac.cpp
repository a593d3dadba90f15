// s01bac: ln(1 + x), accurate also for small x.
//
// 1 + x enters the reduction of the logarithm as two numbers, and so loses nothing.
#include <kor/s01.h>

#include <cmath>

#include "frame/constants.hpp"
#include "frame/report.hpp"
#include "special/elementary.hpp"

namespace {

constexpr double kLarge = 0x1p36; // from here on 1/x^2 is nothing beside ln x

// ln(1 + x) = ln x + 1/x - ...
double log_one_plus_large(double x)
{
    if (x > kor::kLargest) return x;
    const kor::special::OpenSum log = kor::special::open_log(x);
    return log.large + (log.small + 1.0 / x);
}

} // namespace

double s01bac(double x, KorError *fail)
{
    using namespace kor::special;
    const kor::Report report{"s01bac", fail};
    if (!(x > -1.0)) {
        if (std::isnan(x)) return x;
        report.error<NE_REAL_ARG_LE>("x", "-1.0", "x", x);
        return 0.0;
    }
    const double value = x < kLarge ? open_log_one_plus(x).rounded() : log_one_plus_large(x);
    report.success();
    return value;
}
