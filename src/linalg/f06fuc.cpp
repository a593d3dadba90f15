// f06fuc: applies an elementary reflection to a real vector, the reflection first in the list.
#include <kor/f06.h>

#include "linalg/reflection.hpp"

void f06fuc(Integer n, const double z[], Integer incz, double z1, double *alpha, double x[], Integer incx)
{
    kor::linalg::apply_reflection(n, z1, z, incz, *alpha, x, incx);
}
