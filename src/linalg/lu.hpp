// LU factorisation with interchanges of rows, PA = LU: L unit lower, U upper, both in the place of A.
//
// The pivot of a stage is the row whose element, multiplied by the row's scale, is greatest in modulus; the first such row
// wins a tie. With the reciprocals of the row lengths for scales the choice does not depend on how the equations are
// scaled; with ones it is plain partial pivoting.
#pragma once

#include "frame/constants.hpp"
#include "linalg/copies.hpp"
#include "linalg/determinant.hpp"
#include "linalg/scalar.hpp"
#include "linalg/scratch.hpp"

namespace kor::linalg {

// Up to this order a factorisation needs no allocation.
inline constexpr Integer kSmallSystem = 32;

// A pivot that, scaled, is less than this is taken for zero: 8 times the precision.
inline constexpr double kLeastScaledPivot = 8.0 * kPrecision;

// 1 / |row i|: infinite for a row of zeros, so that 0 times it is NaN and never chosen.
void row_scales(Integer n, const double *a, Integer tda, double *scale);
void row_scales(Integer n, const Complex *a, Integer tda, double *scale);

// Memory that the factorisation needs beside the matrix, in scalars.
Integer lu_work(Integer n);

// Replaces A by L and U. pivot[k] is the row, from 1, that stage k has interchanged with row k; scale follows the
// interchanges; work has lu_work(n) elements. Returns 0, or the stage, from 1, that found no scaled pivot of at least
// `least`: A is then partly reduced. A NaN or an infinity in A ends so.
Integer lu_factor(Integer n, double *a, Integer tda, double *scale, double least, Integer *pivot, double *work);
Integer lu_factor(Integer n, Complex *a, Integer tda, double *scale, double least, Integer *pivot, Complex *work);

// B := inverse(A) B, B n by nrhs.
void lu_solve(Integer n, Integer nrhs, const double *a, Integer tda, const Integer *pivot, double *b, Integer tdb);
void lu_solve(Integer n, Integer nrhs, const Complex *a, Integer tda, const Integer *pivot, Complex *b, Integer tdb);

// The factorisation that the determinants and solvers share, with its memory: rows scaled by their lengths.
template <Scalar T>
class ScaledLu {
  public:
    explicit ScaledLu(Integer n) : n_{n}, scale_{n}, work_{lu_work(n)} {}
    explicit operator bool() const { return scale_ && work_; }
    Integer factor(T *a, Integer tda, Integer *pivot)
    {
        row_scales(n_, a, tda, scale_.data());
        return lu_factor(n_, a, tda, scale_.data(), kLeastScaledPivot, pivot, work_.data());
    }

  private:
    Integer n_;
    Scratch<double, kSmallSystem> scale_;
    Scratch<T, 1> work_;
};

// The conditions of lu_solve: every interchange is with a row of its stage or below, and no pivot is zero.
inline bool interchanges_are_sound(Integer n, const Integer *pivot)
{
    for (Integer k = 0; k < n; ++k)
        if (pivot[k] <= k || pivot[k] > n) return false;
    return true;
}
template <Scalar T>
bool diagonal_is_sound(Integer n, const T *a, Integer tda)
{
    for (Integer k = 0; k < n; ++k)
        if (a[std::ptrdiff_t{k} * tda + k] == T{}) return false;
    return true;
}

template <Scalar T>
Determinant<T> lu_determinant(Integer n, const T *a, Integer tda, const Integer *pivot)
{
    Determinant<T> determinant;
    for (Integer k = 0; k < n; ++k) {
        if (pivot[k] != k + 1) determinant.negate();
        determinant.multiply(a[std::ptrdiff_t{k} * tda + k]);
    }
    return determinant;
}

} // namespace kor::linalg
