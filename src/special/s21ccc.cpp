// s21ccc: Jacobi's theta functions.
#include <kor/s21.h>

#include <cmath>

#include "frame/constants.hpp"
#include "frame/report.hpp"
#include "special/theta.hpp"

namespace {

bool is_integer(double x) { return x == std::rint(x); }

} // namespace

double s21ccc(Integer k, double x, double q, KorError *fail)
{
    const kor::Report report{"s21ccc", fail};
    if (k < 0 || k > 4) return report.error<NE_INT>("k", k, "0 <= k <= 4"), 0.0;
    if (std::isnan(x) || std::isnan(q) || std::isinf(x)) return NAN;
    if (!(q >= 0.0 && q <= 1.0)) return report.error<NE_REAL>("q", q, "0.0 <= q <= 1.0"), 0.0;

    double value = 0.0;
    if (q == 1.0) {
        // The functions are combs: zero but for peaks, whose sign alternates for k = 1 and 2.
        const bool peak = k == 2 || k == 3 ? is_integer(x) : is_integer(x - 0.5);
        if (peak && k == 1)
            return report.error<NE_REAL>("x", x, "(x - 0.5) must not be an integer when q = 1.0 and k = 1"), 0.0;
        if (peak && k == 2)
            return report.error<NE_REAL>("x", x, "x must not be an integer when q = 1.0 and k = 2"), 0.0;
        if (peak) return report.error<NE_INFINITE>(), kor::kLargest;
    } else {
        value = kor::special::theta(static_cast<int>(k), x, q);
    }
    report.success();
    return value;
}
