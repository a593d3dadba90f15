// d02pcc: integrates to the next output point with the Runge-Kutta suite.
#include <kor/d02.h>

#include <algorithm>
#include <cmath>

#include "ode/runge_kutta_calls.hpp"

namespace {

using namespace kor::ode;

// Is twant ahead of the last output point and within the range? If not, it has been reported.
bool is_ahead(const kor::Report &report, const KorRKState &state, const RungeKutta &integration, double twant)
{
    const double end = state.range_end;
    if (!state.first && state.tgot == end) return report.error<NE_RK_TGOT_EQ_TEND>(end), false;
    if (!((twant - state.tgot) * state.dir > 0.0)) return report.error<NE_RK_TGOT_RANGE_TEND>(twant, state.tgot), false;
    if ((twant - end) * state.dir > 0.0) {
        const bool close = std::fabs(twant - end) <= state.toosml * std::max(std::fabs(twant), std::fabs(end));
        if (close) return report.error<NE_RK_TGOT_RANGE_TEND_CLOSE>(twant, end), false;
        return report.error<NE_RK_TGOT_RANGE_TEND>(twant, end), false;
    }
    if (!figures_of(state.method).interpolant) {
        const double least = integration.smallest_step(state.tnow, twant);
        if (std::fabs(twant - state.tnow) < least) return report.error<NE_RK_TWANT_CLOSE_TGOT>(least), false;
    }
    return true;
}

void start(KorRKState &state, RungeKutta &integration, double twant)
{
    integration.start();
    if (state.hstart != 0.0) {
        state.h = std::min(std::fabs(state.h), std::fabs(twant - state.tnow));
        state.h = std::max(state.h, integration.smallest_step(state.tnow, state.tnow + state.dir * state.h));
    }
}

} // namespace

void d02pcc(Integer neq, void (*f)(Integer neq, double t, const double y[], double yp[], void *comm), double twant,
            double *tgot, double ygot[], double ypgot[], double ymax[], KorRKState *state, void *comm, KorError *fail)
{
    const kor::Report report{"d02pcc", fail};
    if (!admit(report, *state, RungeKuttaCall::range)) return;
    if (!same_size(report, *state, neq)) return;
    const RightHandSide right_hand_side{neq, f, comm};
    RungeKutta integration{*state, &right_hand_side};
    if (!is_ahead(report, *state, integration, twant)) return;

    // Without an interpolant the steps have to end at the output point.
    if (!figures_of(state->method).interpolant) integration.reset_end(twant);
    if (!state->started) start(*state, integration, twant);

    StepStatus status = StepStatus::taken;
    while (status == StepStatus::taken && (state->tnow - twant) * state->dir < 0.0) {
        status = integration.step();
        for (Integer i = 0; i < neq; ++i)
            integration.largest()[i] = std::max(integration.largest()[i], std::fabs(integration.y()[i]));
    }
    std::copy_n(integration.largest(), neq, ymax);

    if (status != StepStatus::taken || state->tnow == twant) {
        state->tgot = state->tnow;
        std::copy_n(integration.y(), neq, ygot);
        std::copy_n(integration.yp(), neq, ypgot);
    } else {
        integration.prepare_interpolant(neq);
        integration.interpolate(twant, neq, ygot, ypgot);
        state->tgot = twant;
    }
    *tgot = state->tgot;
    if (status != StepStatus::taken)
        return report_step(report, fail, *state, RungeKuttaCall::range, status, integration);
    slot(*state, RungeKuttaCall::range) = kCalled;
    report.success();
}
