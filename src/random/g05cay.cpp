// g05cay: refills the buffer of the generator; and delivers numbers in bulk, past the buffer.
#include <algorithm>
#include <cstring>

#include "random/fill_uniform.hpp"
#include "random/state.hpp"

namespace kor::random {

void g05cay(State &state)
{
    state.word = fill_uniform(state.word, kBuffer, state.rp);
    state.ip = 0;
}

void uniforms(State &state, std::ptrdiff_t n, double *u)
{
    const std::ptrdiff_t buffered = std::min(n, kBuffer - state.ip);
    std::memcpy(u, state.rp + state.ip, static_cast<std::size_t>(buffered) * sizeof *u);
    state.ip += buffered;
    if (n == buffered) return;
    state.word = fill_uniform(state.word, n - buffered, u + buffered);
    state.ip = kBuffer;
}

} // namespace kor::random
