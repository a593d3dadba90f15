// s11acc: the inverse hyperbolic cosine.
#include <kor/s11.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/hyperbolic.hpp"

namespace {

constexpr double kRootUpTo = 1.5;
constexpr double kTailFrom = 16.0;
constexpr double kLogarithmBeyond = 1e9;

// Near 1 it behaves like sqrt(2 d), d = x - 1.
double arccosh(double x)
{
    using namespace kor::special;
    if (x < kRootUpTo) {
        const double d = x - 1.0; // exact
        return d > 0.0 ? tables::kArccoshNearOne.times(sqrt(DoubleDouble{d}), d).rounded() : 0.0;
    }
    if (x < kTailFrom) return tables::kArccosh.open({x}).rounded();
    if (x > kLogarithmBeyond) return std::isinf(x) ? x : log_of_twice(x).rounded();
    return with_tail(log_of_twice(x), tables::kArccoshTail, x);
}

} // namespace

double s11acc(double x, KorError *fail)
{
    const kor::Report report{"s11acc", fail};
    if (std::isnan(x)) return x;

    if (x < 1.0) {
        report.error<NE_REAL_ARG_LT>("x", "1.0", "x", x);
        return 0.0;
    }
    const double value = arccosh(x);
    report.success();
    return value;
}
