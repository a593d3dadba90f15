// f06hqc: chooses a sequence of plane rotations that takes a complex vector into one element.
#include <kor/f06.h>

#include "linalg/rotation_sequence.hpp"

void f06hqc(Integer pivot, Integer direct, Integer n, Complex *alpha, Complex x[], Integer incx, double c[],
            Complex s[])
{
    kor::linalg::reduce_to_one("f06hqc", pivot, direct, n, *alpha, x, incx, c, s);
}
