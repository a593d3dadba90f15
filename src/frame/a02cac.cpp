// a02cac: sum.
#include <kor/a02.h>

#include "frame/complex.hpp"

Complex a02cac(Complex z1, Complex z2) { return kor::sum(z1, z2); }
