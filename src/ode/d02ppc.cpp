// d02ppc: frees the memory of a Runge-Kutta integration.
#include <kor/d02.h>

#include "ode/runge_kutta_calls.hpp"

using namespace kor::ode;

void d02ppc(KorRKState *state)
{
    if (!is_stamped(*state)) return;
    free_memory(*state);
    // The stamps stay: they vouch for this mark, by which the other routines know that they come too late.
    slot(*state, RungeKuttaCall::release) = kFreed;
}
