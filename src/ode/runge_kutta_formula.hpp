// The formulae of the Runge-Kutta pairs: stages, results and error estimates, unrolled at compile time.
#pragma once

#include <cstddef>

#include <kor.h>

#include "ode/runge_kutta.hpp"

namespace kor::ode {

// Sees the second stage of a step; a true answer ends the attempt there.
struct StageWatch {
    virtual bool operator()(double t, const double *y, const double *yp) = 0;

  protected:
    ~StageWatch() = default;
};

// One step of the pair number `method` from (t, y) by h. `k` holds stages of n doubles each, the first of them f(t, y); the
// others are evaluated, those with abscissa 1 at `t_end`, which is t + h up to rounding. `y_new` receives the result and serves
// as scratch. False when the watch, which may be null, has ended the attempt.
bool pair_step(Integer method, const RightHandSide &f, double t, double t_end, double h, const double *y, double *k,
               double *y_new, StageWatch *watch);

// The largest |e_i| / max(thres_i, (|y_i| + |y_new_i|)/2), e the estimate of the local error; NaN when anything is not finite.
double pair_error(Integer method, std::size_t n, double h, const double *y, const double *y_new, const double *k,
                  const double *thres);

// Orders 5(4): the three stages that only the interpolant needs.
void extra_stages(const RightHandSide &f, double t, double h, const double *y, double *k, double *scratch);
// Orders 5(4): the coefficients of sigma^2 to sigma^6 for the first nwant components, one row of nwant for each power.
void interpolant_coefficients(std::size_t n, std::size_t nwant, double h, const double *k, double *coefficients);

} // namespace kor::ode
