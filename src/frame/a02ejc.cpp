// a02ejc: product with a real number: a02eic under its other name.
#include <kor/a02.h>

#include "frame/complex.hpp"

Complex a02ejc(Complex z, double r) { return kor::scaled(z, r); }
