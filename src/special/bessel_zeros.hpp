// Zeros of Bessel functions of real order and of their derivatives.
#pragma once

#include <kor.h>

namespace kor::special {

enum class ZeroKind : Integer { j = 1, y = 2, j_slope = 3, y_slope = 4 };

// x[0..n-1] = the first n positive zeros of J_a, Y_a, J'_a or Y'_a in ascending order, 0 <= a <= 1e5, n >= 1; for J'_0 the
// first is 0. Within 1 ulp. False, with x not set, when a search failed.
bool s17alf_f(double a, Integer n, ZeroKind kind, double x[]);

} // namespace kor::special
