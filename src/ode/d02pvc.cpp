// d02pvc: sets up an initial value problem for the Runge-Kutta suite.
#include <kor/d02.h>

#include <algorithm>
#include <cmath>
#include <iterator>

#include "frame/constants.hpp"
#include "ode/runge_kutta_calls.hpp"

namespace {

using namespace kor::ode;

constexpr double kLargestTolerance = 0.01;
constexpr double kFirstStepShare = 0.125; // of the range, for a first step that is still to be found

// A new record, or one whose last problem is over.
void clear(KorRKState &state)
{
    if (is_stamped(state)) free_memory(state);
    state = KorRKState{};
    stamp(state);
    std::fill(std::begin(state.calls), std::end(state.calls), kNotCalled);
}

} // namespace

void d02pvc(Integer neq, double tstart, const double ystart[], double tend, double tol, const double thres[],
            Integer method, Integer task, Integer errass, double hstart, KorRKState *state, KorError *fail)
{
    const kor::Report report{"d02pvc", fail};
    clear(*state);
    // Until all is well the other routines are to refuse the record.
    slot(*state, RungeKuttaCall::setup) = kSevere;

    if (task != Kor_RK_range && task != Kor_RK_onestep) return report.error<NE_BAD_PARAM>("task");
    if (neq < 1) return report.error<NE_INT_ARG_LT>("neq", "1", "neq", neq);
    if (errass != Kor_ErrorAssess_on && errass != Kor_ErrorAssess_off) return report.error<NE_BAD_PARAM>("errass");
    if (method != Kor_RK_2_3 && method != Kor_RK_4_5 && method != Kor_RK_7_8)
        return report.error<NE_BAD_PARAM>("method");
    if (tstart == tend) return report.error<NE_2_REAL_ARG_EQ>("tstart", tstart, "tend", tend, "tstart", "tend");
    if (!std::isfinite(tstart) || !std::isfinite(tend) || !std::isfinite(tend - tstart))
        return report.error<NE_2_REAL_ARG_CONS>("tstart", tstart, "tend", tend, "abs(tend-tstart) finite");
    const double least_tolerance = 10.0 * kor::kPrecision;
    if (!(least_tolerance <= tol && tol <= kLargestTolerance))
        return report.error<NE_REAL_RANGE_CONS>("tol", tol, "10*machine precision", least_tolerance, "tol",
                                                "10*machine precision  <= tol <= 0.01");
    const double tiny = std::sqrt(kor::kSafeSmall);
    for (Integer i = 0; i < neq; ++i)
        if (!(thres[i] >= tiny))
            return report.error<NE_REAL_ARRAY_INPUT>("thres", i, thres[i], "thres", i, ">= ", tiny);

    state->neq = neq;
    state->method = method - Kor_RK_2_3 + 1;
    const PairFigures &pair = figures_of(state->method);
    state->tstart = state->tnow = state->told = state->tgot = tstart;
    state->tend = state->range_end = tend;
    state->dir = tend > tstart ? 1.0 : -1.0;
    state->tol = tol;
    state->expon = 1.0 / (pair.order + 1);
    state->toosml = 10.0 * kor::kPrecision / pair.smallest_gap;
    state->first = true;
    state->range_mode = task == Kor_RK_range;
    state->errass = errass == Kor_ErrorAssess_on;

    kor::Workspace<double> work{RungeKutta::work_size(neq, state->method, state->errass != 0)};
    if (!work) return report.error<NE_ALLOC_FAIL>();
    // In range mode the interpolant has its room from the start: no call of d02pcc can fail for want of memory.
    kor::Workspace<double> coefficients;
    if (state->range_mode && method == Kor_RK_4_5) {
        if (!coefficients.allocate(RungeKutta::interpolant_size(neq))) return report.error<NE_ALLOC_FAIL>();
        state->interp_space = neq;
    }

    const double range = std::fabs(tend - tstart);
    const double least_step = std::max(tiny, state->toosml * std::max(std::fabs(tstart), std::fabs(tend)));
    if (range < least_step)
        return report.error<NE_2_REAL_ARG_TOO_CLOSE>("tstart", tstart, "tend", tend, "tstart", "tend",
                                                     ">=", least_step);
    const double wish = std::fabs(hstart);
    const bool sensible = wish >= least_step && wish <= range;
    state->hstart = sensible ? wish : 0.0;
    state->h = sensible ? wish : std::max(kFirstStepShare * range, least_step);

    state->work = work.release();
    state->interp_work = coefficients.release();
    RungeKutta{*state, nullptr}.begin(ystart, thres);
    slot(*state, RungeKuttaCall::setup) = kCalled;
    report.success();
}
