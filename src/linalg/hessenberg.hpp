// Upper Hessenberg form of a general matrix, and its eigenvalues and eigenvectors.
#pragma once

#include <kor.h>

#include "linalg/balance.hpp"

namespace kor::linalg {

// By elimination with interchanges in the range: the multipliers stay below the subdiagonal, and rows[m], counted from 1,
// is the row that came to row m. accumulate_elimination makes the matrix V of A V = V H.
void eliminate_to_hessenberg(Integer n, BalancedRange range, double *a, Integer tda, Integer *rows);
void accumulate_elimination(Integer n, BalancedRange range, const Integer *rows, const double *h, Integer tdh,
                            double *v, Integer tdv);

// By reflections; below the subdiagonal zeros are left, and zt, if not null, is the transpose of Q, A = Q H Q'. `work` has
// 2 n elements.
void reflect_to_hessenberg(Integer n, BalancedRange range, double *a, Integer tda, double *zt, Integer tdz,
                           double *work);

// Eigenvalues wr + i wi of the Hessenberg matrix h, a complex pair with the positive imaginary part first. What h holds
// below the subdiagonal is not read. With zt the rows of zt are turned, and h becomes the quasi-triangular Schur form; else h
// is destroyed. count[i] is the number of steps that eigenvalue i took, for the second one of a pair the negative. Returns the
// number of leading rows that have not split after `limit` steps: from there on the eigenvalues are right.
Integer hessenberg_eigenvalues(Integer n, BalancedRange range, double eps, double *h, Integer tdh, double *zt,
                               Integer tdz, double *wr, double *wi, Integer *count, Integer limit);

// Eigenvectors of Z T Z': row j of xt is that of a real eigenvalue; rows j and j+1 are the real and the imaginary part of
// that of the eigenvalue with positive imaginary part of a pair. zt holds the rows of Z' and may not be xt. Vectors are
// scaled at will. `work` has 2 n elements.
void schur_eigenvectors(Integer n, const double *t, Integer tdt, const double *wr, const double *wi, const double *zt,
                        Integer tdz, double *xt, Integer tdx, double *work);

} // namespace kor::linalg
