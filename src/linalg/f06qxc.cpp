// f06qxc: applies a sequence of plane rotations to a real rectangular matrix.
#include <kor/f06.h>

#include "linalg/rotation_sequence.hpp"

void f06qxc(Integer side, Integer pivot, Integer direct, Integer m, Integer n, Integer k1, Integer k2, const double c[],
            const double s[], double a[], Integer tda)
{
    kor::linalg::apply_sequence("f06qxc", side, pivot, direct, m, n, k1, k2, c, s, a, tda);
}
