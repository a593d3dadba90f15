// Integrals of analytic functions with one peak, over the whole line, by the trapezoidal rule.
//
// For functions that fall off at both ends the rule converges exponentially: halving the step squares the error at least. So
// the difference of two sums tells the error of the finer one long before it reaches the last digit.
#pragma once

#include <cmath>
#include <initializer_list>

namespace kor::stats {

// First, and minus the second derivative of a logarithm.
struct SlopeAndCurvature {
    double slope, curvature;
};

// The zero of the slope of ln f between two ends, well enough to centre an integral: to a tenth of the width of the peak.
template <class Slope>
double find_peak(double low, double high, double start, const Slope &slope)
{
    double x = start;
    for (int step = 0; step < 100; ++step) {
        const auto [value, curvature] = slope(x);
        if (value * value < 0.01 * curvature) break;
        (value > 0.0 ? low : high) = x;
        x += value / curvature;
        if (!(x > low && x < high)) x = 0.5 * (low + high);
    }
    return x;
}

struct PeakIntegral {
    double mass;  // of the function divided by its value at the centre
    double mean;  // of the offset from the centre, weighted with the function
    double error; // estimate of that of mass and of mean / width, relative to mass and 1
    bool converged;
};

// ratio(offset) = f(centre + offset) / f(centre); `width` is about 1 / sqrt(-(ln f)'') there.
template <class Ratio>
PeakIntegral integrate_peak(const Ratio &ratio, double width, double tol, int max_evaluations)
{
    constexpr int kHalvings = 40;
    const double cut = 0.01 * tol;
    // For a Gaussian the error of half this step is below 1e-40, or 1e-14, and that of the whole the root of what is asked.
    constexpr double kFine = 0.75, kCoarse = 1.2, kCoarseFrom = 1e-8;
    double step = tol < kCoarseFrom ? kFine * width : kCoarse * width;
    double mass = 1.0, first = 0.0; // first: of offset / step
    int evaluations = 1;
    int extent[2] = {0, 0};
    for (const int side : {0, 1})
        for (int k = 1; evaluations < max_evaluations; ++k) {
            const double value = ratio(side == 0 ? -k * step : k * step);
            ++evaluations;
            extent[side] = k;
            mass += value;
            first += side == 0 ? -k * value : k * value;
            if (value * k <= cut * mass) break;
        }
    for (int halving = 0; halving < kHalvings; ++halving) {
        if (evaluations + extent[0] + extent[1] > max_evaluations) return {mass * step, 0.0, 1.0, false};
        step *= 0.5;
        double odd_mass = 0.0, odd_first = 0.0;
        for (int k = 1 - 2 * extent[0]; k < 2 * extent[1]; k += 2) {
            const double value = ratio(k * step);
            odd_mass += value;
            odd_first += k * value;
        }
        evaluations += extent[0] + extent[1];
        const double difference =
            std::fmax(std::fabs(odd_mass - mass), std::fabs(odd_first - 2.0 * first) * step / width);
        mass += odd_mass;
        first = 2.0 * first + odd_first;
        extent[0] *= 2;
        extent[1] *= 2;
        const double relative = difference / mass;
        if (relative * relative <= 0.1 * tol) return {mass * step, first / mass * step, relative * relative, true};
    }
    return {mass * step, first / mass * step, 1.0, false};
}

} // namespace kor::stats
