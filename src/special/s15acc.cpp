// s15acc: the complement of the normal distribution function, its upper tail.
#include <kor/s15.h>

#include "special/erf.hpp"

double s15acc(double x) { return kor::special::normal_upper_tail(x); }
