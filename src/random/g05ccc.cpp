// g05ccc: starts this thread's stream from the clock, differently in each call.
#include <kor/g05.h>
#include <kor/x05.h>

#include <atomic>
#include <limits>

#include "random/state.hpp"

namespace {

// The last seed that came from the clock, in any thread: two calls in the same second must not share a stream.
std::atomic<Integer> last_seed{0};

Integer after(Integer seed) { return seed < std::numeric_limits<Integer>::max() ? seed + 1 : 0; }

} // namespace

void g05ccc(void)
{
    const Integer now = x05aac();
    Integer last = last_seed.load(std::memory_order_relaxed), seed;
    do {
        seed = now > last ? now : after(last);
    } while (!last_seed.compare_exchange_weak(last, seed, std::memory_order_relaxed));
    kor::random::start_seeded_stream(kor::random::g05caz(), seed);
}
