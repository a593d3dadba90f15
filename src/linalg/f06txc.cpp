// f06txc: applies a sequence of plane rotations with complex sines to a complex rectangular matrix.
#include <kor/f06.h>

#include "linalg/rotation_sequence.hpp"

void f06txc(Integer side, Integer pivot, Integer direct, Integer m, Integer n, Integer k1, Integer k2, const double c[],
            const Complex s[], Complex a[], Integer tda)
{
    kor::linalg::apply_sequence("f06txc", side, pivot, direct, m, n, k1, k2, c, s, a, tda);
}
