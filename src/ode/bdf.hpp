// One problem in the hands of the backward differentiation method: what lies in a KorBdfState between calls, and the method.
//
// The solution behind the current point is kept as modified divided differences on the steps as they were taken,
//
//     phi_1 = y_n,   phi_i = psi_1 ... psi_(i-1) y[t_n, ..., t_(n-i+1)],   psi_j = t_n - t_(n-j),
//
// column i - 1 of `ysav`. With a new step h each is scaled by beta_i = prod psi_j(new) / psi_j(old); the predictor is the sum
// of the first k + 1, and with e = y - predictor the method of order k reads
//
//     alpha e + h predictor' = h f(t, predictor + e),   alpha = h sum_(j = 1..k) 1 / psi_j(new):
//
// the polynomial through the new and the last k values has the slope f at the new point, whatever the steps were. Its local
// error is h / (alpha psi_(k+1)) e to leading order.
#pragma once

#include <kor/d02.h>

namespace kor::ode {

inline constexpr int kBdfMaxOrder = 5;
// Distances back in time: those of order 5 and of the estimate for one order more.
inline constexpr int kBdfDistances = kBdfMaxOrder + 3;

// Written by the set-up, tested by all others.
inline constexpr Integer kBdfStamp1 = -11111, kBdfStamp2 = -23456;
inline bool bdf_set_up(const KorBdfState &st) { return st.stamp1 == kBdfStamp1 && st.stamp2 == kBdfStamp2; }

enum class BdfPhase : Integer {
    fresh,         // nothing has been asked for yet
    initial_slope, // the slope at the starting point is on its way
    probe,         // the slope near the starting point is on its way
    ready,         // a step may begin
    newton,        // the slope at the iterate is on its way
    jacobian,      // the caller's Jacobian is on its way
    difference,    // the slope at a shifted point is on its way: columns of a Jacobian by differences
    broken         // ended with an error
};

enum class BdfRequest : Integer { done = 0, slope = 1, jacobian = 2 };

enum class BdfStatus : Integer { fine = 0, bad_argument = 1, not_ready = 2, first_step = 3, progress = 4 };

// How far a Jacobian by differences has got. Of a large one whose shape is not known, a few columns are taken first; if they look
// like a narrow band, it is formed as one, and a step in all components at once shows whether that was right.
enum class DifferenceStage : Integer { columns, groups, samples, trial_groups, check };

// Trivially copyable, as the caller's record is.
struct BdfCore {
    BdfPhase phase;
    Integer order, last_order;
    Integer points;         // known points behind the current one, it included
    Integer steps_at_order; // since the last change of order
    Integer error_failures, newton_failures, iteration;
    Integer jacobian_age; // steps since it was formed; negative: there is none
    Integer formed_here;  // it was formed in this step
    Integer factored;     // 0 none, 1 full, 2 banded
    DifferenceStage stage;
    Integer group, groups; // of columns that are shifted together: the one on its way, and their number
    Integer structure_known;
    Integer lower, upper; // bandwidths of the Jacobian
    Integer direction;
    double t, tnew, h, last_h;
    double psi[kBdfDistances + 1];     // 1-based, up to t_n
    double psi_new[kBdfDistances + 1]; // up to the point of the step in hand
    double beta[kBdfDistances + 1];
    double c, c_factored; // h / alpha, now and in the factors
    double rate;          // of convergence of the Newton iteration
    double delta_norm;    // of its last correction
    double target;        // where the caller waits
};

// The arrays of one call, as the caller named them.
struct BdfArrays {
    double *y, *slope;
    const double *rtol, *atol;
    Integer itol;
    double *correction; // neq
    double *jacobian;   // neq by neq, row-major
};

// It lies in the record itself.
void bdf_clear(KorBdfState &st);
BdfCore &bdf_core(KorBdfState &st);
const BdfCore &bdf_core(const KorBdfState &st);

// Goes on until the caller must do something or the target is reached.
BdfRequest bdf_advance(BdfCore &core, KorBdfState &st, const BdfArrays &arrays, BdfStatus &status);

// The polynomial of the last step at t, the first m components.
void bdf_interpolate(const BdfCore &core, const double *ysav, Integer neq, double t, Integer m, double *sol);

// sqrt(mean((v_i / w_i)^2)), with 0 / 0 = 0.
double weighted_norm(Integer n, const double *v, const double *w);

} // namespace kor::ode
