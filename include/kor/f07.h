/// \file f07.h
/// Chapter f07: linear equations: the Cholesky factorisation of the standard package.
#ifndef KOR_F07_H
#define KOR_F07_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief Cholesky factorisation of a real symmetric positive-definite matrix.
///
/// Finds the triangular factor U with A = U'U, or L with A = LL', and puts it in the place of the stored triangle of A.
/// With it f06pjc() solves systems: A x = b by U'y = b, U x = y.
///
/// \param[in]     uplo UpperTriangle or LowerTriangle: which triangle of A is stored, and which factor is wanted; the other
///                     half of the array is not touched
/// \param[in]     n    order of A, not negative
/// \param[in,out] a    the stored triangle of A, row by row: element (i, j) at `a[i * tda + j]`, from 0; the factor on
///                     return. After NE_NOT_POS_DEF it is partly overwritten
/// \param[in]     tda  length of a row of the array, at least n
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `uplo` is not UpperTriangle or LowerTriangle.
/// - NE_INT_ARG_LT: `n` is negative.
/// - NE_2_INT_ARG_LT: `tda` is less than `n`.
/// - NE_NOT_POS_DEF: A is not positive definite, or not to working accuracy, or holds a NaN; `fail->errnum` is the order of
///   the first leading minor that is not positive.
/// \par Accuracy
/// Backward stable: the factor is exact for a matrix that differs from A by at most about n times the precision times the
/// geometric mean of two diagonal elements, in each element.
/// \par Method
/// The operation potrf of LAPACK (E. Anderson et al., LAPACK Users' Guide, 3rd ed., SIAM 1999), blocked, from the library
/// that is linked; up to order 24 elimination row by row.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06pjc() and f06yjc() solve with the factor.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double a[] = {4.0, 2.0, 0.0, 5.0};
/// f07fdc(UpperTriangle, 2, a, 2, &fail);   // a = {2, 1, 0, 2}
/// \endcode
void f07fdc(Integer uplo, Integer n, double a[], Integer tda, KorError *fail);

KOR_END_DECLS

#endif
