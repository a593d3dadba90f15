// g05cac: the next uniform number of this thread's stream.
#include <kor/g05.h>

#include "random/state.hpp"

namespace {

// Apart, so that the common case needs no stack frame.
[[gnu::noinline, gnu::cold]] double first_of_buffer() { return kor::random::uniform(kor::random::g05caz()); }

} // namespace

double g05cac(void)
{
    using namespace kor::random;
    State *const state = current;
    if (state != nullptr && state->ip < kBuffer) [[likely]]
        return state->rp[state->ip++];
    return first_of_buffer();
}
