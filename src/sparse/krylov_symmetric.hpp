// Iterative methods for symmetric systems A x = b by reverse communication: conjugate gradients, and the method of Lanczos
// for matrices that may be indefinite. The preconditioner M must be symmetric and positive definite.
//
// The object lies at the front of a block of memory and its vectors behind it. Each call of proceed() returns what is wanted
// next: a product of source() into target(), by A or by M^-1, or a look at the iteration, or nothing any more.
#pragma once

#include <cmath>

#include <kor.h>

#include "frame/workspace.hpp"
#include "sparse/largest_singular_value.hpp"
#include "sparse/norm_estimate.hpp"
#include "sparse/solution.hpp"
#include "sparse/vectors.hpp"

namespace kor::sparse {

enum class SymmetricMethod { conjugate_gradient, lanczos };

struct SymmetricRules {
    SymmetricMethod method;
    Integer n;
    bool preconditioned;
    double tol;
    Integer limit; // of iterations
    Norm norm;
    double matrix_norm; // of A in `norm`
    bool estimate_norm = false;
    bool weighted = false;
    // Lanczos only: tests the residual of the symmetrically preconditioned system, in its 2-norm, against the largest
    // singular value of that system.
    bool test_transformed = false;
    double largest_singular_value = 0.0; // 0: not known
    bool estimate_singular_value = false;
    double singular_tolerance = 0.0;
    Integer singular_steps = 0;
    bool monitored = false;
};

enum class Request { multiply = 1, precondition, monitor, finished };

// What is known of an iteration, while it runs and afterwards.
struct SymmetricFigures {
    Integer count;
    double residual, bound; // the two sides of the stopping test
    double matrix_norm;
    double singular_value;
    Integer singular_steps;
    double singular_change;
};

class SymmetricSolver {
  public:
    // Null if the memory cannot be had. Release what owns the block and the object is gone.
    static SymmetricSolver *create(const SymmetricRules &, Workspace<double> &block);

    // Null for weights of 1, which is what holds until something else is said. Before start(), and again whenever they have
    // moved; their values must not change.
    void use_weight(const double weight[]) { weight_ = weight; }
    Request start(const double b[], const double x[]);
    Request proceed();
    void stop(); // puts the best iterate into solution()

    Integer order() const { return rules_.n; }
    bool is_weighted() const { return rules_.weighted; }
    const double *source() const { return source_; }
    double *target() const { return target_; }
    const double *solution() const { return x_; }
    bool residual_known() const { return residual_known_; }
    void look(double x[], double r[]) const; // the present iterate, and its residual if known

    Solved outcome() const { return outcome_; }
    SymmetricFigures figures() const;

  private:
    enum class Stage {
        norm_product,
        first_product,
        cg_preconditioned,
        cg_product,
        lanczos_start,
        lanczos_product,
        lanczos_preconditioned,
        check_product,
        check_preconditioned,
        looked,
        over
    };

    Request ask(Request, Stage, const double source[], double target[]);
    Request ask_to_precondition(Stage next);
    double norm(const double v[]) const { return norm_of(rules_.norm, rules_.n, v, weight_); }

    const double *z() const { return rules_.preconditioned ? z_ : r_; } // M^-1 r
    bool passes() const { return residual_ <= bound_ && std::isfinite(bound_); }
    bool gathers_singular_value() const { return rules_.estimate_singular_value && cycle_ == 0; }

    Request resume(Stage);
    Request begin_norm_estimate();
    void weigh_estimate(double v[], bool before) const;
    Request norm_product();
    Request first_product();
    Request begin_cycle();
    Request after_iteration();
    Request next_iteration();
    Request conclude(Solved);
    Request check_product();
    Request check_preconditioned();
    Request judge();
    Request finish(Solved);

    Request cg_preconditioned();
    Request cg_product();

    Request lanczos_start();
    Request lanczos_product();
    Request lanczos_preconditioned();
    void lanczos_advance();
    void lanczos_measure();
    void move_to_best_point();

    SymmetricRules rules_;
    StoppingTest test_;
    const double *weight_;
    Stage stage_;
    Solved outcome_;
    Solved pending_; // while the residual is checked
    const double *source_;
    double *target_;
    Integer count_;
    double residual_, bound_; // the two sides of the test
    double last_check_;       // the residual of the last check; negative before the first
    double scale_;            // r_ and what is made of it are divided by this
    Integer cycle_;           // from 0; a check that fails begins another
    bool residual_known_;
    bool fresh_; // r_ is the residual of x_, and no step has been taken from there

    double *x_, *b_, *r_, *z_, *p_, *q_;
    double *w_, *previous_; // Lanczos only

    NormEstimate norm_estimate_;
    double first_norm_; // of the two whose geometric mean bounds a weighted 2-norm; negative before
    bool inverse_weights_;
    LargestSingularValue singular_;

    // Conjugate gradients.
    double rho_, alpha_, residual_squared_;
    double tridiagonal_, tridiagonal_square_; // what the step adds to the matrix of the Lanczos process

    // Lanczos: the elements of the tridiagonal matrix, what its factors pass on, the solution in their terms; and the point of
    // the conjugate gradients, x_ + scale_ cg_step w_, whose component along the last basis vector is last_part.
    struct Lanczos {
        double alpha, old_beta, beta, next_beta;
        double gamma_bar, delta_bar;
        double right, next_right;
        double step_squares; // squared norm of all steps of the cycle
        double cg_step, last_part;
        bool cg_is_better;
        Integer step;
        double reference; // norm of the transformed residual at the start; negative before
    } lanczos_;
};

} // namespace kor::sparse
