// The stamps of a record of an interpolant, by which it is told from one that was never set up.
#pragma once

#include <kor.h>

namespace kor::approx {

inline constexpr Integer kStamp1 = -11111;
inline constexpr Integer kStamp2 = -23456;
inline constexpr Integer kSetupDone = -11111; // in `setup_ok`

} // namespace kor::approx
