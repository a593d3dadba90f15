// Sine and cosine transforms: transforms of odd and even sequences of length 2n.
#pragma once

#include <kor.h>

namespace kor::transforms {

enum class Symmetry { odd, even };

// m rows: elements 1..n-1 of an odd sequence of length 2n, or elements 0..n of an even one. `trig` is the table for n.
// False, with the data untouched, when there is no memory.
bool symmetric_transform(Symmetry symmetry, Integer m, Integer n, double *x, const double *trig);

} // namespace kor::transforms
