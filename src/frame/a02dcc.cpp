// a02dcc: principal square root.
#include <kor/a02.h>

#include "frame/complex.hpp"

Complex a02dcc(Complex z) { return kor::square_root(z); }
