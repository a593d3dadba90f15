// x02akc: smallest positive normal number.
#include <kor/x02.h>

#include "frame/constants.hpp"

double x02akc(void) { return kor::kSmallest; }
