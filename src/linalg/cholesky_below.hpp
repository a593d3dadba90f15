// Cholesky factorisation that keeps its matrix: A = L conj(L)', A Hermitian and given by its upper triangle, which stays;
// L goes below the diagonal, and the reciprocals of its diagonal to a vector p.
#pragma once

#include "linalg/copies.hpp"
#include "linalg/determinant.hpp"

namespace kor::linalg {

// Returns 0, or the stage, from 1, whose pivot is not a positive number; p is 0 from there on. The determinant is the
// product of the pivots, that one included. Imaginary parts on the diagonal are not read.
Integer cholesky_below(Integer n, double *a, Integer tda, double *p, Determinant<double> &determinant);
Integer cholesky_below(Integer n, Complex *a, Integer tda, double *p, Determinant<double> &determinant);

// The condition of cholesky_below_solve: all reciprocals are positive.
inline bool reciprocals_are_sound(Integer n, const double *p)
{
    for (Integer k = 0; k < n; ++k)
        if (!(p[k] > 0.0)) return false;
    return true;
}

// X := inverse(A) X, X n by nrhs.
void cholesky_below_solve(Integer n, Integer nrhs, const double *a, Integer tda, const double *p, double *x,
                          Integer tdx);
void cholesky_below_solve(Integer n, Integer nrhs, const Complex *a, Integer tda, const double *p, Complex *x,
                          Integer tdx);

} // namespace kor::linalg
