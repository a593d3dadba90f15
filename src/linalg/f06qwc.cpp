// f06qwc: applies a sequence of plane rotations to a real upper triangular matrix, which gives one with a spike.
#include <kor/f06.h>

#include "linalg/rotation_sequence.hpp"

void f06qwc(Integer side, Integer n, Integer k1, Integer k2, const double c[], double s[], double a[], Integer tda)
{
    using namespace kor::linalg;
    if (!accepted_triangle_sequence("f06qwc", side, n, k1, k2, tda) || k1 >= k2) return;
    make_spike(side, n, k1, k2, c, s, a, tda);
}
