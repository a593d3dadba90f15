// g05cbc: starts this thread's stream from a seed, repeatably.
#include <kor/g05.h>

#include "random/state.hpp"

void g05cbc(Integer seed) { kor::random::start_seeded_stream(kor::random::g05caz(), seed); }
