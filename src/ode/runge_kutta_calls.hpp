// The calling order of the Runge-Kutta suite: which routine may be called when, and the marks that calls leave.
#pragma once

#include <kor/d02.h>

#include "frame/report.hpp"
#include "ode/runge_kutta.hpp"

namespace kor::ode {

// The slots of the record's table.
enum class RungeKuttaCall { setup, range, statistics, assessment, one_step, interpolation, reset, release };

inline constexpr Integer kNotCalled = -1;
inline constexpr Integer kCalled = -2;
inline constexpr Integer kSevere = 1;
inline constexpr Integer kFreed = 8;
inline constexpr const char *kSetupName = "kor_ode_ivp_rk_setup(d02pvc)";
inline constexpr const char *kRangeName = "kor_ode_ivp_rk_range(d02pcc)";
inline constexpr const char *kOneStepName = "kor_ode_ivp_rk_onestep(d02pdc)";
inline constexpr const char *kInterpolationName = "kor_ode_ivp_rk_interp(d02pxc)";
inline constexpr const char *kResetName = "kor_ode_ivp_rk_reset_tend(d02pwc)";

inline Integer &slot(KorRKState &state, RungeKuttaCall call) { return state.calls[static_cast<int>(call)]; }

bool is_stamped(const KorRKState &state);
void stamp(KorRKState &state);
void free_memory(KorRKState &state);
// Is there an integration behind the record?
bool is_set_up(const KorRKState &state);

// May this routine be called now? If not, it has been reported.
bool admit(const Report &report, KorRKState &state, RungeKuttaCall call);
bool same_size(const Report &report, const KorRKState &state, Integer neq);

// Reports what ended a step, or came before it, and marks the slot. Not for steps that were taken.
void report_step(const Report &report, KorError *fail, KorRKState &state, RungeKuttaCall call, StepStatus status,
                 const RungeKutta &integration);

} // namespace kor::ode
