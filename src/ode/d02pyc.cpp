// d02pyc: statistics of a Runge-Kutta integration.
#include <kor/d02.h>

#include <algorithm>
#include <limits>

#include "ode/runge_kutta_calls.hpp"

using namespace kor::ode;

void d02pyc(Integer *total_evals, Integer *step_cost, double *waste, Integer *steps_ok, double *hnext,
            KorRKState *state)
{
    if (!is_set_up(*state)) return;
    const int64_t evaluations = state->fcn_count + state->fcn_total + (state->errass ? state->secondary_count : 0);
    const int64_t most = std::numeric_limits<Integer>::max();
    *total_evals = static_cast<Integer>(std::min(evaluations, most));
    *step_cost = figures_of(state->method).cost;
    const double tries = static_cast<double>(state->steps_ok) + state->steps_failed;
    *waste = state->steps_ok < 2 ? 0.0 : state->steps_failed / tries;
    *steps_ok = state->steps_ok;
    *hnext = state->h;
    slot(*state, RungeKuttaCall::statistics) = kCalled;
}
