// Explicit Runge-Kutta integration with step control: one integration as a view of the caller's record.
//
// The record holds every number and owns two blocks of doubles; nothing here outlives a call. The routines of the suite check
// their calling order (runge_kutta_calls.hpp), form the view, and let it work.
#pragma once

#include <cstddef>

#include <kor/d02.h>

#include "frame/workspace.hpp"

namespace kor::ode {

// The caller's right-hand side.
struct RightHandSide {
    Integer neq;
    void (*f)(Integer neq, double t, const double y[], double yp[], void *comm);
    void *comm;

    void operator()(double t, const double *y, double *yp) const { f(neq, t, y, yp, comm); }
};

// What became of a step. The numbers are the statuses that the record keeps.
enum class StepStatus {
    taken = 0,
    stops_too_frequent = 2,
    much_work = 3,
    stiff = 4,
    step_too_small = 5,
    assessment_failed = 6,
};

// The fixed figures of a pair, for code that does not depend on its coefficients.
struct PairFigures {
    int stages;
    int slots;
    bool first_same_as_last;
    int cost;
    int order; // of the error estimate
    double stability_radius;
    double sector_tangent;
    int secondary_steps;
    double smallest_gap;
    bool interpolant;
};
const PairFigures &figures_of(Integer method);

inline constexpr Integer kMuchWork = 5000; // evaluations between two warnings; what the stiffness monitor calls much

class RungeKutta {
  public:
    // The work block must be in place. `f` may be null where no derivative will be wanted.
    RungeKutta(KorRKState &state, const RightHandSide *f);

    static Count work_size(Integer neq, Integer method, bool errass);
    static Count interpolant_size(Integer nwant) { return Count{5} * nwant; }

    // Sets the integration to its start.
    void begin(const double *ystart, const double *thres);
    // Evaluates the derivative at the start and chooses the first step.
    void start();
    // Takes one step towards tend. A warning comes before the step: the point has not moved.
    StepStatus step();
    // Makes way for steps to another end.
    void reset_end(double tend);

    // Brings the interpolant of the last step up to date in the record's block for it.
    void prepare_interpolant(Integer nwant);
    // The solution and its derivative at t, from the interpolant; either may be null.
    void interpolate(double t, Integer nwant, double *y, double *yp) const;

    // The least step at a point between t1 and t2 that doubles can tell from none.
    double smallest_step(double t1, double t2) const;
    // How many evaluations it will take to reach the end of the range, as things stand.
    double work_ahead() const;

    const double *y() const { return y_; }
    const double *yp() const { return yp_; }
    double *largest() const { return largest_; }
    const double *squared_errors() const { return squares_; }

  private:
    struct Try {
        double error;    // weighted; NaN for a step that went astray
        bool restrained; // the step is too long for the problem: h has been cut
    };
    void limit_step_to_end();
    Try attempt();
    double restraint(double t, const double *stage_y, const double *stage_yp) const;
    double next_factor(double root) const;
    void move_on(double root, bool failed, double factor);
    bool assess();
    bool stiffness_is_due(bool much_work);
    bool looks_stiff();
    void jacobian_product(const double *v, double perturbation, double *product);
    double weight(std::size_t i) const;
    double t_next() const { return state_.last ? state_.tend : state_.tnow + state_.h; }

    // Two sets of stages take turns: the last step keeps its own for the interpolant while the next is being tried.
    double *stages_of_last_step() const { return stages_ + bank_size_ * state_.bank; }
    double *stages_of_this_try() const { return stages_ + bank_size_ * (1 - state_.bank); }

    KorRKState &state_;
    const RightHandSide *f_;
    const PairFigures &pair_;
    std::size_t n_, bank_size_;
    double *thres_, *y_, *yp_, *y_old_, *y_new_, *largest_, *scratch_, *products_, *stages_;
    double *second_y_, *second_yp_, *second_new_, *second_stages_, *squares_; // null without the assessment
};

} // namespace kor::ode
