// d02pwc: moves the end of the range of a step-by-step Runge-Kutta integration.
#include <kor/d02.h>

#include <cmath>

#include "ode/runge_kutta_calls.hpp"

using namespace kor::ode;

void d02pwc(double tend_new, KorRKState *state, KorError *fail)
{
    const kor::Report report{"d02pwc", fail};
    if (!admit(report, *state, RungeKuttaCall::reset)) return;
    if (state->first) return report.error<NE_MISSING_CALL>(kOneStepName);
    const double ahead = (tend_new - state->tnow) * state->dir;
    if (!(ahead > 0.0)) {
        if (state->dir > 0.0) return report.error<NE_RK_DIRECTION_POS>("tend_new", tend_new, state->tnow);
        return report.error<NE_RK_DIRECTION_NEG>("tend_new", tend_new, state->tnow);
    }
    if (!std::isfinite(ahead)) return report.error<NE_REAL_ARG_CONS>("tend_new", tend_new, "abs(tend_new-t) finite");
    RungeKutta integration{*state, nullptr};
    const double least = integration.smallest_step(state->tnow, tend_new);
    if (!(ahead >= least)) return report.error<NE_RK_STEP>(least);

    integration.reset_end(tend_new);
    state->range_end = tend_new;
    slot(*state, RungeKuttaCall::reset) = kCalled;
    report.success();
}
