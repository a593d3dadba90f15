// a02cec: negative.
#include <kor/a02.h>

#include "frame/complex.hpp"

Complex a02cec(Complex z) { return kor::negative(z); }
