// s14aec: derivatives of the logarithm of the gamma function, digamma and polygamma, for real argument.
#include <kor/s14.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/polygamma.hpp"

double s14aec(double x, Integer k, KorError *fail)
{
    using namespace kor::special;
    const kor::Report report{"s14aec", fail};
    if (std::isnan(x)) return x;

    const auto [value, status] = s14aef_f(x, k);
    report.set_errnum(status);
    if (status == kPolygammaDone) [[likely]] {
        report.success();
        return value;
    }
    switch (status) {
    case kPolygammaOrder:
        report.error<NE_INT>("k", k, "0 <= k <= 6");
        break;
    case kPolygammaPole:
        report.error<NE_REAL>("x", x, "x must not be too close to a non-positive integer");
        break;
    case kPolygammaUnderflow:
        report.error<NE_UNDERFLOW_LIKELY>();
        break;
    case kPolygammaOverflow:
        report.error<NE_OVERFLOW_LIKELY>();
        break;
    default:
        report.error<NE_INTERNAL_ERROR>();
        break;
    }
    return value;
}
