// Reduction of a rectangular matrix with at least as many rows as columns to real upper bidiagonal form, A = Q B conj(P)'.
//
// B has the diagonal d[0..n-1] and above it e[0..n-2]. Column k of a then holds, from the diagonal down, the vector of the
// reflection H_k from the left; row k holds, from right of the diagonal on, that of G_k from the right:
// Q = conj(H_0)' conj(H_1)' ..., P = conj(G_0)' conj(G_1)' ...
#pragma once

#include <kor.h>

namespace kor::linalg {

// left, n elements, and right, n elements, receive the imaginary parts of the reflections' factors gamma = 1 + i g, which
// are 0 in the real case; the leading element of a vector, zeta, is 0 if the reflection was left out. `work` has m + n
// elements.
void reduce_to_bidiagonal(Integer m, Integer n, double *a, Integer tda, double *d, double *e, double *left,
                          double *right, double *work);
void reduce_to_bidiagonal(Integer m, Integer n, Complex *a, Integer tda, double *d, double *e, double *left,
                          double *right, Complex *work);

// The same of a square matrix without spare columns, in blocks by LAPACK where the order is worth it and there is memory.
void bidiagonal_form(Integer n, double *a, double *d, double *e, double *left, double *right, double *work);
void bidiagonal_form(Integer n, Complex *a, double *d, double *e, double *left, double *right, Complex *work);

// b := conj(Q)' b, b with m rows; y := conj(P)' y, y with n rows.
void apply_left_reflections(Integer m, Integer n, const double *a, Integer tda, const double *left, Integer ncolb,
                            double *b, Integer tdb, double *work);
void apply_left_reflections(Integer m, Integer n, const Complex *a, Integer tda, const double *left, Integer ncolb,
                            Complex *b, Integer tdb, Complex *work);
void apply_right_reflections(Integer n, const double *a, Integer tda, const double *right, Integer ncoly, double *y,
                             Integer tdy, double *work);
void apply_right_reflections(Integer n, const Complex *a, Integer tda, const double *right, Integer ncoly, Complex *y,
                             Integer tdy, Complex *work);

// The first n columns of Q as the rows of qt (n by m), the columns of P as the rows of pt (n by n).
void form_left_basis(Integer m, Integer n, const double *a, Integer tda, const double *left, double *qt, Integer tdq,
                     double *work);
void form_left_basis(Integer m, Integer n, const Complex *a, Integer tda, const double *left, Complex *qt, Integer tdq,
                     Complex *work);
void form_right_basis(Integer n, const double *a, Integer tda, const double *right, double *pt, Integer tdp);
void form_right_basis(Integer n, const Complex *a, Integer tda, const double *right, Complex *pt, Integer tdp);

} // namespace kor::linalg
