// f06bac: chooses the plane rotation that makes the second of two numbers zero, and keeps its tangent.
#include <kor/f06.h>

#include "linalg/rotation.hpp"

void f06bac(double *a, double *b, double *c, double *s)
{
    const auto rotation = kor::linalg::annihilate(*a, *b);
    *c = rotation.c;
    *s = rotation.s;
}
