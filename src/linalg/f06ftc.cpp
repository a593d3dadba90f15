// f06ftc: applies an elementary reflection to a real vector.
#include <kor/f06.h>

#include "linalg/reflection.hpp"

void f06ftc(Integer n, double *delta, double y[], Integer incy, double zeta, const double z[], Integer incz)
{
    kor::linalg::apply_reflection(n, zeta, z, incz, *delta, y, incy);
}
