// f06aac: chooses the plane rotation that makes the second of two numbers zero (drotg).
//
// BLAS libraries in use overflow in rotg: it is done here.
#include <kor/f06.h>

#include "linalg/rotation.hpp"

void f06aac(double *a, double *b, double *c, double *s)
{
    const auto rotation = kor::linalg::standard_rotation(*a, *b);
    *c = rotation.c;
    *s = rotation.s;
}
