// f06hrc: chooses the elementary reflection that takes a complex vector into a real first element.
#include <kor/f06.h>

#include "linalg/reflection.hpp"

void f06hrc(Integer n, Complex *alpha, Complex x[], Integer incx, double tol, Complex *theta)
{
    *theta = kor::linalg::make_reflection(n, *alpha, x, incx, tol);
}
