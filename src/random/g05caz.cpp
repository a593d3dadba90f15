// g05caz: the state of this thread's generator, and the ways in which a stream starts.
//
// The state is one trivial thread-local block: no key, no lock, nothing to free when the thread ends. A hidden pointer to
// it, in the part of thread-local memory whose address is known at load time, makes a draw a matter of a few instructions.
#include "random/state.hpp"

namespace kor::random {

namespace {

// 0x75bc 0x68a8 0x1d6f 0x1a2a in digits of 15 bits, twice the starting value x.
constexpr std::uint64_t kDefaultStart = ((((std::uint64_t{0x75bc} << 15 | 0x68a8) << 15) | 0x1d6f) << 15 | 0x1a2a);

constinit thread_local State block{};

} // namespace

constinit thread_local State *current __attribute__((tls_model("initial-exec"))) = nullptr;

State &install_default_state()
{
    start_default_stream(block);
    current = &block;
    return block;
}

void start_stream(State &state, std::uint64_t word, double normal_fraction, double spare_square, double spare_normal)
{
    state.word = word;
    state.normal_fraction = normal_fraction;
    state.spare_square = spare_square;
    state.spare_normal = spare_normal;
    g05cay(state);
}

void start_default_stream(State &state)
{
    state.count = 0;
    start_stream(state, kDefaultStart << (kGuardBits - 1));
}

void start_seeded_stream(State &state, std::int64_t seed)
{
    const std::uint64_t size = static_cast<std::uint64_t>(seed < 0 ? -seed : seed);
    start_stream(state, (2 * size + 1) << kGuardBits);
    ++state.ip;
}

} // namespace kor::random
