// a02djc: sine.
#include <kor/a02.h>

#include "frame/complex.hpp"

Complex a02djc(Complex z) { return kor::sine(z); }
