// Boundary value problems: from mesh to mesh.
#include "ode/boundary_solver.hpp"

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"

namespace kor::ode {

namespace {

constexpr int kMeshes = 60;
constexpr Integer kFullMeshes = 12;     // meshes with as many points as are allowed
constexpr Integer kRoughFullMeshes = 3; // the same while the error estimate is not to be trusted
constexpr double kSafety = 0.2;         // of the tolerance: what a new mesh aims at
constexpr Integer kMostHalved = 500;    // intervals: a Newton iteration that fails on so many fails on more
constexpr Integer kMostParts = 8;       // of an interval, in one go
constexpr Integer kMostRoughParts = 4;  // while the error estimate is not to be trusted

} // namespace

void BoundarySolver::save(Snapshot &snapshot) const
{
    snapshot.intervals = intervals_;
    std::copy_n(x_, intervals_ + 1, snapshot.x);
    std::copy_n(y_, size(), snapshot.y);
}

void BoundarySolver::load(const Snapshot &snapshot)
{
    intervals_ = snapshot.intervals;
    std::copy_n(snapshot.x, intervals_ + 1, x_);
    std::copy_n(snapshot.y, size(), y_);
}

// Point `at` of the new mesh: x in an interval of the old one. The cubic is trusted where the corrections are.
void BoundarySolver::put_point(Integer at, Integer interval, double x)
{
    const std::ptrdiff_t n = n_;
    const double h = x_[interval + 1] - x_[interval], u = (x - x_[interval]) / h;
    const double *y0 = y_ + n * interval, *y1 = y0 + n, *f0 = f_ + n * interval, *f1 = f0 + n;
    new_x_[at] = x;
    for (Integer c = 0; c < n_; ++c)
        new_y_[n * at + c] = smooth_ ? cubic(u, h, y0[c], y1[c], f0[c], f1[c]) : (1.0 - u) * y0[c] + u * y1[c];
}

void BoundarySolver::adopt(Integer intervals)
{
    new_x_[intervals] = x_[intervals_];
    std::copy_n(y_ + std::ptrdiff_t{n_} * intervals_, n_, new_y_ + std::ptrdiff_t{n_} * intervals);
    intervals_ = intervals;
    std::swap(x_, new_x_);
    std::swap(y_, new_y_);
}

void BoundarySolver::subdivide(const Integer *parts)
{
    Integer at = 0;
    for (Integer i = 0; i < intervals_; ++i)
        for (Integer k = 0; k < parts[i]; ++k, ++at) {
            put_point(at, i, x_[i] + (x_[i + 1] - x_[i]) * k / parts[i]);
            if (k == 0) std::copy_n(y_ + std::ptrdiff_t{n_} * i, n_, new_y_ + std::ptrdiff_t{n_} * at);
        }
    adopt(at);
}

bool BoundarySolver::halve()
{
    if (intervals_ >= kMostHalved || 2 * std::ptrdiff_t{intervals_} >= mnp_) return false;
    std::fill_n(parts_.data(), intervals_, 2);
    smooth_ = false;
    subdivide(parts_.data());
    return true;
}

// A new mesh of so many intervals, defects_ (any measure of what an interval deserves) shared out evenly.
void BoundarySolver::redistribute(Integer intervals)
{
    double total = 0.0;
    for (Integer i = 0; i < intervals_; ++i) total += defects_[i];
    const double share = total / intervals;
    Integer at = 0;
    double before = 0.0;
    for (Integer i = 0; i < intervals_; ++i) {
        for (; at < intervals && at * share < before + defects_[i]; ++at) {
            const double part = std::max(0.0, (at * share - before) / defects_[i]);
            put_point(at, i, x_[i] + (x_[i + 1] - x_[i]) * part);
        }
        before += defects_[i];
    }
    // Rounding errors in the sum may leave the last point over.
    for (; at < intervals; ++at)
        put_point(at, intervals_ - 1, x_[intervals_] - (x_[intervals_] - x_[intervals_ - 1]) * 1e-3 * (intervals - at));
    adopt(intervals);
}

// How much of the ups and downs of the solution, and of the range, lies in each interval.
void BoundarySolver::measure_variation()
{
    for (Integer c = 0; c < n_; ++c) {
        double least = y(0)[c], greatest = least;
        for (Integer i = 1; i <= intervals_; ++i) {
            least = std::min(least, y(i)[c]);
            greatest = std::max(greatest, y(i)[c]);
        }
        shifted_[c] = greatest - least;
    }
    for (Integer i = 0; i < intervals_; ++i) {
        double most = 0.0;
        for (Integer c = 0; c < n_; ++c)
            if (shifted_[c] > 0.0) most = std::max(most, std::fabs(y(i + 1)[c] - y(i)[c]) / shifted_[c]);
        defects_[i] = most + (x_[i + 1] - x_[i]) / (x_[intervals_] - x_[0]);
    }
}

// The next mesh. False when no mesh of mnp points promises more.
bool BoundarySolver::refine(double tol)
{
    // The parts that each interval deserves, up to a factor. Defects are proportional to h^7, and parts that are proportional to
    // their roots make their sum least. Without them the ups and downs of the solution have to serve.
    constexpr double kPower = 7.0;
    double sum = 0.0, roots = 0.0;
    if (smooth_) {
        for (Integer i = 0; i < intervals_; ++i) {
            sum += defects_[i];
            defects_[i] = std::pow(defects_[i], 1.0 / kPower);
        }
    } else {
        measure_variation();
    }
    for (Integer i = 0; i < intervals_; ++i) {
        // An interval of a few units in the last place of x is as short as it can be.
        if (x_[i + 1] - x_[i] < kRounding * std::max(std::fabs(x_[i]), std::fabs(x_[i + 1]))) defects_[i] = 0.0;
        roots += defects_[i];
    }
    if (!(roots > 0.0)) {
        std::fill_n(defects_, intervals_, 1.0);
        roots = sum = intervals_;
    }
    double factor = 2.0 * intervals_ / roots;
    if (smooth_) {
        const double error = *std::max_element(errors_, errors_ + n_);
        factor =
            std::min(std::pow(error / sum * roots / (kSafety * tol), 1.0 / (kPower - 1.0)), 4.0 * intervals_ / roots);
    }
    Integer total = 0;
    const Integer most = smooth_ ? kMostParts : kMostRoughParts;
    double wanted = 0.0;
    for (Integer i = 0; i < intervals_; ++i) {
        const double parts = factor * defects_[i];
        wanted += parts;
        parts_[i] = std::clamp<Integer>(static_cast<Integer>(std::ceil(std::min(parts, 1e6) - 0.1)), 1, most);
        total += parts_[i];
    }
    if (total < mnp_ && total > intervals_) {
        subdivide(parts_.data());
        return true;
    }
    if (++full_meshes_ > (smooth_ ? kFullMeshes : kRoughFullMeshes)) return false;
    // Points move from where they are idle. Every interval keeps a little, so that nothing is lost from sight.
    const double least = 0.1 * roots / intervals_;
    for (Integer i = 0; i < intervals_; ++i) defects_[i] = std::max(defects_[i], least);
    redistribute(
        std::min<Integer>(mnp_ - 1, std::max<Integer>(intervals_, static_cast<Integer>(std::min(1.2 * wanted, 1e9)))));
    return true;
}

// Where the tolerance is missed, it is by rounding errors.
bool BoundarySolver::only_roundoff(double tol) const
{
    for (Integer c = 0; c < n_; ++c)
        if (errors_[c] > tol && errors_[c] > kRounding * scales_[c]) return false;
    return true;
}

// Solves for the present eps to `tol`, on as many meshes as it takes. The solution and its mesh are the best in every case.
BoundaryStatus BoundarySolver::adapt(double tol)
{
    bool solved = false; // on some mesh
    full_meshes_ = 0;
    save(kept_);
    for (int mesh = 0; mesh < kMeshes; ++mesh) {
        std::copy_n(y_, size(), guess_);
        if (!newton(tol, kNewtonLimit)) {
            if (conditions_singular_) return BoundaryStatus::singular_conditions;
            std::copy_n(guess_, size(), y_);
            if (halve()) continue;
            load(kept_);
            return solved ? BoundaryStatus::mesh : BoundaryStatus::first_mesh;
        }
        solved = true;
        if (correct(tol)) {
            const double error = *std::max_element(errors_, errors_ + n_);
            std::copy_n(trial_, size(), y_);
            if (error <= tol) return BoundaryStatus::solved;
            if (only_roundoff(tol)) return BoundaryStatus::roundoff;
        }
        save(kept_);
        if (!refine(tol)) return BoundaryStatus::mesh;
    }
    load(kept_);
    return BoundaryStatus::mesh;
}

} // namespace kor::ode
