// s11acc: the inverse hyperbolic cosine.
#include <kor/s11.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/hyperbolic.hpp"

namespace {

constexpr double kLogarithmBeyond = 1e9;

// ln(x + sqrt(x^2 - 1)), as ln(1 + (d + sqrt(d (d + 2)))) with d = x - 1 near 1, in two doubles.
double arccosh(double x)
{
    using namespace kor::special;
    if (x > kLogarithmBeyond) return std::isinf(x) ? x : log_of_twice(x);
    if (x == 1.0) return 0.0;
    const double d = x - 1.0;
    if (d < 1.0) return extended_log(1.0 + (d + sqrt(d * two_sum(d, 2.0)))).rounded();
    return extended_log(x + sqrt(two_square(x) - 1.0)).rounded();
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
