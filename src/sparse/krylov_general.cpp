// Iterative methods for nonsymmetric systems.
//
// All three search x = x0 + M^-1 y in the space of right preconditioning, where the residual of the recurrence is that of the
// system itself, and work on a residual divided by a power of 2, so that no right-hand side is too small or too large. A cycle
// runs from one residual that is computed from x to the next: m steps of GMRES; as many steps of the others as it takes to
// pass the test, or to break down.
//
// Y. Saad and M. H. Schultz, SIAM J. Sci. Stat. Comput. 7 (1986) 856-869; P. Sonneveld, ibid. 10 (1989) 36-52; G. L. G.
// Sleijpen and D. R. Fokkema, ETNA 1 (1993) 11-32.
#include "sparse/krylov_general.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "frame/workspace.hpp"
#include "sparse/vectors.hpp"

namespace kor::sparse {

namespace {

enum class CycleEnd { used_up, passes, broken_down };

constexpr Integer kMostDirections = 50; // of GMRES
constexpr Integer kMostDegree = 10;     // of BiCGSTAB

class GeneralSolver {
  public:
    GeneralSolver(const GeneralSystem &system, double tol, Integer limit, double x[])
        : system_{system}, n_{system.n}, test_{StoppingTest::tolerance(tol), system.matrix_norm}, limit_{limit}, x_{x}
    {
    }

    Iteration run(GeneralMethod method, Integer m);

  private:
    bool allocate(GeneralMethod method, Integer m);
    double *next_vector() { return storage_.data() + static_cast<std::ptrdiff_t>(n_) * used_++; }

    void compute_residual(const double x[]);
    bool passes() const { return test_.is_met(residual_norm_, solution_norm_); }

    CycleEnd run_gmres_cycle(Integer m);
    bool extend_basis(Integer j, double h[]);
    bool try_solution(Integer columns, bool accept_any);

    CycleEnd run_cgs_cycle(int attempt);
    CycleEnd run_bicgstab_cycle(Integer degree, int attempt);
    void begin_short_recurrence(int attempt);
    bool note_progress();
    void flush();
    CycleEnd end_short_recurrence(CycleEnd);

    const GeneralSystem &system_;
    const Integer n_;
    StoppingTest test_;
    const Integer limit_;
    double *const x_;
    Integer count_ = 0;

    Workspace<double> storage_;
    std::ptrdiff_t used_ = 0;
    double *r_ = nullptr, *t_ = nullptr;
    double scale_ = 1.0;
    double residual_norm_ = 0.0, solution_norm_ = 0.0;

    // GMRES: an orthonormal basis; R of the QR factors of the Hessenberg matrix by columns, its rotations, Q'(beta e1).
    double *basis_[kMostDirections + 1] = {};
    double *candidate_ = nullptr;
    double triangle_[kMostDirections][kMostDirections + 1] = {};
    double cosine_[kMostDirections] = {}, sine_[kMostDirections] = {}, rotated_[kMostDirections + 1] = {};

