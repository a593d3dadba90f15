// Boundary value problems: along a path of problems that leads from an easy one to the one in question.
#include "ode/boundary_solver.hpp"

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"

namespace kor::ode {

namespace {

constexpr int kPathNewton = 12; // steps of the Newton iteration at a new point of the path
constexpr int kPathSteps = 500;
constexpr double kCreeping = 1e-5; // steps so short get nowhere
constexpr double kCrude = 1e-3;    // relative accuracy on the way
constexpr double kParameterDifference = 1e-6;
// The path from mild slopes to the true ones: where it begins, and its steps in the logarithm.
constexpr double kMildStiffness = 5.0;
constexpr double kLeastStrength = 1e-12, kMostStrength = 0.1;
constexpr double kFirstStrengthening = 1.0;
constexpr double kMostStrengthening = 2.0, kLeastStrengthening = 0.02;

} // namespace

void BoundarySolver::set_parameter(double value)
{
    parameter_ = value;
    if (path_ == Path::eps)
        eps_ = value;
    else
        strength_ = std::exp(value);
}

// The derivative of the solution by the parameter, into tangent_. False when nothing depends on it.
bool BoundarySolver::tangent()
{
    const std::ptrdiff_t n = n_;
    double greatest = 0.0;
    const auto note = [&greatest](double value) { greatest = std::max(greatest, std::fabs(value)); };
    if (path_ == Path::eps && problem_->slope_by_eps != nullptr) {
        for (Integer i = 0; i <= intervals_; ++i) (*problem_->slope_by_eps)(x_[i], eps_, y(i), bar_ + n * i);
        for (Integer i = 0; i < intervals_; ++i) {
            const double h = x_[i + 1] - x_[i];
            for (Integer c = 0; c < n_; ++c)
                shifted_[c] = middle_value(h, y(i)[c], y(i + 1)[c], f_[n * i + c], f_[n * (i + 1) + c]);
            (*problem_->slope_by_eps)(x_[i] + 0.5 * h, eps_, shifted_, nodes_);
            for (Integer c = 0; c < n_; ++c) {
                double &row = rows_[n * i + c];
                row = h / 6.0 * (bar_[n * i + c] + 4.0 * nodes_[c] + bar_[n * (i + 1) + c]);
                note(row);
            }
        }
        (*problem_->conditions_by_eps)(eps_, y(0), y(intervals_), conditions_);
        for (Integer c = 0; c < n_; ++c) {
            conditions_[c] = -conditions_[c];
            note(conditions_[c]);
        }
    } else {
        const double here = parameter_;
        residual(y_);
        std::copy_n(rows_, n * intervals_, bar_);
        std::copy_n(conditions_, n_, scales_);
        set_parameter(here + kParameterDifference);
        const double step = parameter_ - here;
        residual(y_);
        set_parameter(here);
        for (std::ptrdiff_t i = 0; i < n * intervals_; ++i) {
            rows_[i] = (rows_[i] - bar_[i]) / step;
            note(rows_[i]);
        }
        for (Integer c = 0; c < n_; ++c) {
            conditions_[c] = (conditions_[c] - scales_[c]) / step;
            note(conditions_[c]);
        }
    }
    system_.solve(conditions_, rows_, tangent_);
    if (!std::isfinite(norm(tangent_))) std::fill_n(tangent_, size(), 0.0);
    return greatest > 0.0;
}

// A derivative may vanish at one point; here are two.
bool BoundarySolver::depends_on_parameter(double other)
{
    const double here = parameter_;
    residual(y_);
    std::copy_n(rows_, std::ptrdiff_t{n_} * intervals_, bar_);
    std::copy_n(conditions_, n_, scales_);
    set_parameter(other);
    residual(y_);
    set_parameter(here);
    return !std::equal(rows_, rows_ + std::ptrdiff_t{n_} * intervals_, bar_) ||
           !std::equal(conditions_, conditions_ + n_, scales_);
}

// Along a path of problems whose parameter goes from `start` to `end`. `step` is the first step, and becomes the last one.
BoundaryStatus BoundarySolver::follow(Path path, double start, double end, double tol, double *step)
{
    path_ = path;
    set_parameter(start);
    const auto crude = [&] {
        find_scales();
        return std::max(tol, kCrude * *std::max_element(scales_, scales_ + n_));
    };
    const auto hopeless = [](BoundaryStatus status) {
        return status == BoundaryStatus::first_mesh || status == BoundaryStatus::singular_conditions;
    };
    if (const BoundaryStatus status = adapt(crude()); hopeless(status)) return status;
    double next = *step, here = start;
    for (int count = 0; count < kPathSteps; ++count) {
        // Factors and defects at the solution, then along its tangent.
        if (newton(crude(), kNewtonLimit) && factor()) {
            if (!tangent() && !depends_on_parameter(end)) return BoundaryStatus::no_dependence;
            save(good_);
            here = parameter_;
        } else {
            // So close to where solutions end that Simpson's equations have none: from the last point again, but not so far.
            if (count == 0) {
                load(kept_);
                return BoundaryStatus::continuation;
            }
            load(good_);
            set_parameter(here);
            next *= 0.5;
        }
        BoundaryStatus status = BoundaryStatus::continuation;
        for (bool easy = true; status == BoundaryStatus::continuation; easy = false) {
            *step = next = std::min(next, end - here);
            if (!(next > (path == Path::eps ? kPrecision : kLeastStrengthening))) return BoundaryStatus::increment;
            set_parameter(here + next >= end - kPrecision ? end : here + next);
            for (std::ptrdiff_t i = 0; i < size(); ++i) y_[i] = good_.y[i] + (parameter_ - here) * tangent_[i];
            if (newton(crude(), kPathNewton)) {
                // A mesh that suits this problem suits the next one.
                status = adapt(crude());
                // Layers may have run away from the mesh.
                if (path == Path::strength && status == BoundaryStatus::mesh && !smooth_)
                    status = BoundaryStatus::continuation;
                if (status == BoundaryStatus::first_mesh) status = BoundaryStatus::continuation;
            }
            if (conditions_singular_) return BoundaryStatus::singular_conditions;
            if (status == BoundaryStatus::continuation) {
                load(good_);
                set_parameter(here);
                next *= 0.5;
            } else if (easy) {
                next *= 2.0;
                if (path == Path::strength) next = std::min(next, kMostStrengthening);
            }
        }
        if (parameter_ == end) return adapt(tol);
    }
    return *step <= kCreeping ? BoundaryStatus::increment : BoundaryStatus::continuation;
}

// A bound on how fast solutions can change, times the length of the range.
double BoundarySolver::stiffness()
{
    const std::ptrdiff_t n = n_;
    find_scales();
    double greatest = 0.0;
    for (Integer i = 0; i <= intervals_; ++i) {
        slope(x_[i], y(i), f_ + n * i);
        jacobian(x_[i], y(i), f_ + n * i, a_);
        for (Integer r = 0; r < n_; ++r) {
            double sum = 0.0;
            for (Integer c = 0; c < n_; ++c) sum += std::fabs(a_[n * r + c]);
            if (std::isfinite(sum)) greatest = std::max(greatest, sum);
        }
    }
    return greatest * (x_[intervals_] - x_[0]);
}

BoundaryStatus BoundarySolver::solve(const BoundaryProblem &problem, double tol, double *deleps)
{
    problem_ = &problem;
    conditions_singular_ = false;
    strength_ = 1.0;
    if (deleps != nullptr && *deleps > 0.0) return follow(Path::eps, 0.0, 1.0, tol, deleps);

    eps_ = 1.0;
    save(first_);
    const BoundaryStatus direct = adapt(tol);
    if (direct != BoundaryStatus::first_mesh && !(direct == BoundaryStatus::mesh && !smooth_)) return direct;

    // Layers that no mesh has found, or a first approximation too far off: with all slopes reduced the problem is smooth, and its
    // solutions lead the mesh to the layers while the slopes grow to what they are.
    save(best_);
    load(first_);
    double step = kFirstStrengthening;
    const double start = std::log(std::clamp(kMildStiffness / stiffness(), kLeastStrength, kMostStrength));
    const BoundaryStatus led = follow(Path::strength, start, 0.0, tol, &step);
    strength_ = 1.0;
    if (led == BoundaryStatus::solved || led == BoundaryStatus::roundoff || led == BoundaryStatus::mesh) return led;
    load(best_);
    return direct;
}

} // namespace kor::ode
