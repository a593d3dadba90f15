// g05cxc: puts this thread's stream back to the default start, the one that a thread has without any seeding.
#include <kor/g05.h>

#include "random/state.hpp"

void g05cxc(void) { kor::random::start_default_stream(kor::random::g05caz()); }
