// Adams method of variable order and variable step, PECE with local extrapolation, in modified divided differences.
//
//     kor::Workspace<double> work{Adams::workspace(neq)};
//     Adams adams;
//     adams.start(neq, work.data(), t, y, f, tout);
//     while (ahead_of(adams.t())) {                       // one step at a time; the last may pass the point of interest
//         if (adams.step(f, tolerances, stop, hmax) != AdamsOutcome::taken) ...
//         adams.interpolate(x, neq, y, yp);               // anywhere between adams.t_old() and adams.t()
//     }
//
// The object is plain data over the caller's block: it may be kept in a record between calls. It calls nobody but f.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

#include <kor.h>

#include "frame/function_ref.hpp"
#include "frame/workspace.hpp"

namespace kor::ode {

// y' at (t, y).
using Derivative = FunctionRef<void(double t, const double *y, double *yp)>;

// A local error e is acceptable when sum (e_i / (rtol_i |y_i| + atol_i))^2 <= 1. One pair of numbers or one for each component.
struct Tolerances {
    const double *rtol;
    const double *atol;
    bool each_component;

    double weight(std::size_t i, double y) const
    {
        const std::size_t which = each_component ? i : 0;
        return rtol[which] * std::fabs(y) + atol[which];
    }
};

enum class AdamsOutcome {
    taken,
    too_accurate, // doubles cannot give the accuracy asked for: see tolerance_factor()
    zero_weight,  // see bad_component()
};

class Adams {
  public:
    static constexpr int kMaxOrder = 12;
    static constexpr double kNoStop = std::numeric_limits<double>::infinity();

    // Room for one component more, so that pairs come out even.
    static Count workspace(Integer neq) { return (Count{neq} + Count{1}) * kVectors; }

    // Begins at (t, y) towards t_end. Evaluates f once.
    void start(Integer neq, double *work, double t, const double *y, Derivative f, double t_end);

    // One step, no longer than hmax (0: no limit), and not beyond t_stop (infinite: no limit).
    AdamsOutcome step(Derivative f, const Tolerances &tolerances, double t_stop, double hmax);

    // The first nwant components of the solution and of its derivative at a point of the last step; either may be null. Before the
    // first step: at its start. Values and derivatives join continuously from step to step.
    void interpolate(double t, Integer nwant, double *y, double *yp);

    std::size_t size() const { return n_; }
    double t() const { return t_; }         // the point reached
    double t_old() const { return t_old_; } // the one before
    const double *y() const { return y_; }
    const double *yp() const { return phi(1); }
    double direction() const { return direction_; }
    double last_step() const { return h_old_; }
    double next_step() const { return h_; }
    int last_order() const { return k_old_; }
    int64_t steps() const { return steps_; }
    // Steps in a row of order four or less: fifty of them are the mark of a stiff problem.
    int64_t low_order_steps() const { return low_order_steps_; }
    double tolerance_factor() const { return tolerance_factor_; } // by which the tolerances must grow
    Integer bad_component() const { return bad_component_; }      // counted from 0

  private:
    // Arrays over the order count from 1, as the formulae do.
    using OrderArray = std::array<double, kMaxOrder + 3>;
    // Sums over the components of squared terms, by their weights.
    struct Sums {
        double here;  // of what the slope was off by
        double below; // and of the differences k and k-1 that go with it
        double below2;
        double nothing; // 0, or NaN when the corrected solution is not finite
    };
    // Squares of estimates of the local error.
    struct Errors {
        double test;     // of the step as it was taken: must not exceed 1
        double at_order; // of order k
        double below;    // of order k-1
        int order;       // the better of k and k-1
    };
    static constexpr int kRows = kMaxOrder + 2;
    static constexpr int kVectors = 2 * kRows + 9;

    double *phi(int i) const { return phi_ + std::size_t(i - 1) * even_; }
    double *expected(int i) const { return expected_ + std::size_t(i - 1) * even_; }
    void lay_out(double *work);
    double weigh(const Tolerances &tolerances);
    void choose_first_step();
    bool find_coefficients();
    void predict();
    Sums correct();
    double update_differences();
    template <class Vector>
    void predict_components(std::size_t first, std::size_t last);
    template <class Vector>
    Sums correct_components(std::size_t first, std::size_t last);
    template <class Vector>
    double update_components(std::size_t first, std::size_t last);
    Errors errors_from(const Sums &sums) const;
    double move_on(Derivative f);
    void choose_next(const Errors &errors, double above);
    void fail(const Errors &errors, int failures);
    double smallest_step() const;
    void integral_coefficients(double hi, int terms, double *integral, double *value) const;
    void close_interpolant();

    double *phi_, *expected_, *y_, *y_old_, *predicted_, *yp_predicted_, *reciprocal_weight_, *rounding_,
        *rounding_predicted_, *closing_, *y_try_;
    std::size_t n_, even_, lines_; // components; with one more if need be; those in whole cache lines
    double t_, t_old_, t_end_, h_, h_old_, direction_, tolerance_factor_;
    OrderArray psi_, psi_next_, alpha_, beta_, sigma_, g_, column_;
    int64_t steps_, low_order_steps_;
    int k_, k_old_, equal_steps_, settled_; // settled: coefficients that equal steps do not change any more
    Integer bad_component_;
    bool growing_, weighed_start_, closed_;
};

} // namespace kor::ode
