// s15aec: the error function.
#include <kor/s15.h>

#include "special/erf.hpp"

double s15aec(double x) { return kor::special::erf(x); }
