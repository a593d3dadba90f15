// s22aac: Legendre functions and associated Legendre functions of the first kind, a sequence of degrees.
//
// P_m^m = (2m-1)!! (1-x^2)^(m/2), then the three-term recurrence in the degree, which is stable for |x| <= 1.
#include <kor/s22.h>

#include <cmath>
#include <cstdlib>

#include "frame/report.hpp"

namespace {

constexpr Integer kUnnormalised = 1, kNormalised = 2;
constexpr Integer kLargestOrder = 27;
constexpr Integer kLargestDegree = 100;   // for order 0
constexpr Integer kLargestDegreeSum = 55; // of degree and |order| otherwise: the factorials stay in range

} // namespace

void s22aac(Integer mode, double x, Integer m, Integer nl, double p[], KorError *fail)
{
    const kor::Report report{"s22aac", fail};
    if (mode != kUnnormalised && mode != kNormalised) return report.error<NE_INT>("mode", mode, "mode = 1 or 2");
    if (std::fabs(x) > 1.0) return report.error<NE_REAL>("x", x, "abs(x) <= 1.0");
    if (m < -kLargestOrder || m > kLargestOrder) return report.error<NE_INT>("m", m, "abs(m) <= 27");
    if (nl < 0) return report.error<NE_INT>("nl", nl, "nl >= 0");
    const Integer order = std::abs(m);
    if (m == 0 && nl > kLargestDegree) return report.error<NE_INT>("nl", nl, "nl <= 100 when m = 0");
    if (m != 0 && nl > kLargestDegreeSum - order)
        return report.error<NE_INT>("nl", nl, "nl <= 55 - ABS(m) when m != 0");

    // Unnormalised with order |m|; nothing below the order.
    for (Integer l = 0; l <= nl && l < order; ++l) p[l] = 0.0;
    if (order <= nl) {
        const double sine = std::sqrt((1.0 - x) * (1.0 + x));
        double diagonal = 1.0;
        for (Integer k = 1; k <= order; ++k) diagonal *= (2 * k - 1) * sine;
        p[order] = diagonal;
        if (order < nl) p[order + 1] = (2 * order + 1) * x * diagonal;
        for (Integer l = order + 2; l <= nl; ++l)
            p[l] = ((2 * l - 1) * x * p[l - 1] - (l + order - 1) * p[l - 2]) / (l - order);

        // (l-|m|)! / (l+|m|)!, which a negative order takes as a factor and the norm under a square root.
        double ratio = 1.0;
        for (Integer k = 1; k <= 2 * order; ++k) ratio /= k;
        for (Integer l = order; l <= nl; ++l) {
            if (l > order) ratio = ratio * (l - order) / (l + order);
            if (mode == kNormalised)
                p[l] *= std::sqrt((l + 0.5) * ratio);
            else if (m < 0)
                p[l] *= ratio;
        }
    }
    if (!std::isnan(x)) report.success();
}
