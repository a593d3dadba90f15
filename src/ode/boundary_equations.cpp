// Boundary value problems on one mesh: Simpson's equations, the Newton iteration, corrections and the error estimate.
#include "ode/boundary_solver.hpp"

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"
#include "ode/interval_tables.hpp"
#include "ode/lu_factors.hpp"

namespace kor::ode {

namespace {

constexpr double kLeastDamping = 1e-6;
constexpr double kKeepFactors = 0.1; // contraction at which the old factors go on
constexpr double kNewtonPart = 0.01; // of the tolerance: what the Newton iteration may leave
constexpr double kStalled =
    1e-11; // corrections that contract no more are rounding errors below this part of the solution
constexpr int kNodeVectors = kMostNodes + 2 * kMostInner;
constexpr int kNodeIterations = 10;
constexpr double kNodePart = 1e-3; // of the tolerance: what their iteration may leave
constexpr int kCorrections = 8;
constexpr double kMeaningful = 0.3; // a correction beyond this part of the solution tells nothing

} // namespace

bool BoundarySolver::allocate(const BoundaryProblem &problem, Integer mnp)
{
    problem_ = &problem;
    n_ = problem.n;
    mnp_ = mnp;
    const Count points{mnp}, n{n_}, vectors = points * n;
    constexpr int kLongVectors = 14, kMeshVectors = 7, kShortVectors = 4 + kNodeVectors, kMatrices = 4 + 3 * kMostInner;
    if (!block_.allocate(vectors * kLongVectors + points * kMeshVectors + n * kShortVectors + n * n * kMatrices) ||
        !stages_.allocate(points * n * n * (kMostInner * kMostInner)) || !pivots_.allocate(vectors * kMostInner) ||
        !jacobians_.allocate(points * n * n * 2) || !parts_.allocate(points) ||
        !system_.allocate(n_, problem.left, problem.mixed, mnp))
        return false;
    double *next = block_.data();
    const auto take = [&next](Count size) {
        double *mine = next;
        next += size.value();
        return mine;
    };
    for (double **v : {&y_, &f_, &middle_, &rows_, &delta_, &bar_, &trial_, &new_y_, &tangent_, &guess_})
        *v = take(vectors);
    for (double **v : {&x_, &new_x_, &defects_}) *v = take(points);
    for (Snapshot *snapshot : {&kept_, &good_, &first_, &best_}) {
        snapshot->x = take(points);
        snapshot->y = take(vectors);
    }
    for (double **v : {&conditions_, &scales_, &errors_, &shifted_}) *v = take(n);
    nodes_ = take(n * kNodeVectors);
    for (double **v : {&at_left_, &at_right_, &a_, &b_}) *v = take(n * n);
    for (double **v : {&inner_, &by_left_, &by_right_}) *v = take(n * n * kMostInner);
    std::fill_n(errors_, n_, 0.0);
    return true;
}

// ---- Equations ----

void BoundarySolver::slope(double x, const double *y, double *f)
{
    problem_->slope(x, eps_, y, f);
    if (strength_ != 1.0)
        for (Integer c = 0; c < n_; ++c) f[c] *= strength_;
}

// Minus the defects of y in Simpson's equations and the conditions, into rows_ and conditions_; slopes into f_ and middle_. False
// when something is not finite.
bool BoundarySolver::residual(const double *y)
{
    const std::ptrdiff_t n = n_;
    double total = 0.0;
    find_slopes(y);
    for (Integer i = 0; i < intervals_; ++i) {
        const double h = x_[i + 1] - x_[i];
        const double *y0 = y + n * i, *y1 = y0 + n, *f0 = f_ + n * i, *f1 = f0 + n;
        double *row = rows_ + n * i, *f = middle_ + n * i;
        for (Integer c = 0; c < n_; ++c) shifted_[c] = middle_value(h, y0[c], y1[c], f0[c], f1[c]);
        slope(x_[i] + 0.5 * h, shifted_, f);
        for (Integer c = 0; c < n_; ++c) {
            row[c] = h / 6.0 * (f0[c] + 4.0 * f[c] + f1[c]) - (y1[c] - y0[c]);
            total += std::fabs(row[c]);
        }
    }
    return total + find_conditions(y) <= kLargest;
}

void BoundarySolver::find_slopes(const double *y)
{
    for (Integer i = 0; i <= intervals_; ++i) slope(x_[i], y + std::ptrdiff_t{n_} * i, f_ + std::ptrdiff_t{n_} * i);
}

// Returns the sum of the moduli.
double BoundarySolver::find_conditions(const double *y)
{
    double total = 0.0;
    problem_->conditions(eps_, y, y + std::ptrdiff_t{n_} * intervals_, conditions_);
    for (Integer c = 0; c < n_; ++c) {
        conditions_[c] = -conditions_[c];
        total += std::fabs(conditions_[c]);
    }
    return total;
}

// The values at the inner nodes of an interval follow from those at its ends: values - mean - h sum (weights slopes) = 0, by a
// Newton iteration with the factors of build(). Leaves the slopes at all nodes in nodes_. False when it fails.
bool BoundarySolver::find_nodes(const LobattoRule &rule, Integer i, const double *y, double tol)
{
    const std::ptrdiff_t n = n_, m = n * rule.inner();
    const double h = x_[i + 1] - x_[i];
    const double *y0 = y + n * i, *y1 = y0 + n, *f0 = f_ + n * i, *f1 = f0 + n;
    double *slopes = nodes_, *values = slopes + n * rule.nodes, *delta = values + m;
    std::copy_n(f0, n_, slopes);
    std::copy_n(f1, n_, slopes + n * (rule.nodes - 1));
    for (int k = 0; k < rule.inner(); ++k)
        for (Integer c = 0; c < n_; ++c) values[n * k + c] = cubic(rule.node[k + 1], h, y0[c], y1[c], f0[c], f1[c]);
    double previous = HUGE_VAL;
    for (int iteration = 0; iteration < kNodeIterations; ++iteration) {
        for (int k = 0; k < rule.inner(); ++k)
            slope(x_[i] + h * rule.node[k + 1], values + n * k, slopes + n * (k + 1));
        for (int k = 0; k < rule.inner(); ++k)
            for (Integer c = 0; c < n_; ++c) {
                double sum = 0.0;
                for (int j = 0; j < rule.nodes; ++j) sum += rule.from_mean[k][j] * slopes[n * j + c];
                delta[n * k + c] = 0.5 * (y0[c] + y1[c]) + h * sum - values[n * k + c];
            }
        const Integer order = static_cast<Integer>(m);
        lu_solve(order, stages_.data() + m * m * i, pivots_.data() + m * i, delta);
        double greatest = 0.0, size = 0.0;
        for (std::ptrdiff_t k = 0; k < m; ++k) {
            values[k] += delta[k];
            const double scale = scales_[k % n];
            greatest = std::max(greatest, std::fabs(delta[k]) / (kNodePart * tol + 16.0 * kPrecision * scale));
            size += std::fabs(delta[k]) / scale;
        }
        if (!(size <= kLargest)) return false;
        if (greatest <= 1.0) return true;
        // Not better than before: only as long as it is a matter of rounding errors.
        if (iteration > 0 && !(size <= 0.7 * previous)) return size <= kRounding;
        previous = size;
    }
    return false;
}

// Minus the defects of y in the equations of a Lobatto rule and in the conditions. False when it fails.
bool BoundarySolver::residual(const LobattoRule &rule, const double *y, double tol)
{
    const std::ptrdiff_t n = n_;
    find_slopes(y);
    double total = find_conditions(y);
    for (Integer i = 0; i < intervals_; ++i) {
        if (!find_nodes(rule, i, y, tol)) return false;
        const double h = x_[i + 1] - x_[i];
        for (Integer c = 0; c < n_; ++c) {
            double sum = 0.0;
            for (int j = 0; j < rule.nodes; ++j) sum += rule.weight[j] * nodes_[n * j + c];
            double &row = rows_[n * i + c];
            row = h * sum - (y[n * (i + 1) + c] - y[n * i + c]);
            total += std::fabs(row);
        }
    }
    return total <= kLargest;
}

// By differences unless the caller has it; f is the slope at (x, y).
void BoundarySolver::jacobian(double x, const double *y, const double *f, double *j)
{
    const std::ptrdiff_t n = n_;
    if (problem_->jacobian != nullptr) {
        std::fill_n(j, n * n, 0.0);
        (*problem_->jacobian)(x, eps_, y, j);
        if (strength_ != 1.0)
            for (std::ptrdiff_t i = 0; i < n * n; ++i) j[i] *= strength_;
        return;
    }
    double *point = nodes_, *shifted = nodes_ + n;
    std::copy_n(y, n_, point);
    for (Integer c = 0; c < n_; ++c) {
        const double step = std::sqrt(kPrecision) * std::max(std::fabs(y[c]), 0.01 * scales_[c]);
        point[c] = y[c] + step;
        slope(x, point, shifted);
        for (Integer r = 0; r < n_; ++r) j[n * r + c] = (shifted[r] - f[r]) / (point[c] - y[c]);
        point[c] = y[c];
    }
}

void BoundarySolver::conditions_jacobian()
{
    const std::ptrdiff_t n = n_;
    std::fill_n(at_left_, n * n, 0.0);
    std::fill_n(at_right_, n * n, 0.0);
    double *ends[2] = {y_, y_ + n * intervals_};
    if (problem_->conditions_jacobian != nullptr)
        return (*problem_->conditions_jacobian)(eps_, ends[0], ends[1], at_left_, at_right_);
    double *base = nodes_, *value = nodes_ + n;
    problem_->conditions(eps_, ends[0], ends[1], base);
    for (int end = 0; end < 2; ++end)
        for (Integer c = 0; c < n_; ++c) {
            double &component = ends[end][c];
            const double old = component;
            component = old + std::sqrt(kPrecision) * std::max(std::fabs(old), 0.01 * scales_[c]);
            const double step = component - old;
            problem_->conditions(eps_, ends[0], ends[1], value);
            component = old;
            for (Integer r = 0; r < n_; ++r) (end == 0 ? at_left_ : at_right_)[n * r + c] = (value[r] - base[r]) / step;
        }
}

// The Jacobians at y_, whose slopes are in f_ and middle_: at the points, and in the middle of the intervals; and the conditions.
// False when these depend on each other.
bool BoundarySolver::find_jacobians()
{
    const std::ptrdiff_t n = n_;
    find_scales();
    conditions_jacobian();
    if (!rows_are_independent(n_, at_left_, at_right_, a_ /* and what lies behind it */)) {
        conditions_singular_ = true;
        return false;
    }
    jacobian(x_[0], y_, f_, at_point(0));
    double *middle = nodes_ + n * 2;
    for (Integer i = 0; i < intervals_; ++i) {
        const double h = x_[i + 1] - x_[i];
        const double *y0 = y_ + n * i, *y1 = y0 + n, *f0 = f_ + n * i, *f1 = f0 + n;
        for (Integer c = 0; c < n_; ++c) middle[c] = middle_value(h, y0[c], y1[c], f0[c], f1[c]);
        jacobian(x_[i] + 0.5 * h, middle, middle_ + n * i, at_middle(i));
        jacobian(x_[i + 1], y1, f1, at_point(i + 1));
    }
    return true;
}

// The linear system of Simpson's equations.
bool BoundarySolver::factor()
{
    const std::ptrdiff_t n = n_;
    if (!find_jacobians()) return false;
    system_.begin(intervals_, at_left_, at_right_);
    for (Integer i = 0; i < intervals_; ++i) {
        const double h = x_[i + 1] - x_[i];
        const double *j0 = at_point(i), *jm = at_middle(i), *j1 = at_point(i + 1);
        for (Integer r = 0; r < n_; ++r)
            for (Integer c = 0; c < n_; ++c) {
                double left = 0.0, right = 0.0;
                for (Integer k = 0; k < n_; ++k) {
                    left += jm[n * r + k] * j0[n * k + c];
                    right += jm[n * r + k] * j1[n * k + c];
                }
                const double one = r == c ? 1.0 : 0.0, mid = 2.0 * jm[n * r + c];
                a_[n * r + c] = -one - h / 6.0 * (j0[n * r + c] + mid + 0.5 * h * left);
                b_[n * r + c] = one - h / 6.0 * (j1[n * r + c] + mid - 0.5 * h * right);
            }
        system_.add(a_, b_);
    }
    return system_.finish();
}

// The linear system of a Lobatto rule, the inner nodes eliminated, from the Jacobians that are there; keeps the factors for
// find_nodes(). Jacobians at the nodes are interpolated between those at the ends and in the middle.
bool BoundarySolver::build(const LobattoRule &rule)
{
    const std::ptrdiff_t n = n_, m = n * rule.inner();
    const Integer order = static_cast<Integer>(m);
    const int last = rule.nodes - 1;
    system_.begin(intervals_, at_left_, at_right_);
    for (Integer i = 0; i < intervals_; ++i) {
        const double h = x_[i + 1] - x_[i];
        const double *j0 = at_point(i), *jm = at_middle(i), *j1 = at_point(i + 1);
        for (int k = 0; k < rule.inner(); ++k) {
            const double u = rule.node[k + 1];
            const double left = (1.0 - 2.0 * u) * (1.0 - u), mid = 4.0 * u * (1.0 - u), right = u * (2.0 * u - 1.0);
            for (std::ptrdiff_t e = 0; e < n * n; ++e)
                inner_[n * n * k + e] = left * j0[e] + mid * jm[e] + right * j1[e];
        }
        double *stage = stages_.data() + m * m * i;
        for (int k = 0; k < rule.inner(); ++k)
            for (Integer r = 0; r < n_; ++r)
                for (Integer c = 0; c < n_; ++c) {
                    const double one = r == c ? 1.0 : 0.0;
                    for (int j = 0; j < rule.inner(); ++j)
                        stage[(n * j + c) * m + n * k + r] =
                            (j == k ? one : 0.0) - h * rule.from_mean[k][j + 1] * inner_[n * n * j + n * r + c];
                    by_left_[c * m + n * k + r] = 0.5 * one + h * rule.from_mean[k][0] * j0[n * r + c];
                    by_right_[c * m + n * k + r] = 0.5 * one + h * rule.from_mean[k][last] * j1[n * r + c];
                }
        Integer *pivots = pivots_.data() + m * i;
        if (!lu_factor(order, stage, pivots)) return false;
        lu_solve(order, stage, pivots, by_left_, n_);
        lu_solve(order, stage, pivots, by_right_, n_);
        for (Integer r = 0; r < n_; ++r)
            for (Integer c = 0; c < n_; ++c) {
                double left = rule.weight[0] * j0[n * r + c], right = rule.weight[last] * j1[n * r + c];
                for (int k = 0; k < rule.inner(); ++k)
                    for (Integer e = 0; e < n_; ++e) {
                        const double j = rule.weight[k + 1] * inner_[n * n * k + n * r + e];
                        left += j * by_left_[c * m + n * k + e];
                        right += j * by_right_[c * m + n * k + e];
                    }
                const double one = r == c ? 1.0 : 0.0;
                a_[n * r + c] = -one - h * left;
                b_[n * r + c] = one - h * right;
            }
        system_.add(a_, b_);
    }
    return system_.finish();
}

// ---- The Newton iteration ----

void BoundarySolver::find_scales()
{
    for (Integer c = 0; c < n_; ++c) {
        double greatest = 0.0;
        for (Integer i = 0; i <= intervals_; ++i) greatest = std::max(greatest, std::fabs(y(i)[c]));
        scales_[c] = greatest > 0.0 ? greatest : 1.0;
    }
}

double BoundarySolver::norm(const double *delta) const
{
    double sum = 0.0;
    for (Integer i = 0; i <= intervals_; ++i)
        for (Integer c = 0; c < n_; ++c) {
            const double q = delta[std::ptrdiff_t{n_} * i + c] / scales_[c];
            sum += q * q;
        }
    return std::sqrt(sum / (static_cast<double>(n_) * (intervals_ + 1)));
}

bool BoundarySolver::negligible(const double *delta, double tol) const
{
    for (std::ptrdiff_t i = 0; i < size(); ++i)
        if (!(std::fabs(delta[i]) <= kNewtonPart * tol + 16.0 * kPrecision * scales_[i % n_])) return false;
    return true;
}

// Solves Simpson's equations from y_. On failure y_ is of no use.
bool BoundarySolver::newton(double tol, int limit)
{
    if (!residual(y_)) return false;
    double damping = 1.0;
    for (int iteration = 0; iteration < limit; ++iteration) {
        if (!factor()) return false;
        system_.solve(conditions_, rows_, delta_);
        double length = norm(delta_);
        if (!std::isfinite(length)) return false;
        if (negligible(delta_, tol)) {
            for (std::ptrdiff_t i = 0; i < size(); ++i) y_[i] += delta_[i];
            return residual(y_);
        }
        bool first = true; // the correction belongs to the factors
        for (;;) {
            for (std::ptrdiff_t i = 0; i < size(); ++i) trial_[i] = y_[i] + damping * delta_[i];
            double next = HUGE_VAL, bend = HUGE_VAL;
            if (residual(trial_)) {
                system_.solve(conditions_, rows_, bar_);
                next = norm(bar_);
                for (std::ptrdiff_t i = 0; i < size(); ++i) new_y_[i] = bar_[i] - (1.0 - damping) * delta_[i];
                bend = norm(new_y_);
            }
            const double best = std::isfinite(bend) && bend > 0.0 ? 0.5 * length * damping * damping / bend : 1.0;
            if (next <= (1.0 - 0.25 * damping) * length) {
                std::copy_n(trial_, size(), y_);
                if (damping == 1.0 && negligible(bar_, tol)) {
                    for (std::ptrdiff_t i = 0; i < size(); ++i) y_[i] += bar_[i];
                    return residual(y_);
                }
                if (damping == 1.0 && next <= kKeepFactors * length) {
                    std::swap(delta_, bar_);
                    length = next;
                    first = false;
                    continue;
                }
                damping = best >= 0.7 ? 1.0 : std::max(best, damping);
                break;
            }
            // Corrections that are all rounding errors contract no more.
            if (damping == 1.0 && length <= kStalled) return residual(y_);
            if (!first) {
                if (!residual(y_)) return false;
                break;
            }
            damping = std::isfinite(bend) ? std::clamp(best, 0.1 * damping, 0.5 * damping) : 0.25 * damping;
            if (damping < kLeastDamping) return false;
        }
    }
    return false;
}

// ---- Deferred correction ----

// From the solution y_ of Simpson's equations to that of Lobatto's in trial_, with errors_ and defects_. False while the mesh is too
// coarse for the corrections to converge.
bool BoundarySolver::correct(double tol)
{
    smooth_ = false;
    if (!find_jacobians() || !build(kLobatto5)) return false;
    std::copy_n(y_, size(), trial_);
    double previous = HUGE_VAL;
    for (int correction = 0;; ++correction) {
        if (correction == kCorrections || !residual(kLobatto5, trial_, tol)) return false;
        system_.solve(conditions_, rows_, delta_);
        const double length = norm(delta_);
        // A first correction of the size of the solution itself means nothing; later ones must contract.
        if (!(length <= (correction == 0 ? kMeaningful : 0.5 * previous)) && !(length <= kRounding)) return false;
        for (std::ptrdiff_t i = 0; i < size(); ++i) trial_[i] += delta_[i];
        if (negligible(delta_, tol) || length <= kPrecision) break;
        if (correction > 0 && length <= kRounding && length > 0.5 * previous) break;
        previous = length;
    }
    // The same solution in the equations of order six. On stiff parts that the mesh does not resolve the two rules, one with an even
    // and one with an odd number of nodes, do opposite things.
    if (!build(kLobatto4) || !residual(kLobatto4, trial_, tol)) return false;
    system_.solve(conditions_, rows_, delta_);
    if (!(norm(delta_) <= kMeaningful)) return false;
    std::fill_n(errors_, n_, 0.0);
    for (std::ptrdiff_t i = 0; i < size(); ++i) errors_[i % n_] = std::max(errors_[i % n_], std::fabs(delta_[i]));
    // What the error gains from point to point is what the interval has done.
    for (Integer i = 0; i < intervals_; ++i) {
        const double *here = delta_ + std::ptrdiff_t{n_} * i, *next = here + n_;
        defects_[i] = 0.0;
        for (Integer c = 0; c < n_; ++c) defects_[i] = std::max(defects_[i], std::fabs(next[c] - here[c]));
    }
    return smooth_ = true;
}

} // namespace kor::ode
