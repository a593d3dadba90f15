// d02nmc: integrates a stiff system by backward differentiation, returning to its caller for each slope and Jacobian.
#include <kor/d02.h>

#include <algorithm>
#include <cmath>

#include "ode/bdf.hpp"

using namespace kor::ode;

namespace {

bool tolerances_stand(Integer neq, const double rtol[], const double atol[], Integer itol)
{
    if (itol < 1 || itol > 4) return false;
    const Integer relative = itol >= 3 ? neq : 1, absolute = itol == 2 || itol == 4 ? neq : 1;
    return std::all_of(rtol, rtol + relative, [](double r) { return r >= 0.0; }) &&
           std::all_of(atol, atol + absolute, [](double a) { return a >= 0.0; });
}

// The start of a call that is no answer to a request: towards tout, from where the last one ended.
BdfStatus set_target(BdfCore &core, KorBdfState &st, double t, double tout)
{
    if (core.phase == BdfPhase::broken) return BdfStatus::not_ready;
    if (!std::isfinite(tout)) return BdfStatus::bad_argument;
    if (core.phase == BdfPhase::fresh) {
        if (!std::isfinite(t) || tout == t) return BdfStatus::bad_argument;
        core.direction = tout > t ? 1 : -1;
        core.t = core.tnew = t;
        st.t = t;
    } else if (core.phase != BdfPhase::ready) {
        return BdfStatus::not_ready;
    }
    // Neither behind the last step, nor beyond the limit.
    const double behind = st.steps > 0 ? core.t - core.psi[1] : core.t;
    if ((tout - behind) * core.direction < 0.0) return BdfStatus::bad_argument;
    if (st.crit && !((st.tcrit - tout) * core.direction >= 0.0)) return BdfStatus::bad_argument;
    core.target = tout;
    return BdfStatus::fine;
}

} // namespace

void d02nmc(Integer neq, double *t, double tout, double y[], double ydot[], const double rtol[], const double atol[],
            Integer itol, double res[], double pw[], KorBdfState *st, Integer *irevcm, Integer *status)
{
    *status = static_cast<Integer>(BdfStatus::not_ready);
    if (!bdf_set_up(*st) || st->jacobian == 0 || !st->ysav || !st->work || !st->iwork) return;
    *status = static_cast<Integer>(BdfStatus::bad_argument);
    if (neq != st->neq || !tolerances_stand(neq, rtol, atol, itol)) return;

    BdfCore &core = bdf_core(*st);
    BdfStatus outcome = BdfStatus::fine;
    if (*irevcm == 0) outcome = set_target(core, *st, *t, tout);
    if (outcome != BdfStatus::fine) {
        *status = static_cast<Integer>(outcome);
        return;
    }
    const BdfArrays arrays{y, ydot, rtol, atol, itol, res, pw};
    const BdfRequest request = bdf_advance(core, *st, arrays, outcome);

    *irevcm = static_cast<Integer>(request);
    *status = static_cast<Integer>(outcome);
    *t = core.tnew;
    if (request != BdfRequest::done || outcome != BdfStatus::fine) return;
    if (!st->one_step || (core.t - core.target) * core.direction > 0.0) {
        *t = core.target;
        bdf_interpolate(core, st->ysav, neq, core.target, neq, y);
    }
}
