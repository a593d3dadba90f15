// One standard normal deviate, by random bits and comparisons alone. R. P. Brent, Comm. ACM 17 (1974) 704-706.
#pragma once

#include "random/state.hpp"

namespace kor::random {

double standard_normal(State &state);

} // namespace kor::random
