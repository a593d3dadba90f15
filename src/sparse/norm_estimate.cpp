// Estimate of the 1-norm of a matrix that is known by products alone: climbs the convex function |B x| over the unit ball of
// the 1-norm, from corner to corner, along its gradient B' sign(B x).
#include "sparse/norm_estimate.hpp"

#include <algorithm>
#include <cmath>

#include "sparse/vectors.hpp"

namespace kor::sparse {

namespace {

constexpr Integer kMostSteps = 5; // two or three are what it takes
constexpr Integer kUniform = -1;

} // namespace

void NormEstimate::begin(Integer n, double u[])
{
    wanted_ = Wanted::product;
    n_ = n;
    steps_ = 0;
    unit_ = kUniform;
    value_ = 0.0;
    std::fill_n(u, n, 1.0 / n);
}

// A last guess, which catches what cancellation may have hidden from the climb.
bool NormEstimate::ask_alternating(double u[])
{
    for (Integer i = 0; i < n_; ++i) {
        const double size = 1.0 + (n_ > 1 ? static_cast<double>(i) / (n_ - 1) : 0.0);
        u[i] = i % 2 == 0 ? size : -size;
    }
    wanted_ = Wanted::alternating;
    return true;
}

bool NormEstimate::advance(const double v[], double u[])
{
    const double norm = norm_of(Norm::one, n_, v);
    switch (wanted_) {
    case Wanted::product:
        // Written so that a NaN is taken over and ends the climb.
        if (norm <= value_ && steps_ > 0) return ask_alternating(u);
        value_ = norm;
        if (!std::isfinite(norm)) return false;
        for (Integer i = 0; i < n_; ++i) u[i] = std::copysign(1.0, v[i]);
        wanted_ = Wanted::gradient;
        return true;
    case Wanted::gradient: {
        const double *const steepest =
            std::max_element(v, v + n_, [](double x, double y) { return std::abs(x) < std::abs(y); });
        double along = 0.0; // the gradient along the present x
        if (unit_ != kUniform)
            along = v[unit_];
        else
            for (Integer i = 0; i < n_; ++i) along += v[i] / n_;
        ++steps_;
        if (!(std::abs(*steepest) > along) || steps_ == kMostSteps) return ask_alternating(u);
        unit_ = static_cast<Integer>(steepest - v);
        std::fill_n(u, n_, 0.0);
        u[unit_] = 1.0;
        wanted_ = Wanted::product;
        return true;
    }
    case Wanted::alternating:
        break;
    }
    value_ = std::max(value_, 2.0 * norm / (3.0 * n_));
    return false;
}

} // namespace kor::sparse
