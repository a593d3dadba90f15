// Products with matrices in coordinate storage, at the speed of memory, and their norms.
#pragma once

#include "sparse/coordinate.hpp"

namespace kor::sparse {

// y := A x.
void multiply(const Matrix &a, const Integer start[], const double x[], double y[]);
// y := A x; the lower triangle of A is stored.
void multiply_symmetric(const Matrix &a, const Integer start[], const double x[], double y[]);

// The greatest row sum of moduli. `work` has n elements.
double infinity_norm(const Matrix &a, Triangle triangle, double work[]);

} // namespace kor::sparse
