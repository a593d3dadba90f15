// Eigenvalues and eigenvectors of general matrices and of pairs.
#pragma once

#include <kor.h>

#include "linalg/symmetric_eigen.hpp"

namespace kor::linalg {

// All eigenvalues of a, which is destroyed; with v also the eigenvectors, of length 1 and with the largest component real, as
// its columns. iter[i] is the number of steps that eigenvalue i took, or 0 where LAPACK did the work.
EigenOutcome general_eigenvalues(Integer n, double *a, Integer tda, Complex *values, Complex *v, Integer tdv,
                                 Integer *iter);

// A x = lambda B x, lambda = alfa / beta, beta not negative; a and b are destroyed. With v the eigenvectors are in its columns,
// the largest component 1; of a complex pair, which has the positive imaginary part first, real and imaginary part of the
// first vector in two columns. Elements of the triangular pair within tol times the norm of A or B count as zero.
EigenOutcome pair_eigenvalues(Integer n, double *a, Integer tda, double *b, Integer tdb, double tol, Complex *alfa,
                              double *beta, double *v, Integer tdv, Integer *iter);

// Turns and scales a vector with increment: length 1, largest component real and not negative. A zero vector stays.
void normalise_vector(Integer n, Complex *x, Integer incx);

} // namespace kor::linalg
