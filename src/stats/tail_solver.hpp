// Quantiles of laws on the positive half-line, by Halley's method for ln(tail) as a function of s = ln(w).
//
// The logarithm of a gamma variable, and of the odds of a beta variable, has a log-concave density, and so both its tails
// are log-concave in s: from one side Newton's steps approach the root monotonically, from the other side the first step
// crosses it. Halley's correction is kept within a factor of two of them. The bracket matters only where a tail underflows.
#pragma once

#include <cmath>
#include <limits>

#include "stats/tails.hpp"

namespace kor::stats {

// The law at a point: both tails, slope = d lower / d ln(w), and bend = d ln(slope) / d ln(w).
struct PointOfLaw {
    Tails tails;
    double slope, bend;
};

// What is asked for: the w with lower tail `probability`, or with upper tail `probability`; at most 1/2 serves best.
struct Target {
    bool upper;
    double probability;
};

// The smaller of p and 1 - p, with its side; 1 - p is exact for p >= 1/2.
inline Target target_of_lower(double p) { return p <= 0.5 ? Target{false, p} : Target{true, 1.0 - p}; }

struct Quantile {
    double value;
    bool converged;
};

constexpr int kMaxNewtonSteps = 200; // none is known that takes 20

// law(w) -> PointOfLaw, for w in (0, infinity).
template <class Law>
Quantile solve_tail(const Law &law, Target target, double start)
{
    constexpr double kLast =
        2e-7; // the next residual is about the cube of this one, times a constant that two of them tell
    constexpr double kTelling = 0.5;
    constexpr double kLongestStep = 40.0;
    double low = 0.0, high = std::numeric_limits<double>::infinity();
    double w = start, last_residual = std::numeric_limits<double>::infinity();
    for (int step = 0; step < kMaxNewtonSteps; ++step) {
        const PointOfLaw at = law(w);
        const double tail = target.upper ? at.tails.upper : at.tails.lower;
        if (tail == target.probability) return {w, true};
        const bool too_small = target.upper == (tail > target.probability);
        (too_small ? low : high) = w;

        double next = 0.0;
        bool last = false;
        if (tail > 0.0 && at.slope > 0.0) {
            const double residual = std::fabs(tail / target.probability - 1.0) < 0.5
                                        ? std::log1p((tail - target.probability) / target.probability)
                                        : std::log(tail) - std::log(target.probability);
            // Newton's step, and the ratio of the second derivative to the square of the first.
            const double per_slope = tail / at.slope;
            const double curvature = (target.upper ? -at.bend : at.bend) * per_slope - 1.0;
            double change = residual * per_slope * (target.upper ? 1.0 : -1.0);
            change /= std::fmax(0.5, std::fmin(2.0, 1.0 - 0.5 * residual * curvature));
            change = std::fmax(-kLongestStep, std::fmin(kLongestStep, change));
            next = std::fabs(change) < 0.5 ? w + w * std::expm1(change) : w * std::exp(change);
            const double fall = std::fabs(residual / last_residual);
            last = std::fabs(residual) < kLast || std::fabs(change) < 0.5 * std::numeric_limits<double>::epsilon() ||
                   (last_residual < kTelling &&
                    10.0 * std::fabs(residual) * (fall * fall * fall) < std::numeric_limits<double>::epsilon());
            last_residual = std::fabs(residual);
        }
        if (last) return {next, true};
        if (!(next > low && next < high)) {
            if (low > 0.0 && std::isfinite(high))
                next = std::sqrt(low) * std::sqrt(high);
            else
                next = too_small ? 2.0 * w : 0.5 * w;
            if (next <= low || next >= high || next == 0.0) return {w, true}; // no double lies between
        }
        w = next;
    }
    return {w, false};
}

} // namespace kor::stats
