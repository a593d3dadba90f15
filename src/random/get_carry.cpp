// get_bg05ca, get_dg05ca: the values that the samplers of this thread carry over to their next calls.
#include <kor/g05.h>

#include "random/state.hpp"

KorG05Carry get_bg05ca(void)
{
    const kor::random::State &state = kor::random::g05caz();
    return {{state.normal_fraction, state.spare_square}};
}

double get_dg05ca(void) { return kor::random::g05caz().spare_normal; }
