// c05azf_f: the zero stepper with an integer status, for callers inside the library.
#pragma once

#include <kor.h>

namespace kor::roots {

// Arguments as c05azc. Status in `ifail`: 0 success or work requested, 1 same sign at the starting points, 2 bad `ind`,
// 3 bad `xtol` or `ir`, 4 pole, 5 no further improvement possible.
void c05azf_f(double &x, double &y, double fx, double xtol, Integer ir, double *c, Integer &ind, Integer &ifail);

} // namespace kor::roots
