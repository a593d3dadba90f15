// Norms of matrices: largest modulus, largest column or row sum, Euclidean norm of all elements. A NaN in the matrix shows
// in each of them.
#pragma once

#include <kor.h>

namespace kor::linalg {

// The part of a that the matrix type stores stands for all of it. With `unit` the diagonal is taken as 1, not read; of a
// Hermitian diagonal the imaginary parts are not read. 0 for an empty matrix. Nothing is tested here.
double matrix_norm(Integer norm, Integer matrix, bool unit, Integer m, Integer n, const double *a, Integer tda);
double matrix_norm(Integer norm, Integer matrix, bool unit, Integer m, Integer n, const Complex *a, Integer tda);

} // namespace kor::linalg
