// Eigenvalues and eigenvectors of symmetric, Hermitian and symmetric-definite problems.
#pragma once

#include <kor.h>

namespace kor::linalg {

enum class EigenOutcome { success, no_memory, not_positive_definite, no_convergence };

// Steps after which an iteration on n rows is given up.
constexpr Integer iteration_limit(Integer n) { return n <= 0x7fffffff / 30 ? 30 * n : 0x7fffffff; }

// The eigenvalues of A in ascending order; only the lower triangle is read, and overwritten.
EigenOutcome symmetric_eigenvalues(Integer n, double *a, Integer tda, double *values);
EigenOutcome symmetric_eigenvalues(Integer n, Complex *a, Integer tda, double *values);

// Also the eigenvectors, of length 1, as the columns of v, which may be a itself.
EigenOutcome symmetric_eigenvectors(Integer n, const double *a, Integer tda, double *values, double *v, Integer tdv);
EigenOutcome symmetric_eigenvectors(Integer n, const Complex *a, Integer tda, double *values, Complex *v, Integer tdv);

// A x = lambda B x: eigenvalues ascending, vectors with x' B x = 1. Lower triangles are read; a and b are overwritten, b by
// the Cholesky factor of B. v may be a.
EigenOutcome definite_eigenvalues(Integer n, double *a, Integer tda, double *b, Integer tdb, double *values);
EigenOutcome definite_eigenvectors(Integer n, double *a, Integer tda, double *b, Integer tdb, double *values, double *v,
                                   Integer tdv);

// B = L L', then A := L^-1 A L^-T, lower triangles throughout. Of L the diagonal goes to dl, the rest below the diagonal
// of b. Returns 0, or the order of the first leading minor of B that is not positive.
Integer reduce_to_standard(Integer n, double *a, Integer tda, double *b, Integer tdb, double *dl);

// The columns [first, last) of z are multiplied by L^-T.
void recover_vectors(Integer n, Integer first, Integer last, const double *b, Integer tdb, const double *dl, double *z,
                     Integer tdz);

} // namespace kor::linalg
