// Orthogonal (unitary) factors made of reflections, applied and formed in blocks.
//
// A column form keeps k reflections in the columns of an m by n matrix: H_j = I - gamma_j u_j conj(u_j)', where u_j is zero
// above element j, its element j is zeta_j, and those below lie under the diagonal of column j. Q = conj(H_0)' conj(H_1)'
// ..., so that conj(Q)' A = R. In real numbers a scalar is zeta itself and gamma is 1; in complex ones theta = zeta + i t, and
// gamma = 1 + i t. A zero scalar is H = I, whatever is stored.
//
// The row form keeps m reflections in the rows of an m by n matrix, m <= n: row j holds conj(u_j)', which is zero in the
// columns j + 1 to m - 1, and has zeta_j in column j. A P = (R 0), P = P_(m-1) ... P_1 P_0, P_j = conj(H_j)'.
#pragma once

#include "frame/workspace.hpp"
#include "linalg/scalar.hpp"

namespace kor::linalg {

// Elements of work space for a matrix of m rows, or in the row form columns, and blocks that act on n columns or rows.
Count reflection_work(Integer m, Integer n);

// Replaces A, m by n, by R and the vectors of its reflections; zeta has min(m, n) elements. A real matrix has no reflection
// for the last row, so that zeta[n - 1] = 0 if m = n; a complex one has, so that the diagonal of R is real.
void qr_factor(Integer m, Integer n, double *a, Integer tda, double *zeta, double *work);
void qr_factor(Integer m, Integer n, Complex *a, Integer tda, Complex *zeta, Complex *work);

// B := Q B, or conj(Q)' B, with the first k reflections; B is m by ncolb.
void qr_apply(bool adjoint, Integer m, Integer k, const double *a, Integer tda, const double *zeta, Integer ncolb,
              double *b, Integer tdb, double *work);
void qr_apply(bool adjoint, Integer m, Integer k, const Complex *a, Integer tda, const Complex *zeta, Integer ncolb,
              Complex *b, Integer tdb, Complex *work);

// Replaces the reflections, k of them, by the first ncolq columns of Q, ncolq <= m.
void qr_form(Integer m, Integer k, Integer ncolq, double *a, Integer tda, const double *zeta, double *work);
void qr_form(Integer m, Integer k, Integer ncolq, Complex *a, Integer tda, const Complex *zeta, Complex *work);

// Replaces A, m by n, m <= n, by R, in the upper triangle of its first m columns, and the vectors of its reflections.
void rq_factor(Integer m, Integer n, double *a, Integer tda, double *zeta, double *work);
void rq_factor(Integer m, Integer n, Complex *a, Integer tda, Complex *zeta, Complex *work);

// Replaces the reflections of m rows by the first nrowp rows of conj(P)', nrowp <= n.
void rq_form(Integer m, Integer n, Integer nrowp, double *a, Integer tda, const double *zeta, double *work);
void rq_form(Integer m, Integer n, Integer nrowp, Complex *a, Integer tda, const Complex *zeta, Complex *work);

// Y := H Y for one reflection, Y m by n with its first row apart; z, the rest of u, has elements incz apart; w has n.
void reflect(Integer m, Integer n, double scalar, const double *z, Integer incz, double *first, double *y, Integer tdy,
             double *w);
void reflect(Integer m, Integer n, Complex scalar, const Complex *z, Integer incz, Complex *first, Complex *y,
             Integer tdy, Complex *w);

} // namespace kor::linalg
