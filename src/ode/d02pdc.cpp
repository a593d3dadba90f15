// d02pdc: one step of the Runge-Kutta suite.
#include <kor/d02.h>

#include <algorithm>

#include "ode/runge_kutta_calls.hpp"

using namespace kor::ode;

void d02pdc(Integer neq, void (*f)(Integer neq, double t, const double y[], double yp[], void *comm), double *tnow,
            double ynow[], double ypnow[], KorRKState *state, void *comm, KorError *fail)
{
    const kor::Report report{"d02pdc", fail};
    if (!admit(report, *state, RungeKuttaCall::one_step)) return;
    if (!same_size(report, *state, neq)) return;
    if (state->last) return report.error<NE_RK_PDC_TEND>(state->tend);

    const RightHandSide right_hand_side{neq, f, comm};
    RungeKutta integration{*state, &right_hand_side};
    if (!state->started) integration.start();
    const StepStatus status = integration.step();

    *tnow = state->tnow;
    std::copy_n(integration.y(), neq, ynow);
    std::copy_n(integration.yp(), neq, ypnow);
    if (status != StepStatus::taken)
        return report_step(report, fail, *state, RungeKuttaCall::one_step, status, integration);
    slot(*state, RungeKuttaCall::one_step) = kCalled;
    report.success();
}
