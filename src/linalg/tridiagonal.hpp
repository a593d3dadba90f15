// Reduction of a symmetric or Hermitian matrix to a real symmetric tridiagonal one: A = Q T conj(Q)'.
//
// T has the diagonal d[0..n-1] and, beside it, e[1..n-1]: e[i] stands in row i, column i-1; e[0] = 0.
#pragma once

#include <kor.h>

namespace kor::linalg {

// Reduces the lower triangle of the row-major matrix a, from the last row upwards, by elementary reflections: row i then
// holds, left of the diagonal, the vector of the reflection that took it to e[i]. A reflection whose vector has no element
// above tol is left out. Imaginary parts of the diagonal are not read. `work` has n elements, and may be d in the real
// case; in the complex case it keeps the scalars of the reflections, whose factors gamma are not real.
void reduce_to_tridiagonal(Integer n, double *a, Integer tda, double *d, double *e, double *work, double tol);
void reduce_to_tridiagonal(Integer n, Complex *a, Integer tda, double *d, double *e, Complex *work, double tol);

// Replaces what reduce_to_tridiagonal left by the transpose of Q: row j becomes column j of Q.
void form_tridiagonal_basis(Integer n, double *a, Integer tda);
void form_tridiagonal_basis(Integer n, Complex *a, Integer tda, const Complex *work);

// The same reductions, in blocks by LAPACK where the order is worth it and there is memory; what a then holds is of no use
// (want_basis false), or it is the transpose of Q.
void tridiagonal_form(bool want_basis, Integer n, double *a, Integer tda, double *d, double *e, double *work,
                      double tol);
void tridiagonal_form(bool want_basis, Integer n, Complex *a, Integer tda, double *d, double *e, Complex *work,
                      double tol);

} // namespace kor::linalg
