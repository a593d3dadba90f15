// What stands behind the record of the Adams routines.
#pragma once

#include <kor/d02.h>

#include "ode/adams_integration.hpp"

namespace kor::ode {

inline constexpr Integer kAdamsStamp1 = -11111;
inline constexpr Integer kAdamsStamp2 = -23456;
inline constexpr Integer kSetUp = -11111;      // setup_done: no integration yet
inline constexpr Integer kIntegrated = -23456; // setup_done: an integration has succeeded
inline constexpr Integer kSetupFailed = 0;
inline constexpr const char *kAdamsSetupName = "kor_ode_ivp_adams_setup(d02qwc)";

inline bool is_stamped(const KorAdamsOptions &opt) { return opt.stamp1 == kAdamsStamp1 && opt.stamp2 == kAdamsStamp2; }

inline bool was_set_up(const KorAdamsOptions &opt) { return opt.setup_done == kSetUp || opt.setup_done == kIntegrated; }

inline AdamsIntegration &integration_of(KorAdamsOptions &opt) { return *static_cast<AdamsIntegration *>(opt.kernel); }

// The block of doubles: the integrator's, then two vectors of scratch, then the tolerances.
inline Count adams_block(Integer neqf, Integer tolerances)
{
    return Adams::workspace(neqf) + Count{neqf} * 2 + Count{tolerances} * 2;
}
inline double *scratch_of(const KorAdamsOptions &opt) { return opt.work + Adams::workspace(opt.neqf).value(); }

} // namespace kor::ode
