// a02dgc: natural logarithm, principal value.
#include <kor/a02.h>

#include "frame/complex.hpp"

Complex a02dgc(Complex z) { return kor::logarithm(z); }
