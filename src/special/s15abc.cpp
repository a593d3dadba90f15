// s15abc: the normal distribution function, the integral of the density from minus infinity to x.
#include <kor/s15.h>

#include "special/erf.hpp"

double s15abc(double x) { return kor::special::normal_upper_tail(-x); }
