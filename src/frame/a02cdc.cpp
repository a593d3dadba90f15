// a02cdc: quotient.
#include <kor/a02.h>

#include "frame/complex.hpp"

Complex a02cdc(Complex z1, Complex z2) { return kor::quotient(z1, z2); }
