// x02alc: largest finite number.
#include <kor/x02.h>

#include "frame/constants.hpp"

double x02alc(void) { return kor::kLargest; }
