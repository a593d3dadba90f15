// f06frc: chooses the elementary reflection that takes a real vector into its first element.
#include <kor/f06.h>

#include "linalg/reflection.hpp"

void f06frc(Integer n, double *alpha, double x[], Integer incx, double tol, double *z1)
{
    *z1 = kor::linalg::make_reflection(n, *alpha, x, incx, tol);
}
