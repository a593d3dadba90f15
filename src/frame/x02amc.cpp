// x02amc: lower end of the safe range.
#include <kor/x02.h>

#include "frame/constants.hpp"

double x02amc(void) { return kor::kSafeSmall; }
