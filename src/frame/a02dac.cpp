// a02dac: argument of a complex number.
#include <kor/a02.h>

#include "frame/complex.hpp"

double a02dac(Complex z) { return kor::argument(z); }
