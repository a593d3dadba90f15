// a02dlc: tangent.
#include <kor/a02.h>

#include "frame/complex.hpp"

Complex a02dlc(Complex z) { return kor::tangent(z); }
