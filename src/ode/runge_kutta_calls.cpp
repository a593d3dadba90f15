#include "ode/runge_kutta_calls.hpp"

#include <algorithm>
#include <cstdio>
#include <iterator>

#include "frame/workspace.hpp"

namespace kor::ode {

namespace {

constexpr Integer kStamp1 = -11111;
constexpr Integer kStamp2 = -23456;

// The routine to be called in place of one that does not fit the task, or null.
const char *intended_instead_of(RungeKuttaCall call, bool range_mode)
{
    switch (call) {
    case RungeKuttaCall::range:
        return range_mode ? nullptr : kOneStepName;
    case RungeKuttaCall::one_step:
    case RungeKuttaCall::interpolation:
    case RungeKuttaCall::reset:
        return range_mode ? kRangeName : nullptr;
    default:
        return nullptr;
    }
}

const char *name_of(RungeKuttaCall call)
{
    switch (call) {
    case RungeKuttaCall::range:
        return kRangeName;
    case RungeKuttaCall::one_step:
        return kOneStepName;
    case RungeKuttaCall::interpolation:
        return kInterpolationName;
    default:
        return kResetName;
    }
}

} // namespace

bool is_stamped(const KorRKState &state) { return state.stamp1 == kStamp1 && state.stamp2 == kStamp2; }

void stamp(KorRKState &state)
{
    state.stamp1 = kStamp1;
    state.stamp2 = kStamp2;
}

void free_memory(KorRKState &state)
{
    for (double **block : {&state.work, &state.interp_work}) {
        void *memory = *block;
        if (memory != nullptr) x04bdc(&memory);
        *block = nullptr;
    }
}

bool is_set_up(const KorRKState &state)
{
    return is_stamped(state) && state.calls[static_cast<int>(RungeKuttaCall::setup)] == kCalled &&
           state.calls[static_cast<int>(RungeKuttaCall::release)] != kFreed;
}

bool admit(const Report &report, KorRKState &state, RungeKuttaCall call)
{
    // What an unstamped record holds is nobody's: it is not to be read.
    if (!is_stamped(state)) return report.error<NE_NO_SETUP>(kSetupName), false;
    if (slot(state, RungeKuttaCall::release) == kFreed) return report.error<NE_MEMORY_FREED>(kSetupName), false;

    Integer &own = slot(state, call);
    const bool severe_elsewhere = std::any_of(std::begin(state.calls), std::end(state.calls),
                                              [&](const Integer &mark) { return &mark != &own && mark == kSevere; });
    if (severe_elsewhere) return report.error<NE_PREV_CALL>(kSetupName), false;
    if (slot(state, RungeKuttaCall::setup) != kCalled) return report.error<NE_NO_SETUP>(kSetupName), false;
    if (own == kSevere || own == static_cast<Integer>(StepStatus::step_too_small) ||
        own == static_cast<Integer>(StepStatus::assessment_failed))
        return report.error<NE_PREV_CALL_INI>(), false;
    if (const char *intended = intended_instead_of(call, state.range_mode != 0)) {
        own = kSevere;
        // A step from outside leaves range mode: no call of either kind will be served after it.
        if (call == RungeKuttaCall::one_step) state.range_mode = false;
        return report.error<NE_RK_INVALID_CALL>(intended, name_of(call)), false;
    }
    return true;
}

bool same_size(const Report &report, const KorRKState &state, Integer neq)
{
    if (neq == state.neq) return true;
    report.error<NE_NEQ>(neq, state.neq);
    return false;
}

void report_step(const Report &report, KorError *fail, KorRKState &state, RungeKuttaCall call, StepStatus status,
                 const RungeKutta &integration)
{
    slot(state, call) = static_cast<Integer>(status);
    switch (status) {
    case StepStatus::stops_too_frequent:
        if (call == RungeKuttaCall::range) return report.error<NE_RK_PCC_METHOD>();
        return report.error<NE_RK_PDC_POINTS>();
    case StepStatus::much_work:
        return report.error<NW_RK_TOO_MANY>(kMuchWork);
    case StepStatus::stiff: {
        // The code of the Adams routines, with a text of its own: the only report whose text is not that of its code.
        const auto evaluations = static_cast<double>(state.fcn_total + state.fcn_count);
        char text[sizeof fail->message];
        std::snprintf(text, sizeof text, kor_errlist[NE_RK_STIFF], integration.work_ahead() / evaluations);
        return p01acc(text, NE_STIFF_PROBLEM, report.routine(), fail);
    }
    case StepStatus::step_too_small:
        return report.error<NE_RK_PDC_STEP>(state.h, state.tnow);
    case StepStatus::assessment_failed:
        if (state.steps_ok < 2) return report.error<NE_RK_PDC_GLOBAL_ERROR_S>();
        return report.error<NE_RK_PDC_GLOBAL_ERROR_T>(state.tnow);
    case StepStatus::taken:
        break;
    }
    slot(state, call) = kSevere;
    report.error<NE_INTERNAL_ERROR>();
}

} // namespace kor::ode
