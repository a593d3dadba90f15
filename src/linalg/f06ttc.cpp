// f06ttc: applies a sequence of plane rotations to a complex upper triangular matrix, and restores the triangle from
// the other side.
#include <kor/f06.h>

#include "linalg/rotation_sequence.hpp"

void f06ttc(Integer side, Integer n, Integer k1, Integer k2, double c[], Complex s[], Complex a[], Integer tda)
{
    using namespace kor::linalg;
    if (!accepted_triangle_sequence("f06ttc", side, n, k1, k2, tda) || k1 >= k2) return;
    apply_and_restore(side, n, k1, k2, c, s, a, tda);
}
