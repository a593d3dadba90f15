// f06qnc: moves a row or column of a real upper triangular matrix to another place, and restores the triangle.
#include <kor/f06.h>

#include "linalg/rotation_sequence.hpp"

void f06qnc(Integer side, Integer n, Integer k1, Integer k2, double c[], double s[], double a[], Integer tda)
{
    using namespace kor::linalg;
    if (!accepted_triangle_sequence("f06qnc", side, n, k1, k2, tda) || k1 >= k2) return;
    shift_cyclically(side, n, k1, k2, s, a, tda);
    // Moved rows are restored from the right, moved columns from the left.
    restore_hessenberg(side == LeftSide ? RightSide : LeftSide, n, k1, k2, c, s, a, tda);
}
