// f06ccc: cosine and sine of a plane rotation from its complex tangent.
#include <kor/f06.h>

#include "linalg/rotation.hpp"

void f06ccc(Complex t, double *c, Complex *s)
{
    const auto rotation = kor::linalg::rotation_of_tangent(t);
    *c = rotation.c;
    *s = rotation.s;
}
