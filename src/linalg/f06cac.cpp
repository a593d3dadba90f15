// f06cac: chooses the plane rotation with a real cosine that makes the second of two complex numbers zero, and keeps
// its tangent.
#include <kor/f06.h>

#include "linalg/rotation.hpp"

void f06cac(Complex *a, Complex *b, double *c, Complex *s)
{
    const auto rotation = kor::linalg::annihilate(*a, *b);
    *c = rotation.c;
    *s = rotation.s;
}
