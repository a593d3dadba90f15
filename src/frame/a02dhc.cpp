// a02dhc: exponential.
#include <kor/a02.h>

#include "frame/complex.hpp"

Complex a02dhc(Complex z) { return kor::exponential(z); }
