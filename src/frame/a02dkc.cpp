// a02dkc: cosine.
#include <kor/a02.h>

#include "frame/complex.hpp"

Complex a02dkc(Complex z) { return kor::cosine(z); }
