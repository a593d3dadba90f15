// d02pzc: the assessment of the global error of a Runge-Kutta integration.
#include <kor/d02.h>

#include <cmath>

#include "ode/runge_kutta_calls.hpp"

using namespace kor::ode;

void d02pzc(Integer neq, double rmserr[], double *errmax, double *terrmx, KorRKState *state, KorError *fail)
{
    const kor::Report report{"d02pzc", fail};
    if (!admit(report, *state, RungeKuttaCall::assessment)) return;
    if (!same_size(report, *state, neq)) return;
    if (!state->errass) return report.error<NE_ERRASS_REQ>();
    if (state->first) return report.error<NE_RK_NOSTEP>();

    const double *squares = RungeKutta{*state, nullptr}.squared_errors();
    for (Integer i = 0; i < neq; ++i) rmserr[i] = std::sqrt(squares[i] / state->steps_ok);
    *errmax = state->max_err;
    *terrmx = state->t_max_err;
    slot(*state, RungeKuttaCall::assessment) = kCalled;
    report.success();
}
