// a02eic: product with a real number.
#include <kor/a02.h>

#include "frame/complex.hpp"

Complex a02eic(Complex z, double r) { return kor::scaled(z, r); }
