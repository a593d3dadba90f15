// x02ahc: largest argument whose trigonometric functions are formed.
#include <kor/x02.h>

#include "frame/constants.hpp"

double x02ahc(void) { return kor::kArgumentLimit; }
