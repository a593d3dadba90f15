// s22aac: Legendre functions and associated Legendre functions of the first kind, a sequence of degrees.
//
// P_l^m(x) = (1-x^2)^(m/2) W_l R_l(x), where R_l is 1 at x = 1 and (l+m+1) R_(l+1) = (2l+1) x R_l - (l-m) R_(l-1), which is
// stable for |x| <= 1. Near 1 the differences of the R are what is computed, from 1 - x, which is exact there.
#include <kor/s22.h>

#include <cmath>
#include <cstdlib>

#include "frame/report.hpp"
#include "special/evaluate.hpp"

namespace {

using kor::special::DoubleDouble;

constexpr Integer kUnnormalised = 1, kNormalised = 2;
constexpr Integer kLargestOrder = 27;
constexpr Integer kLargestDegree = 100;   // for order 0
constexpr Integer kLargestDegreeSum = 55; // of degree and |order| otherwise: the factorials stay in range

// R_m, R_(m+1), ..., R_nl in r[m..nl], 0 <= x <= 1.
void ratios_to_end_value(double x, Integer m, Integer nl, double r[])
{
    constexpr double kDifferencesFrom = 0.5;
    r[m] = 1.0;
    double difference = 0.0; // R_l - R_(l-1); the factor l - m takes it away in the first step
    for (Integer l = m; l < nl; ++l) {
        if (x >= kDifferencesFrom) {
            difference = ((l - m) * difference - (2 * l + 1) * (1.0 - x) * r[l]) / (l + m + 1);
            r[l + 1] = r[l] + difference;
        } else {
            const double before = l > m ? r[l - 1] : 0.0;
            r[l + 1] = ((2 * l + 1) * x * r[l] - (l - m) * before) / (l + m + 1);
        }
    }
}

// (1 - x^2)^(m/2) / (2^m m!)
DoubleDouble order_factor(double x, Integer m)
{
    using namespace kor::special;
    const DoubleDouble square = two_sum(1.0, -x) * two_sum(1.0, x);
    const DoubleDouble sine = square.hi > 0.0 ? sqrt(square) : DoubleDouble{0.0};
    DoubleDouble factor{1.0};
    for (Integer k = 1; k <= m; ++k) factor = factor * sine / (2.0 * k);
    return factor;
}

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

    for (Integer l = 0; l <= nl && l < order; ++l) p[l] = 0.0;
    if (order <= nl) {
        using namespace kor::special;
        ratios_to_end_value(std::fabs(x), order, nl, p);
        const DoubleDouble factor = order_factor(std::fabs(x), order);
        DoubleDouble growth{
            1.0}; // (l+|m|)! / (l-|m|)!: order m has it as a factor, order -m does not, the norm its root
        for (Integer k = 2; k <= 2 * order; ++k) growth = growth * k;
        for (Integer l = order; l <= nl; ++l) {
            if (l > order && order > 0) growth = growth * (l + order) / (l - order);
            DoubleDouble weight = factor;
            if (mode == kNormalised)
                weight = weight * sqrt(growth * (l + 0.5));
            else if (m > 0)
                weight = weight * growth;
            const bool odd = (l - order) % 2 != 0;
            p[l] = (weight * (odd && std::signbit(x) ? -p[l] : p[l])).rounded();
        }
    }
    if (!std::isnan(x)) report.success();
}
