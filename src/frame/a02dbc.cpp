// a02dbc: modulus of a complex number.
#include <kor/a02.h>

#include "frame/complex.hpp"

double a02dbc(Complex z) { return kor::modulus(z); }
