// One step of the search for a zero of a function of one variable, by reverse communication.
#pragma once

#include <kor.h>

namespace kor::roots {

inline constexpr int kZeroStateSize = 17;

enum class ZeroStatus {
    evaluate,    // f is wanted at x: call again with its value
    found,       // x is a zero, y the other end of the bracket
    same_sign,   // no change of sign between the two starting points
    bad_ind,     // ind is none of -1, 1, 2, 3, 4
    bad_xtol,    // xtol is not positive
    bad_ir,      // ir is none of 0, 1, 2
    pole,        // the bracket is as small as asked for, and |f| grows in it
    no_progress, // the bracket cannot shrink any more
};

// Takes f(x) in `fx`, moves on, and says what is to be done next. `c` holds the whole state, kZeroStateSize doubles that
// the caller keeps; `ind` the place in the protocol: 1 or -1 at the start, 0 at the end. ind = -1: f(y) is in c[0].
ZeroStatus zero_step(double &x, double &y, double fx, double xtol, Integer ir, double *c, Integer &ind);

} // namespace kor::roots
