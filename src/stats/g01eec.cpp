// g01eec: tail probabilities and density of the beta law.
#include <kor/g01.h>

#include <cmath>

#include "frame/constants.hpp"
#include "frame/report.hpp"
#include "stats/beta_law.hpp"

void g01eec(double x, double a, double b, double /*tol: full accuracy meets any*/, double *p, double *q, double *pdf,
            KorError *fail)
{
    using namespace kor::special;
    constexpr double kLargestShape = 1.0e6;
    const kor::Report report{"g01eec", fail};
    if (x < 0.0) return report.error<NE_REAL_ARG_LT>("x", "0.0", "x", x);
    if (x > 1.0) return report.error<NE_REAL_ARG_GT>("x", "1.0", "x", x);
    if (a <= 0.0) return report.error<NE_REAL_ARG_LE>("a", "0.0", "a", a);
    if (a > kLargestShape) return report.error<NE_REAL_ARG_GT>("a", "1.0e6", "a", a);
    if (b <= 0.0) return report.error<NE_REAL_ARG_LE>("b", "0.0", "b", b);
    if (b > kLargestShape) return report.error<NE_REAL_ARG_GT>("b", "1.0e6", "b", b);
    const auto give = [&](double lower, double upper, double density) { *p = lower, *q = upper, *pdf = density; };
    if (std::isnan(x) || std::isnan(a) || std::isnan(b)) return give(NAN, NAN, NAN), report.success();
    // The density at the ends is given as 0 whatever the shapes, as it always has been.
    if (x == 0.0) return give(0.0, 1.0, 0.0), report.success();
    if (x == 1.0) return give(1.0, 0.0, 0.0), report.success();

    const kor::stats::BetaLaw law{a, b};
    const DoubleDouble y = two_sum(1.0, -x);
    const kor::stats::PointOfLaw at = law.at({x}, y);
    const kor::stats::Tails tails = at.tails;
    if (std::fmin(tails.lower, tails.upper) < kor::kSafeSmall) {
        give(x >= 0.5 ? 1.0 : 0.0, x >= 0.5 ? 0.0 : 1.0, 0.0);
        return report.error<NE_PROBAB_CLOSE_TO_TAIL>();
    }
    constexpr double kNoLongerNormal = 1e-290; // a slope so small may have lost digits that the density still has
    const auto density = [&] {
        if (at.slope > kNoLongerNormal) return at.slope / (y.hi * x);
        const Exponential slope = law.slope({x}, y);
        return times_power_of_two((slope.value / y / x).rounded(), slope.exponent);
    };
    give(tails.lower, tails.upper, density());
    report.success();
}
