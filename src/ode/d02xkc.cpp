// d02xkc: the solution within the last step of the backward differentiation method.
#include <kor/d02.h>

#include "ode/bdf.hpp"

using namespace kor::ode;

void d02xkc(double xsol, double sol[], Integer m, const double ysav[], Integer neq, Integer nhist,
            const KorBdfState *st, Integer *status)
{
    *status = 1;
    if (m < 1 || neq < 1 || m > neq || nhist < 1) return;
    *status = 2;
    if (!bdf_set_up(*st) || st->steps == 0 || neq != st->neq || nhist != st->nhist || st->order < 1 ||
        st->order > st->maxord)
        return;
    const BdfCore &core = bdf_core(*st);
    bdf_interpolate(core, ysav, neq, xsol, m, sol);
    const double since = (core.t - xsol) / core.psi[1];
    *status = since >= 0.0 && since <= 1.0 ? 0 : 3;
}
