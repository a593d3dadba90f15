// s15adc: the complement of the error function.
#include <kor/s15.h>

#include "special/erf.hpp"

double s15adc(double x) { return kor::special::erfc(x); }
