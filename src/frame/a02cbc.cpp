// a02cbc: difference.
#include <kor/a02.h>

#include "frame/complex.hpp"

Complex a02cbc(Complex z1, Complex z2) { return kor::difference(z1, z2); }
