// a02dec: power with a real exponent.
#include <kor/a02.h>

#include "frame/complex.hpp"

Complex a02dec(Complex z, double r) { return kor::power(z, r); }
