// The largest singular value of a growing tridiagonal matrix: bisection on the signs of the Sturm sequence, from a bracket
// around the last estimate, which a further row can only raise.
// W. Barth, R. S. Martin and J. H. Wilkinson, Numer. Math. 9 (1967) 386-393.
#include "sparse/largest_singular_value.hpp"

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"

namespace kor::sparse {

namespace {

constexpr double kLogOfTwo = 0.6931471805599453;
// In units of the tolerance: how narrow a bracket must become, and how far it reaches beyond the last estimate.
constexpr double kWidth = 0.25, kReach = 0.0625;

} // namespace

void LargestSingularValue::begin(double storage[], Integer most_steps, double tolerance)
{
    diagonal_ = storage;
    squares_ = storage + most_steps;
    most_steps_ = most_steps;
    tolerance_ = tolerance;
    reset();
}

void LargestSingularValue::reset()
{
    steps_ = 0;
    value_ = change_ = 0.0;
    final_ = false;
}

// The number of eigenvalues less than t: that of the negative pivots of T - t.
Integer LargestSingularValue::count_below(double t) const
{
    Integer count = 0;
    double pivot = 1.0;
    for (Integer i = 0; i < steps_; ++i) {
        pivot = diagonal_[i] - t - (i > 0 ? squares_[i] / pivot : 0.0);
        if (pivot == 0.0) pivot = kPrecision * (std::sqrt(squares_[i]) + std::abs(t)) + kSmallest;
        count += pivot < 0.0;
    }
    return count;
}

// Are all singular values less than t?
bool LargestSingularValue::exceeds_all(double t) const { return count_below(t) == steps_ && count_below(-t) == 0; }

double LargestSingularValue::gershgorin_bound() const
{
    double bound = 0.0;
    for (Integer i = 0; i < steps_; ++i)
        bound = std::max(bound, std::abs(diagonal_[i]) + std::sqrt(squares_[i]) +
                                    (i + 1 < steps_ ? std::sqrt(squares_[i + 1]) : 0.0));
    return bound;
}

void LargestSingularValue::add(double diagonal, double squared_off_diagonal)
{
    if (final_) return;
    if (!std::isfinite(diagonal) || !std::isfinite(squared_off_diagonal)) {
        final_ = true;
        return;
    }
    diagonal_[steps_] = diagonal;
    squares_[steps_] = steps_ > 0 ? squared_off_diagonal : 0.0;
    ++steps_;

    double low = value_ * (1.0 - kReach * tolerance_), high = value_ * (1.0 + kReach * tolerance_);
    if (!exceeds_all(high)) {
        low = high;
        high = std::max(high, gershgorin_bound() * (1.0 + kReach * tolerance_));
    }
    const double enough = kWidth * tolerance_ * high;
    const double halvings = enough > 0.0 ? std::ceil(std::log((high - low) / enough) / kLogOfTwo) : 0.0;
    for (double step = 0.0; step < halvings; ++step) {
        const double middle = 0.5 * (low + high);
        (exceeds_all(middle) ? high : low) = middle;
    }
    const double old = value_;
    value_ = 0.5 * (low + high);
    change_ = value_ > 0.0 ? std::abs(value_ - old) / value_ : 0.0;
    final_ = (steps_ > 1 && change_ <= tolerance_) || steps_ == most_steps_;
}

} // namespace kor::sparse
