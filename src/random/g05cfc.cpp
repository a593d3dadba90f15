// g05cfc: saves this thread's stream and the values that samplers carry over.
#include <kor/g05.h>

#include "random/saved_state.hpp"
#include "random/state.hpp"

void g05cfc(Integer istate[], double xstate[])
{
    using namespace kor::random;
    const State &state = g05caz();

    std::uint64_t pieces = state.delivered() >> kGuardBits;
    for (int i = kLastPiece; i >= kFirstPiece; --i, pieces >>= kPieceBits)
        istate[i] = static_cast<Integer>(pieces % kPiece);
    istate[kCountPiece] = state.count / kPiece / kPiece % kPiece;
    istate[kCountPiece + 1] = state.count / kPiece % kPiece;
    istate[kCountPiece + 2] = state.count % kPiece;
    istate[0] = sum_of_pieces(istate);

    xstate[1] = state.spare_normal;
    xstate[2] = state.normal_fraction;
    xstate[3] = state.spare_square;
    xstate[0] = check_value(istate[0], xstate);
}
