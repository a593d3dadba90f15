// Cholesky factorisation of a symmetric positive-definite matrix.
#pragma once

#include <kor.h>

namespace kor::linalg {

// Replaces the stored triangle of the row-major matrix A by its factor: U with A = U'U (upper), or L with A = LL' (lower).
// Returns 0, or the order of the first leading minor that is not positive; rows before that one then hold the factor.
Integer cholesky_factor(Integer uplo, Integer n, double *a, Integer tda);

} // namespace kor::linalg
