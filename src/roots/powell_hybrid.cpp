// Powell's hybrid method for n equations in n unknowns.
//
// M. J. D. Powell, A hybrid method for nonlinear equations, in P. Rabinowitz (ed.), Numerical Methods for Nonlinear
// Algebraic Equations, Gordon and Breach 1970. Each step is a dogleg between the steepest descent and the Gauss-Newton
// step within a trust region. The Jacobian is factorised as Q R once, and then follows the iteration by Broyden's
// corrections of rank one; two failures in a row bring a new one.
#include "roots/powell_hybrid.hpp"

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"
#include "frame/workspace.hpp"
#include "linalg/blas.hpp"
#include "linalg/lapack.hpp"
#include "linalg/norm.hpp"
#include "roots/rank_one_update.hpp"

namespace kor::roots {

namespace {

constexpr double kStepFactor = 100.0;               // first trust region, in units of the norm of x
constexpr double kAccept = 1e-4;                    // least ratio of actual to predicted reduction of an accepted step
constexpr double kPoor = 0.1;                       // below it the region shrinks
constexpr double kGood = 0.5;                       // from it on the region may grow
constexpr double kNearlyExact = 0.1;                // a prediction this good makes the region fit the step
constexpr double kSlow = 1e-3, kSlowJacobian = 0.1; // reductions that count as no progress
constexpr int kSlowSteps = 10, kSlowJacobians = 5;  // and how many of them end the search
constexpr int kFailuresForNewJacobian = 2;

enum class HybridStatus { solved, user_stop, too_many_evaluations, xtol_too_small, slow_jacobians, slow_steps };

struct HybridOutcome {
    HybridStatus status;
    Integer userflag = 0;
};

// How the core gets at the user's functions. Both return the user's flag: negative to stop.
struct System {
    FunctionRef<Integer(const double *x, double *fvec)> value;
    FunctionRef<Integer(const double *x, const double *fvec, RowMajor<double> fjac)> jacobian;
    Integer evaluations_per_jacobian; // values that one Jacobian costs
    Integer max_evaluations;
};

// Work space of the core, in one block.
struct HybridVectors {
    double *qtf, *step, *scaled_gradient, *trial, *trial_f, *predicted, *u, *w, *packed_r, *tau;
    Rotation *rotations;
    double *lapack;
    Integer lapack_size;

    static constexpr int kVectors = 9;
    static constexpr int kRotationVectors = 2 * sizeof(Rotation) / sizeof(double);
    static Count size(Integer n, Integer lapack_size)
    {
        return Count{n} * Count{kVectors + kRotationVectors} + packed_size(n) + Count{lapack_size};
    }
    static Count packed_size(Integer n) { return Count{(static_cast<std::int64_t>(n) * n + n) / 2}; }

