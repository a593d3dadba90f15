// What g05drc has to know of a Poisson law. J. H. Ahrens and U. Dieter, Computing 25 (1980) 193-208.
#include "random/poisson_law.hpp"

#include <cmath>
#include <limits>

#include "random/elementary.hpp"
#include "random/poisson_tables.hpp"

namespace kor::random {

namespace {

constexpr double kStirlingMean = 87.0; // from here on Stirling's series stands in place of the table
constexpr double kNearCentre = 0.022;  // relative distance from the mean within which its logarithm is a series
constexpr double kSeriesEnd = 1e-15;   // terms of the series that no longer count
constexpr double kOverRootTwoPi = 0.3989422804014327; // 1 / sqrt(2 pi)

} // namespace

// The constants of the hat and of the squeezes; their numbers are those of the paper.
PoissonConstants poisson_constants(double mean)
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

double log_relative_mass(PoissonConstants &c, double k)
{
    constexpr double kImpossible = -std::numeric_limits<double>::infinity();
    if (c.mean < kStirlingMean) {
        if (c.log_scale == 0.0) c.log_scale = -c.mean - lane_log(kOverRootTwoPi * c.root);
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

} // namespace kor::random
