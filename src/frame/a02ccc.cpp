// a02ccc: product.
#include <kor/a02.h>

#include "frame/complex.hpp"

Complex a02ccc(Complex z1, Complex z2) { return kor::product(z1, z2); }
