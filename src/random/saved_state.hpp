// The arrays in which g05cfc and g05cgc keep a stream.
//
// istate: [0] the sum of the others; [1] to [5] the 60-bit value 2x of the last term delivered, from the top in pieces of
// 11, 12, 12, 12 and 12 bits (its last bit is 0); [6] to [8] the count, in pieces of 12 bits from the top.
// xstate: [0] istate[0] / 4096 and the sum of the others; [1] the spare normal deviate; [2], [3] the carries of g05ddc, g05dgc.
#pragma once

#include <cstdint>

#include <kor.h>

namespace kor::random {

inline constexpr int kPieceBits = 12;
inline constexpr Integer kPiece = 1 << kPieceBits;
inline constexpr int kFirstPiece = 1, kLastPiece = 5, kCountPiece = 6, kPieces = 9;
inline constexpr int kTopPieceBits = 11;

// The sum of the pieces. A saved state cannot overflow it; another may, and then wraps.
inline Integer sum_of_pieces(const Integer istate[])
{
    std::uint32_t sum = 0;
    for (int i = kFirstPiece; i < kPieces; ++i) sum += static_cast<std::uint32_t>(istate[i]);
    return static_cast<Integer>(sum);
}

inline double check_value(Integer sum, const double xstate[])
{
    return sum / 4096.0 + xstate[1] + xstate[2] + xstate[3];
}

} // namespace kor::random
