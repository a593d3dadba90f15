// a02dfc: power with a complex exponent.
#include <kor/a02.h>

#include "frame/complex.hpp"

Complex a02dfc(Complex z1, Complex z2) { return kor::power(z1, z2); }
