// f06fqc: chooses a sequence of plane rotations that takes a real vector into one element.
#include <kor/f06.h>

#include "linalg/rotation_sequence.hpp"

void f06fqc(Integer pivot, Integer direct, Integer n, double *alpha, double x[], Integer incx, double c[], double s[])
{
    kor::linalg::reduce_to_one("f06fqc", pivot, direct, n, *alpha, x, incx, c, s);
}
