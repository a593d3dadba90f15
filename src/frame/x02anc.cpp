// x02anc: lower end of the safe range of complex arithmetic.
#include <kor/x02.h>

#include "frame/constants.hpp"

double x02anc(void) { return kor::kSafeSmall; }
