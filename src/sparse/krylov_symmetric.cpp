// Iterative methods for symmetric systems by reverse communication.
//
// Conjugate gradients: M. R. Hestenes and E. Stiefel, J. Res. Nat. Bur. Standards 49 (1952) 409-436. Lanczos: SYMMLQ of C. C.
// Paige and M. A. Saunders, SIAM J. Numer. Anal. 12 (1975) 617-629, whose names for the factors are kept here; of its point
// and that of the conjugate gradients the one with the smaller residual counts.
#include "sparse/krylov_symmetric.hpp"

#include <algorithm>
#include <cmath>
#include <new>
#include <type_traits>
#include <utility>

namespace kor::sparse {

SymmetricSolver *SymmetricSolver::create(const SymmetricRules &rules, Workspace<double> &block)
{
    static_assert(std::is_trivially_copyable_v<SymmetricSolver>, "freed without a destructor, with its block");
    constexpr std::size_t front = (sizeof(SymmetricSolver) + sizeof(double) - 1) / sizeof(double);
    const bool lanczos = rules.method == SymmetricMethod::lanczos;
    const int vectors = 5 + rules.preconditioned + 2 * lanczos;
    const Integer singular_steps = rules.estimate_singular_value ? rules.singular_steps : 0;
    if (!block.allocate(Count{front} + Count{vectors} * Count{rules.n} + Count{2} * Count{singular_steps}))
        return nullptr;

    auto *const solver = new (block.data()) SymmetricSolver;
    double *next = block.data() + front;
    const auto vector = [&](bool wanted) { return wanted ? std::exchange(next, next + rules.n) : nullptr; };
    solver->rules_ = rules;
    solver->x_ = vector(true);
    solver->b_ = vector(true);
    solver->r_ = vector(true);
    solver->p_ = vector(true);
    solver->q_ = vector(true);
    solver->z_ = vector(rules.preconditioned);
    solver->w_ = vector(lanczos);
    solver->previous_ = vector(lanczos);
    solver->singular_.begin(next, singular_steps, rules.singular_tolerance);
    solver->test_ = {StoppingTest::tolerance(rules.tol), rules.matrix_norm};
    solver->weight_ = nullptr;
    solver->stage_ = Stage::over;
    solver->count_ = 0;
    solver->residual_ = solver->bound_ = 0.0;
    return solver;
}

Request SymmetricSolver::ask(Request request, Stage stage, const double source[], double target[])
{
    stage_ = stage;
    source_ = source;
    target_ = target;
    return request;
}

Request SymmetricSolver::ask_to_precondition(Stage next)
{
    return rules_.preconditioned ? ask(Request::precondition, next, r_, z_) : resume(next);
}

Request SymmetricSolver::finish(Solved outcome)
{
    outcome_ = outcome;
    stage_ = Stage::over;
    return Request::finished;
}

Request SymmetricSolver::proceed() { return resume(stage_); }

Request SymmetricSolver::resume(Stage stage)
{
    switch (stage) {
    case Stage::norm_product:
        return norm_product();
    case Stage::first_product:
        return first_product();
    case Stage::cg_preconditioned:
        return cg_preconditioned();
    case Stage::cg_product:
        return cg_product();
    case Stage::lanczos_start:
        return lanczos_start();
    case Stage::lanczos_product:
        return lanczos_product();
    case Stage::lanczos_preconditioned:
        return lanczos_preconditioned();
    case Stage::check_product:
        return check_product();
    case Stage::check_preconditioned:
        return check_preconditioned();
    case Stage::looked:
        return next_iteration();
    case Stage::over:
        break;
    }
    return Request::finished;
}

// --- the start

Request SymmetricSolver::start(const double b[], const double x[])
{
    const Integer n = rules_.n;
    std::copy_n(b, n, b_);
    std::copy_n(x, n, x_);
    count_ = 0;
    cycle_ = 0;
    residual_ = bound_ = 0.0;
    last_check_ = -1.0;
    scale_ = 1.0;
    residual_known_ = false;
    lanczos_ = {};
    lanczos_.reference = -1.0;
    singular_.reset();
    test_.right_hand_norm = norm(b_);
    if (all_zero(n, b_)) {
        std::fill_n(x_, n, 0.0);
        std::fill_n(r_, n, 0.0);
        residual_known_ = fresh_ = true;
        return finish(Solved::converged);
    }
    if (rules_.estimate_norm && !rules_.test_transformed) {
        first_norm_ = -1.0;
        inverse_weights_ = rules_.norm == Norm::infinity;
        return begin_norm_estimate();
    }
    if (all_zero(n, x_)) {
        std::copy_n(b_, n, r_);
        return begin_cycle();
    }
    return ask(Request::multiply, Stage::first_product, x_, q_);
}

// With weights W the norm is that of B = W A W^-1, in whose products A stands between divisions and multiplications.
void SymmetricSolver::weigh_estimate(double v[], bool before) const
{
    if (weight_ == nullptr) return;
    const bool transposed = inverse_weights_ != norm_estimate_.wants_transpose();
    for (Integer i = 0; i < rules_.n; ++i) v[i] = transposed == before ? v[i] * weight_[i] : v[i] / weight_[i];
}

Request SymmetricSolver::begin_norm_estimate()
{
    norm_estimate_.begin(rules_.n, p_);
    weigh_estimate(p_, true);
    return ask(Request::multiply, Stage::norm_product, p_, q_);
}

Request SymmetricSolver::norm_product()
{
    weigh_estimate(q_, false);
    if (norm_estimate_.advance(q_, p_)) {
        weigh_estimate(p_, true);
        return ask(Request::multiply, Stage::norm_product, p_, q_);
    }
    test_.matrix_norm = norm_estimate_.value();
    // The 2-norm is at most the geometric mean of the other two, which are equal for a symmetric matrix without weights.
    if (rules_.norm == Norm::two && weight_ != nullptr) {
        if (first_norm_ < 0.0) {
            first_norm_ = norm_estimate_.value();
            inverse_weights_ = true;
            return begin_norm_estimate();
        }
        test_.matrix_norm = std::sqrt(first_norm_) * std::sqrt(norm_estimate_.value());
    }
    if (all_zero(rules_.n, x_)) {
        std::copy_n(b_, rules_.n, r_);
        return begin_cycle();
    }
    return ask(Request::multiply, Stage::first_product, x_, q_);
}

Request SymmetricSolver::first_product()
{
    subtract(rules_.n, b_, q_, r_);
    return begin_cycle();
}

// r_ is the residual of x_.
Request SymmetricSolver::begin_cycle()
{
    scale_ = 1.0;
    residual_known_ = fresh_ = true;
    lanczos_.cg_step = 0.0;
    lanczos_.cg_is_better = false;
    if (rules_.test_transformed) {
        if (all_zero(rules_.n, r_)) {
            residual_ = bound_ = 0.0;
            return finish(Solved::converged);
        }
    } else {
        residual_ = norm(r_);
        bound_ = test_.bound(norm(x_));
        if (passes()) return finish(Solved::converged);
        if (!std::isfinite(residual_)) return finish(Solved::not_converged);
    }
    scale_ = scale_of(rules_.n, r_);
    scale(rules_.n, 1.0 / scale_, r_);
    if (rules_.method == SymmetricMethod::lanczos) return ask_to_precondition(Stage::lanczos_start);
    rho_ = 0.0;
    residual_squared_ = dot(rules_.n, r_, r_);
    return ask_to_precondition(Stage::cg_preconditioned);
}

// --- what the methods share after an iteration

Request SymmetricSolver::after_iteration()
{
    if (passes()) return conclude(Solved::converged);
    if (count_ >= rules_.limit || !std::isfinite(residual_)) return conclude(Solved::not_converged);
    if (!rules_.monitored) return next_iteration();
    stage_ = Stage::looked;
    return Request::monitor;
}

Request SymmetricSolver::next_iteration()
{
    if (rules_.method == SymmetricMethod::conjugate_gradient) return ask_to_precondition(Stage::cg_preconditioned);
    Lanczos &l = lanczos_;
    ++l.step;
    l.old_beta = l.beta;
    l.beta = l.next_beta;
    set_multiple(rules_.n, 1.0 / l.beta, z(), p_);
    return ask(Request::multiply, Stage::lanczos_product, p_, q_);
}

// Whatever the recurrence says, the residual is computed from x before the end.
Request SymmetricSolver::conclude(Solved pending)
{
    pending_ = pending;
    move_to_best_point();
    residual_known_ = false;
    return ask(Request::multiply, Stage::check_product, x_, q_);
}

Request SymmetricSolver::check_product()
{
    subtract(rules_.n, b_, q_, r_);
    scale_ = 1.0;
    residual_known_ = fresh_ = true;
    if (rules_.test_transformed) return ask_to_precondition(Stage::check_preconditioned);
    residual_ = norm(r_);
    bound_ = test_.bound(norm(x_));
    return judge();
}

Request SymmetricSolver::check_preconditioned()
{
    residual_ = std::sqrt(std::max(0.0, dot(rules_.n, r_, z())));
    return judge();
}

Request SymmetricSolver::judge()
{
    if (passes()) return finish(Solved::converged);
    if (pending_ != Solved::converged) return finish(pending_);
    if (residual_ <= kForgivenFactor * bound_ && std::isfinite(bound_)) return finish(Solved::converged);
    if (!std::isfinite(residual_)) return finish(Solved::not_converged);
    const bool stagnates = last_check_ >= 0.0 && residual_ > kProgress * last_check_;
    if (stagnates) return finish(outcome_of_stagnation(residual_, bound_, test_.tol));
    if (count_ >= rules_.limit) return finish(Solved::not_converged);
    last_check_ = residual_;
    ++cycle_;
    return begin_cycle();
}

// --- conjugate gradients

Request SymmetricSolver::cg_preconditioned()
{
    const double rho = rules_.preconditioned ? dot(rules_.n, r_, z_) : residual_squared_;
    if (!std::isfinite(rho)) return conclude(Solved::not_converged);
    if (rho <= 0.0) return conclude(Solved::preconditioner_not_definite);
    if (fresh_)
        std::copy_n(z(), rules_.n, p_);
    else
        multiple_plus(rules_.n, z(), rho / rho_, p_);
    // The tridiagonal matrix of the Lanczos process that goes with the iteration.
    if (gathers_singular_value()) {
        tridiagonal_ = fresh_ ? 0.0 : rho / rho_ / alpha_;
        tridiagonal_square_ = fresh_ ? 0.0 : rho / rho_ / alpha_ / alpha_;
    }
    rho_ = rho;
    return ask(Request::multiply, Stage::cg_product, p_, q_);
}

Request SymmetricSolver::cg_product()
{
    const double curvature = dot(rules_.n, p_, q_);
    const double alpha = rho_ / curvature;
    if (std::isnan(curvature)) return conclude(Solved::not_converged);
    if (!(curvature > 0.0) || !std::isfinite(alpha)) return conclude(Solved::not_definite);
    alpha_ = alpha;
    const AfterStep after = step_along(rules_.n, alpha, scale_, p_, q_, x_, r_);
    fresh_ = false;
    residual_squared_ = after.residual_squared;
    ++count_;
    if (gathers_singular_value()) singular_.add(1.0 / alpha + tridiagonal_, tridiagonal_square_);

    const bool known = rules_.norm == Norm::infinity && weight_ == nullptr;
    // The maxima do not show a NaN; the sum of squares does.
    const double nothing = residual_squared_ - residual_squared_;
    residual_ = scale_ * (known ? after.residual + nothing : norm(r_));
    bound_ = test_.bound(known ? after.solution : norm(x_));
    return after_iteration();
}

// --- Lanczos

Request SymmetricSolver::lanczos_start()
{
    const double rho = dot(rules_.n, r_, z());
    if (!std::isfinite(rho)) return conclude(Solved::not_converged);
    if (rho <= 0.0) return conclude(Solved::preconditioner_not_definite);
    const double reference = lanczos_.reference;
    lanczos_ = {};
    lanczos_.beta = std::sqrt(rho);
    lanczos_.reference = reference >= 0.0 ? reference : scale_ * lanczos_.beta;
    set_multiple(rules_.n, 1.0 / lanczos_.beta, z(), p_);
    return ask(Request::multiply, Stage::lanczos_product, p_, q_);
}

// Makes the product orthogonal to the last two basis vectors.
Request SymmetricSolver::lanczos_product()
{
    Lanczos &l = lanczos_;
    const Integer n = rules_.n;
    l.alpha = l.step == 0 ? dot(n, p_, q_) : add_multiple_dot(n, -l.beta / l.old_beta, previous_, q_, p_);
    add_multiple(n, -l.alpha / l.beta, r_, q_);
    residual_known_ = false;
    double *const free = previous_;
    previous_ = r_;
    r_ = q_;
    q_ = free;
    return ask_to_precondition(Stage::lanczos_preconditioned);
}

Request SymmetricSolver::lanczos_preconditioned()
{
    Lanczos &l = lanczos_;
    const double rho = dot(rules_.n, r_, z());
    if (!std::isfinite(rho)) return conclude(Solved::not_converged);
    if (rho < 0.0) return conclude(Solved::preconditioner_not_definite);
    l.next_beta = std::sqrt(rho);
    if (gathers_singular_value()) singular_.add(l.alpha, l.beta * l.beta);
    lanczos_advance();
    ++count_;
    lanczos_measure();
    fresh_ = false;
    residual_known_ = true;
    // The space is exhausted: there is nothing better in it.
    const double size = std::abs(l.alpha) + (l.step > 0 ? l.beta : 0.0);
    if (l.next_beta <= kPrecision * size) return conclude(Solved::converged);
    return after_iteration();
}

// Takes the new column of the tridiagonal matrix into its LQ factors, and moves along.
void SymmetricSolver::lanczos_advance()
{
    Lanczos &l = lanczos_;
    if (l.step == 0) {
        l.gamma_bar = l.alpha;
        l.delta_bar = l.next_beta;
        l.right = l.beta;
        l.next_right = 0.0;
        std::copy_n(p_, rules_.n, w_);
        l.cg_step = l.last_part = l.right / l.gamma_bar;
        return;
    }
    const double gamma = std::hypot(l.gamma_bar, l.beta);
    const double cosine = l.gamma_bar / gamma, sine = l.beta / gamma;
    const double delta = cosine * l.delta_bar + sine * l.alpha;
    l.gamma_bar = sine * l.delta_bar - cosine * l.alpha;
    const double epsilon = sine * l.next_beta;
    l.delta_bar = -cosine * l.next_beta;
    const double zeta = l.right / gamma;
    const double along_w = scale_ * zeta * cosine, along_v = scale_ * zeta * sine;
    for (Integer i = 0; i < rules_.n; ++i) {
        x_[i] += along_w * w_[i] + along_v * p_[i];
        w_[i] = sine * w_[i] - cosine * p_[i];
    }
    l.step_squares += zeta * zeta;
    l.right = l.next_right - delta * zeta;
    l.next_right = -epsilon * zeta;
    l.cg_step = l.right / l.gamma_bar;
    l.last_part = sine * zeta - cosine * l.cg_step;
}

// The two sides of the test, for the better of the two points.
void SymmetricSolver::lanczos_measure()
{
    Lanczos &l = lanczos_;
    const Integer n = rules_.n;
    if (rules_.test_transformed) {
        const double of_cg = std::abs(l.last_part) * l.next_beta, of_lq = std::hypot(l.right, l.next_right);
        l.cg_is_better = of_cg <= of_lq;
        residual_ = scale_ * (l.cg_is_better ? of_cg : of_lq);
        const double moved = std::sqrt(l.step_squares + (l.cg_is_better ? l.cg_step * l.cg_step : 0.0));
        const double largest = rules_.estimate_singular_value ? singular_.value() : rules_.largest_singular_value;
        bound_ = test_.tol * (l.reference + largest * scale_ * moved);
        return;
    }
    const double of_cg = std::abs(l.last_part) * norm(r_);
    set_multiple(n, l.right / l.beta, previous_, q_);
    if (l.next_right != 0.0) add_multiple(n, l.next_right / l.next_beta, r_, q_);
    const double of_lq = norm(q_);
    l.cg_is_better = of_cg <= of_lq;
    residual_ = scale_ * (l.cg_is_better ? of_cg : of_lq);
    if (l.cg_is_better) {
        std::copy_n(x_, n, q_);
        add_multiple(n, scale_ * l.cg_step, w_, q_);
    }
    bound_ = test_.bound(norm(l.cg_is_better ? q_ : x_));
}

void SymmetricSolver::move_to_best_point()
{
    Lanczos &l = lanczos_;
    if (rules_.method != SymmetricMethod::lanczos || !l.cg_is_better) return;
    add_multiple(rules_.n, scale_ * l.cg_step, w_, x_);
    l.cg_is_better = false;
}

// --- what callers see

void SymmetricSolver::stop()
{
    if (stage_ == Stage::over) return;
    // The point moves away from the vectors that its residual is made of.
    if (rules_.method == SymmetricMethod::lanczos && residual_known_ && !fresh_) {
        look(q_, q_);
        std::copy_n(q_, rules_.n, r_);
        scale_ = 1.0;
        fresh_ = true;
    }
    move_to_best_point();
    stage_ = Stage::over;
}

void SymmetricSolver::look(double x[], double r[]) const
{
    const Lanczos &l = lanczos_;
    const Integer n = rules_.n;
    std::copy_n(x_, n, x);
    if (rules_.method == SymmetricMethod::lanczos && l.cg_is_better) add_multiple(n, scale_ * l.cg_step, w_, x);
    if (!residual_known_) return;
    if (rules_.method == SymmetricMethod::conjugate_gradient || fresh_) return set_multiple(n, scale_, r_, r);
    if (l.cg_is_better) return set_multiple(n, -scale_ * l.last_part, r_, r);
    set_multiple(n, scale_ * l.right / l.beta, previous_, r);
    if (l.next_right != 0.0) add_multiple(n, scale_ * l.next_right / l.next_beta, r_, r);
}

SymmetricFigures SymmetricSolver::figures() const
{
    const bool estimated = rules_.estimate_singular_value;
    return {.count = count_,
            .residual = residual_,
            .bound = bound_,
            .matrix_norm = test_.matrix_norm,
            .singular_value = estimated ? singular_.value() : rules_.largest_singular_value,
            .singular_steps = estimated ? singular_.steps() : 0,
            .singular_change = estimated ? singular_.change() : 0.0};
}

} // namespace kor::sparse
