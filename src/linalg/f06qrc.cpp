// f06qrc: restores a real upper Hessenberg matrix to a triangle by plane rotations.
#include <kor/f06.h>

#include "linalg/rotation_sequence.hpp"

void f06qrc(Integer side, Integer n, Integer k1, Integer k2, double c[], double s[], double a[], Integer tda)
{
    using namespace kor::linalg;
    if (!accepted_triangle_sequence("f06qrc", side, n, k1, k2, tda) || k1 >= k2) return;
    restore_hessenberg(side, n, k1, k2, c, s, a, tda);
}
