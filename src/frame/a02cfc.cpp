// a02cfc: conjugate.
#include <kor/a02.h>

#include "frame/complex.hpp"

Complex a02cfc(Complex z) { return kor::conjugate(z); }
