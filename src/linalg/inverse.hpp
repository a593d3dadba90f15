// Inverses from triangular factors.
#pragma once

#include <kor.h>

namespace kor::linalg {

// X := inverse(A), from its factors by lu_factor.
void lu_inverse(Integer n, const double *a, Integer tda, const Integer *pivot, double *x, Integer tdx);

// Replaces a symmetric positive-definite matrix, given by its upper triangle, by its inverse, both triangles. False if
// it is not positive definite; the upper triangle is then partly overwritten.
bool positive_definite_inverse(Integer n, double *a, Integer tda);

} // namespace kor::linalg
