// x02ajc: machine precision.
#include <kor/x02.h>

#include "frame/constants.hpp"

double x02ajc(void) { return kor::kPrecision; }
