// f06qsc: restores a real triangular matrix with a spike to a triangle by plane rotations.
#include <kor/f06.h>

#include "linalg/rotation_sequence.hpp"

void f06qsc(Integer side, Integer n, Integer k1, Integer k2, double c[], double s[], double a[], Integer tda)
{
    using namespace kor::linalg;
    if (!accepted_triangle_sequence("f06qsc", side, n, k1, k2, tda) || k1 >= k2) return;
    restore_spike(side, n, k1, k2, c, s, a, tda);
}
