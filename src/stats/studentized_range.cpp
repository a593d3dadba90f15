// The studentized range as two nested integrals of analytic peaks, each for the tail that is wanted, so that small tails keep
// their digits. With z the largest of the r variables, the range is below w if the others lie between z - w and z:
// r phi(z) (P(z) - P(z - w))^(r-1), and above w if they lie below z but not all in there.
#include "stats/studentized_range.hpp"

#include <cmath>

#include "roots/zero_stepper.hpp"
#include "stats/law_of_scale.hpp"
#include "stats/normal_law.hpp"
#include "stats/peak_integral.hpp"

namespace kor::stats {

namespace {

constexpr double kFull = 1e-13, kRough = 1e-5; // relative tolerances
constexpr int kMostEvaluations = 4000;
constexpr double kNormalFrom = 1e17; // degrees of freedom: S is 1 to all digits

double density(double z) { return std::exp(-0.5 * z * z) / 2.5066282746310002; }

// P(z) - P(z - w), w > 0: from the tails that are small, and for small w by Gauss and Legendre's rule of 8 points.
double between(double z, double w)
{
    constexpr double kShort = 0.5;
    if (w < kShort) {
        constexpr double kNodes[] = {0.9602898564975363, 0.7966664774136267, 0.525532409916329, 0.1834346424956498};
        constexpr double kWeights[] = {0.10122853629037626, 0.22238103445337448, 0.31370664587788727,
                                       0.362683783378362};
        const double half = 0.5 * w, middle = z - half;
        double sum = 0.0;
        for (int i = 0; i < 4; ++i) {
            const double u = half * kNodes[i];
            sum += kWeights[i] * std::cosh(middle * u) * std::exp(-0.5 * u * u);
        }
        return 2.0 * half * density(middle) * sum;
    }
    if (z <= 0.0) return normal_lower(z) - normal_lower(z - w);
    if (z >= w) return normal_upper(z - w) - normal_upper(z);
    return 1.0 - normal_upper(z) - normal_lower(z - w);
}

// ln P(range of r > w), or ln P(<= w): the probability itself may underflow where another law makes up for it.
double log_range_tail(double w, double r, bool upper, double tol)
{
    const double others = r - 1.0;
    // ln of the probability that all the others lie within w of z, given that they lie below z.
    const auto log_within = [&](double z) {
        const double all = normal_lower(z), beyond = normal_lower(z - w) / all;
        return others * (beyond < 0.5 ? std::log1p(-beyond) : std::log(between(z, w) / all));
    };
    const auto log_share = [&](double z) { // ln of what the others contribute
        if (!upper) return others * std::log(between(z, w));
        return others * std::log(normal_lower(z)) + std::log(-std::expm1(log_within(z)));
    };
    const auto slope_at = [&](double z) {
        const double inside = between(z, w);
        if (!upper) return others * (density(z) - density(z - w)) / inside - z;
        const double all = normal_lower(z), within = log_within(z);
        const double change = density(z - w) - normal_lower(z - w) / all * density(z);
        return others * (density(z) / all - std::exp(within) * change / (inside * std::expm1(within))) - z;
    };
    constexpr double kDifference = 1e-4;
    const auto slope = [&](double z) {
        const double ahead = slope_at(z + kDifference), behind = slope_at(z - kDifference);
        return SlopeAndCurvature{0.5 * (ahead + behind), std::fmax(0.5, 0.5 * (behind - ahead) / kDifference)};
    };
    const double z0 = find_peak(upper ? -9.0 : 0.0, 38.0, 0.5 * std::fmin(w, 4.0), slope);
    const double at_peak = log_share(z0);
    const PeakIntegral integral = integrate_peak(
        [&](double h) {
            const double z = z0 + h;
            const double value = std::exp(log_share(z) - at_peak - h * (z0 + 0.5 * h));
            return value >= 0.0 ? value : 0.0; // far out, nothing of the share may be left
        },
        1.0 / std::sqrt(slope(z0).curvature), tol, kMostEvaluations);
    return std::log(r * integral.mass / 2.5066282746310002) + (at_peak - 0.5 * z0 * z0);
}

double tail_of(double q, double v, double r, bool upper, double tol)
{
    if (v >= kNormalFrom) return std::exp(log_range_tail(q, r, upper, tol));
    constexpr double kDifference = 1e-2;
    // Its own slope is known, that of the range by differences.
    const auto slope = [&](double t) {
        const double s = std::exp(t), h = kDifference / std::sqrt(1.0 + 0.01 * v);
        const double ahead = log_range_tail(q * s * std::exp(h), r, upper, kRough);
        const double here = log_range_tail(q * s, r, upper, kRough);
        const double behind = log_range_tail(q * s * std::exp(-h), r, upper, kRough);
        return SlopeAndCurvature{v * (1.0 - s * s) + 0.5 * (ahead - behind) / h,
                                 std::fmax(0.5 * v * s * s, 2.0 * v * s * s - (ahead - 2.0 * here + behind) / (h * h))};
    };
    const double t0 = find_peak(-700.0, 4.0, 0.0, slope);
    const LawOfScale scale{v, t0};
    const double w0 = q * scale.s0().hi, log_tail0 = log_range_tail(w0, r, upper, tol);
    const double factor = scale.density() * std::exp(log_tail0);
    if (!(factor > 0.0)) return 0.0;
    const PeakIntegral integral = integrate_peak(
        [&](double h) {
            const double of_scale = scale.ratio(h);
            if (!(of_scale > 0.0)) return 0.0;
            return of_scale * std::exp(log_range_tail(w0 * std::exp(h), r, upper, tol) - log_tail0);
        },
        1.0 / std::sqrt(slope(t0).curvature), tol, kMostEvaluations);
    return factor * integral.mass;
}

} // namespace

Tails studentized_range(double q, double v, double r)
{
    if (std::isinf(q)) return {1.0, 0.0};
    const bool upper = log_range_tail(q, r, false, kRough) > -0.7;
    const double tail = std::fmin(1.0, tail_of(q, v, r, upper, kFull));
    return upper ? Tails{1.0 - tail, tail} : Tails{tail, 1.0 - tail};
}

Quantile studentized_range_quantile(Target target, double v, double r)
{
    // R. E. Lund and J. R. Lund, Appl. Statist. 32 (1983) 204-210.
    const double p = target.upper ? 1.0 - target.probability : target.probability;
    double t = normal_quantile(0.5 + 0.5 * std::fmin(p, 0.9999)), share = 0.8843 - 0.2368 * t;
    constexpr double kInfinite = 120.0;
    if (v < kInfinite) {
        t += (t * t * t + t) / (4.0 * v);
        share += 1.208 * t / v - 1.214 / v;
    }
    const double start = std::fmax(1e-3, t * (share * std::log(r - 1.0) + 1.4142));

    // The zero of the logarithm of the tail against that of q: roughly at first.
    const auto residual = [&](double x, double tol) {
        const double value = std::log(tail_of(std::exp(x), v, r, target.upper, tol) / target.probability);
        return std::isfinite(value) ? value : -1e3;
    };
    const double direction = target.upper ? -1.0 : 1.0;
    constexpr double kLargestLog = 700.0;
    double x = std::log(start), fx = residual(x, kRough), y = x, fy = fx;
    for (double step = 0.25; (fx < 0.0) == (fy < 0.0); step *= 2.0) {
        if (std::fabs(y) > kLargestLog) return {std::exp(y), false};
        x = y, fx = fy;
        y = x + (fx < 0.0 ? direction : -direction) * step;
        fy = residual(y, kRough);
    }
    constexpr int kMostSteps = 100;
    constexpr Integer kAbsoluteMeasure = 1;
    double state[roots::kZeroStateSize];
    state[0] = fy;
    Integer ind = -1;
    for (int step = 0; step < kMostSteps; ++step) {
        if (roots::zero_step(x, y, fx, kRough, kAbsoluteMeasure, state, ind) != roots::ZeroStatus::evaluate) break;
        fx = residual(x, kRough);
    }

    // Then by the secant method on the tail itself.
    constexpr double kAsGoodAsTheTail = 3e-14, kDifference = 0.01;
    double slope = (residual(x + kDifference, kRough) - residual(x - kDifference, kRough)) / (2.0 * kDifference);
    fx = residual(x, kFull);
    for (int step = 0; step < kMostSteps; ++step) {
        if (std::fabs(fx) < kAsGoodAsTheTail) return {std::exp(x), true};
        const double next = x - fx / slope, f_next = residual(next, kFull);
        if (next == x) return {std::exp(x), true};
        slope = (f_next - fx) / (next - x);
        x = next, fx = f_next;
    }
    return {std::exp(x), false};
}

} // namespace kor::stats
