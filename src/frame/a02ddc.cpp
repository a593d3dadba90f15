// a02ddc: power with an integer exponent.
#include <kor/a02.h>

#include "frame/complex.hpp"

Complex a02ddc(Complex z, Integer n) { return kor::power(z, n); }
