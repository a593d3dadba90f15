// Non-central t as an integral of positive terms: of P(Z + delta <= t s) over the law of s, or of P(t S >= z + delta) over that
// of z. Either tail comes out relative to itself, and only the smaller one is integrated.
#include "stats/noncentral_t.hpp"

#include <cmath>

#include "frame/constants.hpp"
#include "special/erf.hpp"
#include "special/incomplete_gamma.hpp"
#include "stats/gamma_law.hpp"
#include "stats/law_of_scale.hpp"
#include "stats/normal_law.hpp"
#include "stats/peak_integral.hpp"

namespace kor::stats {

namespace {

using namespace special;

constexpr double kRootTwoPi = 2.5066282746310002;
constexpr double kFarthest = 38.5; // beyond it normal tails underflow

// Q(x), the low part of x to first order; it counts only where the tail is steep.
double upper_tail(DoubleDouble x)
{
    const double tail = normal_upper(x.hi);
    return x.hi > 1.0 ? tail * (1.0 - normal_hazard(x.hi) * x.lo) : tail;
}

// The tail in question, Q(side (t s - delta)) over the law of v = ln(s), whose density is ~ exp(-df (exp(2v) - 1 - 2v) / 2).
PeakIntegral over_scale(double t, double df, double delta, double side, MixtureLimits limits, double &factor)
{
    const auto slope = [&](double v) {
        const double s = std::exp(v), ts = t * s, x = side * (ts - delta), m = normal_hazard(x);
        const double of_scale = 2.0 * df * s * s;
        const double bend = x < 1e3 ? m * (m - x) : 1.0;
        const double curvature = of_scale + side * ts * m + ts * ts * bend;
        return SlopeAndCurvature{df * (1.0 - s * s) - side * ts * m, std::fmax(curvature, 0.5 * of_scale)};
    };
    const double far = 700.0 / df + 2.0;
    // Where t s is about as large as what it is compared with.
    const double start = std::fmin(0.0, std::log((std::fabs(delta) + std::sqrt(df)) / t));
    const double v0 = find_peak(-far, 4.0, side > 0.0 ? start : 0.0, slope);
    const double width = 1.0 / std::sqrt(slope(v0).curvature);

    const LawOfScale scale{df, v0};
    const DoubleDouble u0 = (t * scale.s0() - delta).scaled(side);
    const double tail0 = upper_tail(u0), ts0 = t * scale.s0().hi;
    factor = scale.density() * tail0;
    if (!(factor > 0.0)) return {0.0, 0.0, 0.0, true};
    return integrate_peak(
        [&](double h) {
            DoubleDouble u = two_sum(u0.hi, side * (ts0 * std::expm1(h)));
            u.lo += u0.lo;
            return scale.ratio(h) * (upper_tail(u) / tail0);
        },
        width, limits.tol, limits.max_terms);
}

// The same over the law of z, for delta so large that z + delta stays positive wherever it counts.
PeakIntegral over_normal(double t, double df, double delta, bool upper, MixtureLimits limits, double &factor)
{
    const double a = 0.5 * df;
    struct Point {
        double tail, slope; // of the chi-squared law, and that of its logarithm against the logarithm of x
    };
    const auto chi = [&](DoubleDouble z) {
        const DoubleDouble x = a * square((z + delta) / t);
        const Tails tails = gamma_tails(a, x.hi);
        const double density = a * extended_poisson_term(a, x.hi).rounded();
        const double tail = upper ? tails.lower : tails.upper;
        const double slope = tail > 0.0 ? (upper ? density : -density) / tail : 0.0;
        return Point{tail * (1.0 + slope * x.lo / x.hi), slope};
    };
    const auto slope = [&](double z) {
        const double of_log = 2.0 / (z + delta);
        const Point at = chi({z});
        const double r = at.slope * of_log;
        // The second derivative of ln(tail) is at most about minus the square of the first, far out.
        return SlopeAndCurvature{r - z, 1.0 + 0.5 * r * r};
    };
    const double z0 = find_peak(-kFarthest, kFarthest, 0.0, slope);
    const double tail0 = chi({z0}).tail;
    factor = std::exp(-0.5 * z0 * z0) / kRootTwoPi * tail0;
    if (!(factor > 0.0)) return {0.0, 0.0, 0.0, true};
    return integrate_peak(
        [&](double h) {
            const DoubleDouble z = two_sum(z0, h);
            if (std::fabs(z.hi) > kFarthest) return 0.0;
            return std::exp(-h * (z0 + 0.5 * h)) * (chi(z).tail / tail0);
        },
        1.0 / std::sqrt(slope(z0).curvature), limits.tol, limits.max_terms);
}

} // namespace

NoncentralTails noncentral_t(double t, double df, double delta, MixtureLimits limits)
{
    if (t < 0.0) {
        const NoncentralTails mirrored = noncentral_t(-t, df, -delta, limits);
        return {{mirrored.tails.upper, mirrored.tails.lower}, mirrored.converged};
    }
    // So far out the upper tail is a power of t.
    constexpr double kPowerFrom = 1e100;
    if (t > kPowerFrom) {
        const NoncentralTails there = noncentral_t(kPowerFrom, df, delta, limits);
        const double tail = there.tails.upper * std::pow(t / kPowerFrom, -df);
        return {{1.0 - tail, tail}, there.converged};
    }
    // By the normal approximation to Z - t S.
    const bool upper = t * (1.0 - 0.25 / df) > delta;
    double factor = 0.0;
    const bool steep = std::fabs(delta) > kFarthest && t > std::sqrt(2.0 * df);
    const PeakIntegral integral = steep && delta > 0.0 ? over_normal(t, df, delta, upper, limits, factor)
                                                       : over_scale(t, df, delta, upper ? 1.0 : -1.0, limits, factor);
    const double tail = std::fmin(1.0, factor * integral.mass);
    return {upper ? Tails{1.0 - tail, tail} : Tails{tail, 1.0 - tail}, integral.converged};
}

} // namespace kor::stats
