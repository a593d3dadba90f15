// g05drc: a Poisson deviate, for means that change from call to call.
//
// Small means: uniform numbers are multiplied until exp(-mean) is passed. Other means: ratio of uniforms under a
// table-mountain hat with quick acceptance and rejection, J. H. Ahrens and U. Dieter, Computing 25 (1980) 193-208.
#include <kor/g05.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>

#include "random/elementary.hpp"
#include "random/poisson_tables.hpp"
#include "random/state.hpp"

namespace {

using namespace kor::random;
using lane::choose;

constexpr double kSmallMean = 7.5;
constexpr double kLargestMean = 1073741823.5;
constexpr double kStirlingMean = 87.0; // from here on the exact test uses Stirling's series in place of the table
constexpr double kNearCentre = 0.022;  // relative distance from the mean within which its logarithm is a series
constexpr double kSeriesEnd = 1e-15;   // terms of the series that no longer count
constexpr double kRootTwoPi = 0.3989422804014327; // 1 / sqrt(2 pi)
enum Status : Integer { kDone = 0, kMeanNotPositive = 1, kMeanTooLarge = 2 };

// The constants of the hat and of the squeezes; their numbers are those of the paper.
PoissonConstants constants_of(double mean)
{
    PoissonConstants c{};
    c.mean = mean;
    if (mean < kSmallMean) {
        c.zero_term = lane_exp(-mean).value;
        return c;
    }
    const double root = std::sqrt(1.0 / mean), height = 1.0 + 0.0435 / mean;
    c.centre = mean + 0.5;
    c.hat_scale = 0.2 * root + 1.051 / root + 0.305;
    c.shift = 0.5 / c.hat_scale;
    c.hat_height = height;
    c.lower_height = height * (1.0 - 0.13 / mean);
    c.upper_height = height * (1.0 + 0.25 * root);
    c.lower_left = 0.75 / mean + 0.413 * root + 0.475;
    c.lower_right = 0.35 / mean + 0.162 * root + 0.475;
    c.upper_curvature = 0.552;
    c.root = root;
    return c;
}

Integer by_multiplication(State &state)
{
    Integer factors = 0;
    double product = 1.0;
    do {
        product *= uniform(state);
        ++factors;
    } while (product > state.poisson.zero_term);
    return factors - 1;
}

// log of sqrt(2 pi mean) exp(-mean) mean^k / k!; -infinity where k is out of the question.
double log_relative_mass(PoissonConstants &c, double k)
{
    constexpr double kImpossible = -std::numeric_limits<double>::infinity();
    if (c.mean < kStirlingMean) {
        if (c.log_scale == 0.0) c.log_scale = -c.mean - lane_log(kRootTwoPi * c.root);
        if (k >= static_cast<double>(kRootOfFactorial.size())) return kImpossible;
        return k > 0.0 ? c.log_scale + k * lane_log(c.mean * kRootOfFactorial[static_cast<int>(k)]) : c.log_scale;
    }
    if (k <= 0.0) return kImpossible;
    const double delta = k - c.mean, r = delta / c.mean;
    double sum = 0.0;
    if (std::fabs(r) > kNearCentre) {
        sum = delta - lane_log(k / c.mean) * (k + 0.5);
    } else {
        double a = -delta * r, b = -0.5 * r, term;
        double n = 1.0;
        do {
            term = a / (n * (n + 1.0));
            sum += term + b / n;
            a *= -r;
            b *= -r;
            n += 1.0;
        } while (std::fabs(term) > kSeriesEnd);
    }
    const double z = 1.0 / (k * k);
    return sum - (1.0 / 12.0 - (1.0 / 360.0 - z * (1.0 / 1260.0 - z / 1680.0)) * z) / k;
}

Integer by_ratio_of_uniforms(State &state)
{
    constexpr double kBeyond = 0x1p62, kLargest = std::numeric_limits<Integer>::max();
    PoissonConstants &c = state.poisson;
    for (;;) {
        const double u = 2.0 * uniform(state) - 1.0, v = 2.0 * uniform(state) - 1.0;
        if (u == 0.0 && v == 0.0) continue;
        const bool steep = std::fabs(v) < std::fabs(u);
        const double t = choose(steep, v, u) / choose(steep, u * u, v * v);
        const double y = c.centre + c.hat_scale * t;
        if (y < 0.0) continue;
        // Far out under the hat y is beyond every integer.
        const auto k = static_cast<double>(static_cast<std::int64_t>(y < kBeyond ? y : kBeyond));

        const double q = t + c.shift;
        const double lower = c.lower_height * (1.0 + choose(q <= 0.0, c.lower_left, -c.lower_right) * q);
        const double far = std::fabs(t * t * t), fall = far > 1.0 ? far : 1.0;
        const double under_hat = uniform(state) * c.hat_height;
        if (under_hat > lower * fall) {
            const double w = under_hat / fall, r = c.upper_curvature * q * q;
            if (c.upper_height - r + 0.5 * r * r < w) continue;
            if (!(lane_log(w) <= log_relative_mass(c, k))) continue;
        }
        return static_cast<Integer>(k < kLargest ? k : kLargest);
    }
}

} // namespace

Integer g05drc(double alamda, Integer *status)
{
    if (!(alamda > 0.0)) {
        std::printf(" ** On entry, ALAMDA.le.ZERO : ALAMDA = %13.5e\n", alamda);
        *status = kMeanNotPositive;
        return 0;
    }
    if (alamda > kLargestMean) {
        std::printf(" ** On entry, 2*ALAMDA.gt.MAXINT : ALAMDA = %13.5e\n", alamda);
        *status = kMeanTooLarge;
        return 0;
    }
    *status = kDone;
    State &state = g05caz();
    if (alamda != state.poisson.mean) state.poisson = constants_of(alamda);
    return alamda < kSmallMean ? by_multiplication(state) : by_ratio_of_uniforms(state);
}