    HybridVectors(double *block, Integer n, Integer lapack_elements) : lapack_size{lapack_elements}
    {
        for (double **vector : {&qtf, &step, &scaled_gradient, &trial, &trial_f, &predicted, &u, &w, &tau}) {
            *vector = block;
            block += n;
        }
        rotations = reinterpret_cast<Rotation *>(block);
        block += static_cast<std::ptrdiff_t>(kRotationVectors) * n;
        packed_r = block;
        lapack = block + packed_size(n).value();
    }
};

double norm(Integer n, const double *x) { return linalg::euclidean_norm(n, x, 1); }

// The step of length at most `delta` from the current point, for the model |qtf + R p|, with its sign changed.
void dogleg(PackedUpper r, const double *qtf, double delta, double *gradient, double *work, double *step)
{
    const Integer n = r.n;

    // The Gauss-Newton direction. A zero on the diagonal is replaced by something small beside its column.
    std::copy(qtf, qtf + n, step);
    for (Integer j = n - 1; j >= 0; --j) {
        double diagonal = r.row(j)[j];
        if (diagonal == 0.0) {
            double largest = 0.0;
            for (Integer i = 0; i <= j; ++i) largest = std::max(largest, std::fabs(r.row(i)[j]));
            diagonal = largest == 0.0 ? kPrecision : kPrecision * largest;
        }
        const double *row = r.row(j);
        step[j] = (step[j] - blas::dot(n - 1 - j, row + j + 1, 1, step + j + 1, 1)) / diagonal;
    }
    const double qnorm = norm(n, step);
    if (qnorm <= delta) return;

    std::copy(qtf, qtf + n, gradient);
    blas::tpmv(blas::kRowMajor, UpperTriangle, Transpose, NotUnitTriangular, n, r.r, gradient, 1);
    const double gnorm = norm(n, gradient);
    double sgnorm = 0.0;          // distance to the minimum along the gradient
    double alpha = delta / qnorm; // share of the Gauss-Newton step
    if (gnorm != 0.0) {
        for (Integer j = 0; j < n; ++j) gradient[j] /= gnorm;
        std::copy(gradient, gradient + n, work);
        blas::tpmv(blas::kRowMajor, UpperTriangle, NoTranspose, NotUnitTriangular, n, r.r, work, 1);
        const double image = norm(n, work);
        sgnorm = gnorm / image / image;
        alpha = 0.0; // the gradient alone already leads to the border of the region
        if (sgnorm < delta) {
            const double bnorm = norm(n, qtf);
            const double d = delta / qnorm;
            const double e = sgnorm / delta;
            const double t = (bnorm / gnorm) * (bnorm / qnorm) * e;
            const double rest = (1.0 - d) * (1.0 + d) * ((1.0 - e) * (1.0 + e));
            alpha = d * ((1.0 - e) * (1.0 + e)) / (std::sqrt((t - d) * (t - d) + rest) + t - d * e * e);
        }
    }
    const double along_gradient = (1.0 - alpha) * std::min(sgnorm, delta);
    for (Integer j = 0; j < n; ++j) step[j] = alpha * step[j] + (gnorm != 0.0 ? along_gradient * gradient[j] : 0.0);
}

// Q into `fjac`, R into `packed_r`. A row-major matrix is the transpose of what LAPACK sees: J = Q R is J' = R' Q'.
void factorise(Integer n, RowMajor<double> fjac, const HybridVectors &v)
{
    const auto ld = static_cast<Integer>(fjac.tda);
    lapack::gelqf(n, n, fjac.a, ld, v.tau, v.lapack, v.lapack_size);
    const PackedUpper r{v.packed_r, n};
    for (Integer i = 0; i < n; ++i) std::copy(fjac.row(i) + i, fjac.row(i) + n, r.row(i) + i);
    lapack::orglq(n, n, n, fjac.a, ld, v.tau, v.lapack, v.lapack_size);
}

void times_q(Integer n, RowMajor<double> q, const double *f, double *qtf)
{
    blas::gemv(blas::kRowMajor, Transpose, n, n, 1.0, q.a, static_cast<Integer>(q.tda), f, 1, 0.0, qtf, 1);
}

double reduction(double from, double to, double if_none)
{
    return to < from ? 1.0 - (to / from) * (to / from) : if_none;
}

HybridOutcome iterate(Integer n, const System &system, double *x, double *fvec, RowMajor<double> fjac, double xtol,
                      const HybridVectors &v)
{
    const PackedUpper r{v.packed_r, n};

    if (const Integer flag = system.value(x, fvec); flag < 0) return {HybridStatus::user_stop, flag};
    std::int64_t evaluations = 1;
    double fnorm = norm(n, fvec);
    double xnorm = 0.0;
    double delta = 0.0;
    bool first_step = true; // none accepted yet
    int successes = 0, failures = 0, slow_steps = 0, slow_jacobians = 0;

    for (;;) {
        if (const Integer flag = system.jacobian(x, fvec, fjac); flag < 0) return {HybridStatus::user_stop, flag};
        evaluations += system.evaluations_per_jacobian;
        bool fresh_jacobian = true;
        factorise(n, fjac, v);
        times_q(n, fjac, fvec, v.qtf);
        if (first_step) {
            xnorm = norm(n, x);
            delta = xnorm == 0.0 ? kStepFactor : kStepFactor * xnorm;
        }

        // The steps that share this Jacobian.
        for (;;) {
            dogleg(r, v.qtf, delta, v.scaled_gradient, v.predicted, v.step);
            for (Integer j = 0; j < n; ++j) {
                v.step[j] = -v.step[j];
                v.trial[j] = x[j] + v.step[j];
            }
            const double pnorm = norm(n, v.step);
            if (first_step) delta = std::min(delta, pnorm);

            if (const Integer flag = system.value(v.trial, v.trial_f); flag < 0) return {HybridStatus::user_stop, flag};
            ++evaluations;
            const double trial_norm = norm(n, v.trial_f);

            // What the model predicted: |qtf + R p|.
            std::copy(v.step, v.step + n, v.predicted);
            blas::tpmv(blas::kRowMajor, UpperTriangle, NoTranspose, NotUnitTriangular, n, r.r, v.predicted, 1);
            for (Integer j = 0; j < n; ++j) v.predicted[j] += v.qtf[j];
            const double actual = reduction(fnorm, trial_norm, -1.0);
            const double expected = reduction(fnorm, norm(n, v.predicted), 0.0);
            const double ratio = expected > 0.0 ? actual / expected : 0.0;

            if (ratio >= kPoor) {
                failures = 0;
                ++successes;
                if (ratio >= kGood || successes > 1) delta = std::max(delta, 2.0 * pnorm);
                if (std::fabs(ratio - 1.0) <= kNearlyExact) delta = 2.0 * pnorm;
            } else {
                successes = 0;
                ++failures;
                delta *= 0.5;
            }
            const bool accepted = ratio >= kAccept;
            if (accepted) {
                std::copy(v.trial, v.trial + n, x);
                std::copy(v.trial_f, v.trial_f + n, fvec);
                xnorm = norm(n, x);
                fnorm = trial_norm;
                first_step = false;
            }

            ++slow_steps;
            if (actual >= kSlow) slow_steps = 0;
            if (fresh_jacobian) ++slow_jacobians;
            if (actual >= kSlowJacobian) slow_jacobians = 0;

            if (delta <= xtol * xnorm || fnorm == 0.0 || pnorm == 0.0) return {HybridStatus::solved};
            // Of several reasons to give up the last one in this order is told.
            if (slow_steps == kSlowSteps) return {HybridStatus::slow_steps};
            if (slow_jacobians == kSlowJacobians) return {HybridStatus::slow_jacobians};
            if (delta <= kPrecision * xnorm) return {HybridStatus::xtol_too_small};
            if (evaluations >= system.max_evaluations) return {HybridStatus::too_many_evaluations};
            if (failures == kFailuresForNewJacobian) break;

            // Broyden's correction: the new Jacobian maps the step to the change of f that was seen. Against the
            // predicted vector, not the old qtf: only so the secant condition holds.
            times_q(n, fjac, v.trial_f, v.u);
            if (accepted) std::copy(v.u, v.u + n, v.qtf);
            for (Integer j = 0; j < n; ++j) {
                v.u[j] = (v.u[j] - v.predicted[j]) / pnorm;
                v.step[j] /= pnorm;
            }
            rank_one_update(r, v.u, v.step, v.w, v.rotations, fjac, v.qtf);
            fresh_jacobian = false;
        }
    }
}

void report_outcome(const Report &report, const HybridOutcome &outcome, double xtol, const char *limit)
{
    switch (outcome.status) {
    case HybridStatus::solved:
        return report.success();
    case HybridStatus::user_stop:
        return report.user_stop(outcome.userflag);
    case HybridStatus::too_many_evaluations:
        return report.error<NE_TOO_MANY_FUNC_EVAL>(limit);
    case HybridStatus::xtol_too_small:
        return report.error<NE_XTOL_TOO_SMALL>(xtol);
    case HybridStatus::slow_jacobians:
    case HybridStatus::slow_steps:
        return report.error<NE_NO_IMPROVEMENT>();
    }
    report.error<NE_INTERNAL_ERROR>();
}

Integer evaluation_limit(Integer n, Integer factor)
{
    const std::int64_t limit = static_cast<std::int64_t>(factor) * (static_cast<std::int64_t>(n) + 1);
    return static_cast<Integer>(std::min<std::int64_t>(limit, INT32_MAX));
}

Integer lapack_size_for(Integer n)
{
    constexpr Integer kBlockSize = 64; // at least LAPACK's block size: more work space would not be used
    return static_cast<Integer>(std::min<std::int64_t>(static_cast<std::int64_t>(n) * kBlockSize, INT32_MAX));
}

} // namespace

void solve_by_differences(const Report &report, Integer n, SystemFunction f, double *x, double *fvec, double xtol)
{
    if (n <= 0) return report.error<NE_INT_ARG_LE>("n", "0", "n", n);
    if (!(xtol >= 0.0)) return report.error<NE_REAL_ARG_LT>("xtol", "0.0", "xtol", xtol);

    const Integer lapack_size = lapack_size_for(n);
    const Count matrix = Count{n} * Count{n};
    const Count two_vectors = Count{n} * Count{2};
    Workspace<double> work{matrix + two_vectors + HybridVectors::size(n, lapack_size)};
    if (!work) return report.error<NE_ALLOC_FAIL>();
    double *const shifted_x = work.data() + matrix.value();
    double *const shifted_f = shifted_x + n;
    const HybridVectors vectors{shifted_f + n, n, lapack_size};

    const auto value = [&](const double *at, double *values) {
        Integer flag = kWantsFunction;
        f(at, values, &flag);
        return flag;
    };
    const double relative_step = std::sqrt(kPrecision);
    const auto jacobian = [&](const double *at, const double *values, RowMajor<double> fjac) {
        std::copy(at, at + n, shifted_x);
        for (Integer j = 0; j < n; ++j) {
            const double h = at[j] == 0.0 ? relative_step : relative_step * std::fabs(at[j]);
            shifted_x[j] = at[j] + h;
            Integer flag = kWantsJacobian;
            f(shifted_x, shifted_f, &flag);
            if (flag < 0) return flag;
            const double step_taken = shifted_x[j] - at[j];
            for (Integer i = 0; i < n; ++i) fjac(i, j) = (shifted_f[i] - values[i]) / step_taken;
            shifted_x[j] = at[j];
        }
        return kWantsJacobian;
    };
    const System system{value, jacobian, n, evaluation_limit(n, 200)};
    report_outcome(report, iterate(n, system, x, fvec, {work.data(), n}, xtol, vectors), xtol, "200*(n+1)");
}

void solve_with_jacobian(const Report &report, Integer n, SystemWithJacobian f, double *x, double *fvec, double *fjac,
                         Integer tdfjac, double xtol)
{
    if (n <= 0) return report.error<NE_INT_ARG_LE>("n", "0", "n", n);
    if (tdfjac < n) return report.error<NE_2_INT_ARG_LT>("tdfjac", tdfjac, "n", n, "tdfjac", "n");
    if (!(xtol >= 0.0)) return report.error<NE_REAL_ARG_LT>("xtol", "0.0", "xtol", xtol);

    const Integer lapack_size = lapack_size_for(n);
    Workspace<double> work{HybridVectors::size(n, lapack_size)};
    if (!work) return report.error<NE_ALLOC_FAIL>();
    const HybridVectors vectors{work.data(), n, lapack_size};

    const RowMajor<double> user_jacobian{fjac, tdfjac};
    const auto value = [&](const double *at, double *values) {
        Integer flag = kWantsFunction;
        f(at, values, user_jacobian, &flag);
        return flag;
    };
    const auto jacobian = [&](const double *at, const double *values, RowMajor<double> matrix) {
        Integer flag = kWantsJacobian;
        f(at, const_cast<double *>(values), matrix, &flag);
        return flag;
    };
    const System system{value, jacobian, 0, evaluation_limit(n, 100)};
    report_outcome(report, iterate(n, system, x, fvec, user_jacobian, xtol, vectors), xtol, "100*(n+1)");
}

} // namespace kor::roots
