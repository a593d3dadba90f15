// f06bcc: cosine and sine of a plane rotation from its tangent.
#include <kor/f06.h>

#include "linalg/rotation.hpp"

void f06bcc(double t, double *c, double *s)
{
    const auto rotation = kor::linalg::rotation_of_tangent(t);
    *c = rotation.c;
    *s = rotation.s;
}