    // The others: the shadow residual, what has not yet been added to x, and the residual of what has.
    double *shadow_ = nullptr, *y_ = nullptr;
    double flushed_norm_ = 0.0;
    double *work_[2 * kMostDegree + 2] = {};
};

bool GeneralSolver::allocate(GeneralMethod method, Integer m)
{
    constexpr Integer kCgsVectors = 5;
    const Integer own = method == GeneralMethod::gmres ? m + 2
                        : method == GeneralMethod::cgs ? kCgsVectors + 2
                                                       : 2 * m + 3;
    if (!storage_.allocate(Count{n_} * Count{own + 2})) return false;
    r_ = next_vector();
    t_ = next_vector();
    if (method == GeneralMethod::gmres) {
        candidate_ = next_vector();
        for (Integer j = 0; j <= m; ++j) basis_[j] = next_vector();
        return true;
    }
    shadow_ = next_vector();
    y_ = next_vector();
    const Integer more = method == GeneralMethod::cgs ? kCgsVectors : 2 * m + 1;
    for (Integer v = 0; v < more; ++v) work_[v] = next_vector();
    return true;
}

void GeneralSolver::compute_residual(const double x[])
{
    system_.multiply(x, t_);
    subtract(n_, system_.b, t_, r_);
    residual_norm_ = norm_of(Norm::infinity, n_, r_);
    solution_norm_ = norm_of(Norm::infinity, n_, x);
}

// --- restarted GMRES

// Makes the product with the basis vector j orthogonal to the basis; h receives its components and the norm of what is left.
bool GeneralSolver::extend_basis(Integer j, double h[])
{
    double *const w = basis_[j + 1];
    orthogonalise(n_, j + 1, basis_, w, h);
    double size = 0.0;
    for (Integer i = 0; i <= j; ++i) size = std::hypot(size, h[i]);
    if (!std::isfinite(h[j + 1]) || !std::isfinite(size)) return false;
    // What is left of a product that lies in the space is rounding error.
    if (h[j + 1] <= kPrecision * size) h[j + 1] = 0.0;
    if (h[j + 1] > 0.0) scale(n_, 1.0 / h[j + 1], w);
    return true;
}

// The solution from the first basis vectors, and its residual, computed anew. True, and x is the solution, if it passes or
// any will do.
bool GeneralSolver::try_solution(Integer columns, bool accept_any)
{
    double y[kMostDirections];
    for (Integer i = columns - 1; i >= 0; --i) {
        double sum = rotated_[i];
        for (Integer j = i + 1; j < columns; ++j) sum -= triangle_[j][i] * y[j];
        y[i] = triangle_[i][i] != 0.0 ? sum / triangle_[i][i] : 0.0;
    }
    set_multiple(n_, columns > 0 ? y[0] : 0.0, basis_[0], r_);
    for (Integer j = 1; j < columns; ++j) add_multiple(n_, y[j], basis_[j], r_);
    system_.precondition(r_, t_);
    std::copy_n(x_, n_, candidate_);
    add_multiple(n_, scale_, t_, candidate_);
    compute_residual(candidate_);
    if (!std::isfinite(residual_norm_) || (!accept_any && !passes())) return false;
    std::copy_n(candidate_, n_, x_);
    return true;
}

CycleEnd GeneralSolver::run_gmres_cycle(Integer m)
{
    const double start_norm = norm_of(Norm::two, n_, r_);
    // How the norm of the test compares with that which the method knows; corrected when both are known.
    double ratio = norm_of(Norm::infinity, n_, r_) / start_norm;
    const double old_solution_norm = solution_norm_;
    set_multiple(n_, 1.0 / start_norm, r_, basis_[0]);
    rotated_[0] = start_norm;
    double next_try = start_norm;
    Integer j = 0;
    CycleEnd end = CycleEnd::used_up;
    while (j < m && count_ < limit_ && end == CycleEnd::used_up) {
        system_.precondition(basis_[j], t_);
        system_.multiply(t_, basis_[j + 1]);
        double *const h = triangle_[j];
        ++count_;
        if (!extend_basis(j, h)) {
            end = CycleEnd::broken_down;
            break;
        }
        for (Integer i = 0; i < j; ++i) {
            const double upper = cosine_[i] * h[i] + sine_[i] * h[i + 1];
            h[i + 1] = cosine_[i] * h[i + 1] - sine_[i] * h[i];
            h[i] = upper;
        }
        const double length = std::hypot(h[j], h[j + 1]);
        if (length == 0.0) { // M^-1 y cannot be told from 0 in this direction: A M^-1 is singular
            end = CycleEnd::broken_down;
            break;
        }
        cosine_[j] = h[j] / length;
        sine_[j] = h[j + 1] / length;
        h[j] = length;
        rotated_[j + 1] = -sine_[j] * rotated_[j];
        rotated_[j] *= cosine_[j];
        ++j;

        const double estimate = std::abs(rotated_[j]);
        const bool may_pass = estimate * ratio * scale_ <= test_.bound(old_solution_norm);
        if (sine_[j - 1] == 0.0) {
            end = CycleEnd::passes;
        } else if (may_pass && estimate <= next_try) {
            if (try_solution(j, false)) return CycleEnd::passes;
            const double true_ratio = residual_norm_ / scale_ / estimate;
            // Rounding has parted the residual from what the method knows of it: more steps are of no use.
            if (!(true_ratio <= kForgivenFactor)) end = CycleEnd::passes;
            ratio = std::max(ratio, true_ratio);
            next_try = 0.5 * estimate;
        }
    }
    if (!try_solution(j, true)) {
        compute_residual(x_);
        return CycleEnd::broken_down;
    }
    return end;
}

// --- the methods of short recurrences

// Fraction of the last residual that was added to x at which the next addition is due. Adding late saves applications of the
// preconditioner; adding at all keeps in x the best that is known, should the recurrence diverge.
constexpr double kFlushFactor = 0.1;

void GeneralSolver::begin_short_recurrence(int attempt)
{
    std::fill_n(y_, n_, 0.0);
    flushed_norm_ = residual_norm_;
    // After a breakdown the elements get factors without order, so that what vanished before does so no more.
    std::uint32_t state = 0x9e3779b9u * static_cast<std::uint32_t>(attempt);
    for (Integer i = 0; i < n_; ++i) {
        state = state * 1664525u + 1013904223u;
        shadow_[i] = attempt == 0 || (state >> 31) != 0 ? r_[i] : 0.5 * r_[i];
    }
}

void GeneralSolver::flush()
{
    system_.precondition(y_, t_);
    add_multiple(n_, scale_, t_, x_);
    std::fill_n(y_, n_, 0.0);
    solution_norm_ = norm_of(Norm::infinity, n_, x_);
    flushed_norm_ = residual_norm_;
}

// Looks at the residual of the recurrence; true if it passes.
bool GeneralSolver::note_progress()
{
    residual_norm_ = scale_ * norm_of(Norm::infinity, n_, r_);
    if (residual_norm_ <= kFlushFactor * flushed_norm_) flush();
    return passes();
}

CycleEnd GeneralSolver::end_short_recurrence(CycleEnd end)
{
    if (residual_norm_ < flushed_norm_) flush();
    compute_residual(x_);
    return end;
}

CycleEnd GeneralSolver::run_cgs_cycle(int attempt)
{
    double *const u = work_[0], *const p = work_[1], *const q = work_[2], *const v = work_[3], *const w = work_[4];
    begin_short_recurrence(attempt);
    double old_rho = 0.0;
    for (bool first = true; count_ < limit_; first = false) {
        const double rho = dot(n_, shadow_, r_);
        if (rho == 0.0 || !std::isfinite(rho)) return end_short_recurrence(CycleEnd::broken_down);
        if (first) {
            std::copy_n(r_, n_, u);
            std::copy_n(r_, n_, p);
        } else {
            const double beta = rho / old_rho;
            for (Integer i = 0; i < n_; ++i) {
                u[i] = r_[i] + beta * q[i];
                p[i] = u[i] + beta * (q[i] + beta * p[i]);
            }
        }
        system_.precondition(p, t_);
        system_.multiply(t_, v);
        const double sigma = dot(n_, shadow_, v);
        const double alpha = rho / sigma;
        if (!std::isfinite(alpha)) return end_short_recurrence(CycleEnd::broken_down);
        for (Integer i = 0; i < n_; ++i) {
            q[i] = u[i] - alpha * v[i];
            w[i] = u[i] + q[i];
            y_[i] += alpha * w[i];
        }
        system_.precondition(w, t_);
        system_.multiply(t_, v);
        add_multiple(n_, -alpha, v, r_);
        ++count_;
        old_rho = rho;
        if (note_progress()) return end_short_recurrence(CycleEnd::passes);
    }
    return end_short_recurrence(CycleEnd::used_up);
}

CycleEnd GeneralSolver::run_bicgstab_cycle(Integer degree, int attempt)
{
    double *r[kMostDegree + 1] = {r_}, *u[kMostDegree + 1] = {};
    for (Integer j = 1; j <= degree; ++j) r[j] = work_[j - 1];
    for (Integer j = 0; j <= degree; ++j) u[j] = work_[degree + j];
    begin_short_recurrence(attempt);
    std::fill_n(u[0], n_, 0.0);
    double rho = 1.0, alpha = 0.0, omega = 1.0;
    while (count_ < limit_) {
        // The steps of BiCG.
        const Integer l = std::min(degree, limit_ - count_);
        rho = -omega * rho;
        Integer done = 0;
        for (; done < l; ++done) {
            const double new_rho = dot(n_, r[done], shadow_);
            const double beta = alpha * new_rho / rho;
            if (new_rho == 0.0 || !std::isfinite(beta)) break;
            rho = new_rho;
            for (Integer i = 0; i <= done; ++i) multiple_plus(n_, r[i], -beta, u[i]);
            system_.precondition(u[done], t_);
            system_.multiply(t_, u[done + 1]);
            alpha = rho / dot(n_, u[done + 1], shadow_);
            if (!std::isfinite(alpha)) break;
            for (Integer i = 0; i <= done; ++i) add_multiple(n_, -alpha, u[i + 1], r[i]);
            system_.precondition(r[done], t_);
            system_.multiply(t_, r[done + 1]);
            add_multiple(n_, alpha, u[0], y_);
            ++count_;
            // BiCG may have done it: the polynomial would be fitted to rounding errors.
            residual_norm_ = scale_ * norm_of(Norm::infinity, n_, r_);
            if (passes()) return end_short_recurrence(CycleEnd::passes);
        }
        const bool broken = done < l;

        // The minimal residual over the polynomials of that degree, by modified Gram-Schmidt.
        double tau[kMostDegree + 1][kMostDegree + 1] = {}, length[kMostDegree + 1] = {},
                                                  projection[kMostDegree + 1] = {};
        Integer rank = 0;
        for (Integer j = 1; j <= done; ++j) {
            for (Integer i = 1; i < j; ++i) {
                tau[i][j] = dot(n_, r[j], r[i]) / length[i];
                add_multiple(n_, -tau[i][j], r[i], r[j]);
            }
            length[j] = dot(n_, r[j], r[j]);
            if (!(length[j] > 0.0) || !std::isfinite(length[j])) break;
            projection[j] = dot(n_, r[0], r[j]) / length[j];
            rank = j;
        }
        double gamma[kMostDegree + 2] = {}, shifted[kMostDegree + 1] = {};
        for (Integer j = rank; j >= 1; --j) {
            gamma[j] = projection[j];
            for (Integer i = j + 1; i <= rank; ++i) gamma[j] -= tau[j][i] * gamma[i];
        }
        for (Integer j = 1; j < rank; ++j) {
            shifted[j] = gamma[j + 1];
            for (Integer i = j + 1; i < rank; ++i) shifted[j] += tau[j][i] * gamma[i + 1];
        }
        omega = rank > 0 ? gamma[rank] : 0.0;
        if (rank > 0) add_multiple(n_, gamma[1], r[0], y_);
        for (Integer j = 1; j < rank; ++j) add_multiple(n_, shifted[j], r[j], y_);
        for (Integer j = 1; j <= rank; ++j) {
            add_multiple(n_, -projection[j], r[j], r[0]);
            add_multiple(n_, -gamma[j], u[j], u[0]);
        }
        if (note_progress()) return end_short_recurrence(CycleEnd::passes);
        if (broken || rank < done || omega == 0.0) return end_short_recurrence(CycleEnd::broken_down);
    }
    return end_short_recurrence(CycleEnd::used_up);
}

Iteration GeneralSolver::run(GeneralMethod method, Integer m)
{
    // How often in a row a cycle may fail to reduce the residual by half.
    constexpr int kPatience = 3;
    // A full cycle of GMRES that leaves more than this is no progress.
    constexpr double kStandstill = 1.0 - 1e-10;

    if (all_zero(n_, system_.b)) {
        std::fill_n(x_, n_, 0.0);
        return {Solved::converged, 0.0, 0};
    }
    if (!allocate(method, m)) return {Solved::no_memory, 0.0, 0};
    test_.right_hand_norm = norm_of(Norm::infinity, n_, system_.b);
    compute_residual(x_);
    int stalls = 0;
    for (;;) {
        if (passes()) return {Solved::converged, residual_norm_, count_};
        if (count_ >= limit_ || !std::isfinite(residual_norm_)) return {Solved::not_converged, residual_norm_, count_};
        const double before = residual_norm_;
        scale_ = scale_of(n_, r_);
        scale(n_, 1.0 / scale_, r_);
        const CycleEnd end = method == GeneralMethod::gmres ? run_gmres_cycle(m)
                             : method == GeneralMethod::cgs ? run_cgs_cycle(stalls)
                                                            : run_bicgstab_cycle(m, stalls);
        const StoppingTest forgiving{kForgivenFactor * test_.tol, test_.matrix_norm, test_.right_hand_norm};
        if (end == CycleEnd::passes && forgiving.is_met(residual_norm_, solution_norm_))
            return {Solved::converged, residual_norm_, count_};
        const double progress = end == CycleEnd::used_up ? kStandstill : kProgress;
        // Strictly less: a residual that has come to rest, even at 0, makes no progress.
        stalls = residual_norm_ <= progress * before && residual_norm_ < before ? 0 : stalls + 1;
        if (stalls > kPatience)
            return {passes() ? Solved::converged
                             : outcome_of_stagnation(residual_norm_, test_.bound(solution_norm_), test_.tol),
                    residual_norm_, count_};
    }
}

} // namespace

Iteration solve_general(const GeneralSystem &system, GeneralMethod method, Integer m, double tol, Integer limit,
                        double x[])
{
    return GeneralSolver{system, tol, limit, x}.run(method, m);
}

} // namespace kor::sparse
