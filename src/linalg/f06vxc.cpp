// f06vxc: applies a sequence of plane rotations to a complex rectangular matrix.
#include <kor/f06.h>

#include "linalg/rotation_sequence.hpp"

void f06vxc(Integer side, Integer pivot, Integer direct, Integer m, Integer n, Integer k1, Integer k2, const double c[],
            const double s[], Complex a[], Integer tda)
{
    kor::linalg::apply_sequence("f06vxc", side, pivot, direct, m, n, k1, k2, c, s, a, tda);
}
