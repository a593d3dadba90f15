// g05cgc: restores a stream that g05cfc saved.
#include <kor/g05.h>

#include <cmath>

#include "frame/constants.hpp"
#include "frame/report.hpp"
#include "random/saved_state.hpp"
#include "random/state.hpp"

namespace {

using namespace kor::random;

// The sums hold, the pieces have their lengths, and the term is odd, as every term of a stream is: arrays that were never
// filled, all zero, do not pass.
bool is_saved_state(const Integer istate[], const double xstate[])
{
    constexpr double kTolerance = 4.0 * kor::kPrecision;
    const Integer sum = sum_of_pieces(istate);
    if (sum != istate[0]) return false;
    if (!(std::fabs(xstate[0]) <= kor::kLargest)) return false;
    if (!(std::fabs(xstate[0] - check_value(sum, xstate)) <= kTolerance * std::fabs(xstate[0]))) return false;
    for (int i = kFirstPiece; i < kPieces; ++i)
        if (istate[i] < 0 || istate[i] >= kPiece) return false;
    return istate[kFirstPiece] < 1 << kTopPieceBits && istate[kLastPiece] % 2 == 1;
}

} // namespace

void g05cgc(const Integer istate[], const double xstate[], KorError *fail)
{
    const kor::Report report{"g05cgc", fail};
    if (!is_saved_state(istate, xstate)) return report.error<NE_STATE_CORRUPT>();

    std::uint64_t value = 0;
    for (int i = kFirstPiece; i <= kLastPiece; ++i) value = value << kPieceBits | static_cast<std::uint64_t>(istate[i]);
    // The last bit of the 60 comes from the top of the piece behind, which is 0 in every saved state.
    value = value << 1 | static_cast<std::uint64_t>(istate[kCountPiece] >> (kPieceBits - 1));

    State &state = g05caz();
    // 64, although saving cuts by 4096: so the count comes back below 2^24 only. It is 0 unless a caller made it otherwise.
    constexpr Integer kTopFactor = 64;
    state.count = (istate[kCountPiece] * kTopFactor + istate[kCountPiece + 1]) * kPiece + istate[kCountPiece + 2];
    start_stream(state, value << (kGuardBits - 1), xstate[2], xstate[3], xstate[1]);
    report.success();
}
