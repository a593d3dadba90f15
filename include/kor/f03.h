/// \file f03.h
/// Chapter f03: determinants, with the factorisations that give them.
///
/// A determinant is a mantissa and an exponent of 2, which reach beyond the range of doubles. Matrices are row-major,
/// with the length of a row of the array after them.
#ifndef KOR_F03_H
#define KOR_F03_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief Determinant of a real symmetric positive-definite matrix.
///
/// With A = LL' the determinant is the product of the squares of L's diagonal. It is given as a mantissa and an
/// exponent, det(A) = `*det` 2^`*dete`, and so neither overflows nor underflows.
///
/// \param[in]     n    order of A, at least 1
/// \param[in,out] a    n by n, element (i, j) at `a[i * tda + j]`: on entry the upper triangle of A with its diagonal,
///                     which stay; on return L below the diagonal, without its diagonal
/// \param[in]     tda  length of a row of the array `a`, at least `n`
/// \param[out]    det  the mantissa, 1/16 <= `*det` < 1
/// \param[out]    dete the exponent of 2, a multiple of 4
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 1.
/// - NE_2_INT_ARG_LT: `tda` is less than `n`.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_NOT_POS_DEF: A is not positive definite, or holds a NaN or an infinity; `fail->errnum` is the order of the
///   first leading minor that is not positive, and `*det`, `*dete` hold the product of the pivots up to that one (0 and
///   0 for a product of 0).
///
/// After the first three the outputs are untouched.
/// \par Accuracy
/// The determinant is exact for a matrix that differs from A, in each element, by about n times the precision times the
/// geometric mean of two diagonal elements.
/// \par Method
/// Cholesky factorisation along rows, from order 25 on in blocks by LAPACK; f03aec() without its factor. J. H.
/// Wilkinson and C. Reinsch, Linear Algebra (1971), contribution I/1.
/// \par Thread safety
/// Safe.
/// \par See also
/// f03aec() keeps the factor for f04agc(); f03afc() for general matrices.
/// \par Example
/// \code{.c}
/// double a[] = {4.0, 2.0, 0.0, 5.0}, det;
/// Integer dete;
/// f03abc(2, a, 2, &det, &dete, &fail);   // det = 0.0625, dete = 8: the determinant is 16
/// \endcode
void f03abc(Integer n, double a[], Integer tda, double *det, Integer *dete, KorError *fail);

/// \brief Cholesky factorisation and determinant of a real symmetric positive-definite matrix.
///
/// Finds the lower triangular L with A = LL', and det(A) = `*det` 2^`*dete`. The upper triangle of the array keeps A,
/// so that both are at hand for f04agc() and f04afc().
///
/// \param[in]     n    order of A, at least 1
/// \param[in,out] a    n by n, element (i, j) at `a[i * tda + j]`: on entry the upper triangle of A with its diagonal,
///                     which stay; on return L below the diagonal, without its diagonal
/// \param[in]     tda  length of a row of the array `a`, at least `n`
/// \param[out]    p    n elements: the reciprocals of the diagonal of L
/// \param[out]    det  the mantissa of the determinant, 1/16 <= `*det` < 1
/// \param[out]    dete its exponent of 2, a multiple of 4
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 1.
/// - NE_2_INT_ARG_LT: `tda` is less than `n`.
/// - NE_NOT_POS_DEF: A is not positive definite, or holds a NaN or an infinity; `fail->errnum` is the order k of the
///   first leading minor that is not positive. `*det`, `*dete` hold the product of the first k pivots (0 and 0 if it is
///   0), `p` the k - 1 reciprocals known and zeros, and the upper triangle still holds A.
///
/// After the first two the outputs are untouched.
/// \par Accuracy
/// Backward stable: L is exact for a matrix that differs from A, in each element, by about n times the precision times
/// the geometric mean of two diagonal elements.
/// \par Method
/// Cholesky factorisation along rows, from order 25 on in blocks by LAPACK. J. H. Wilkinson and C. Reinsch,
/// Linear Algebra (1971), contribution I/1.
/// \par Thread safety
/// Safe.
/// \par See also
/// f04agc() solves with the factor, f04afc() to full accuracy; f01bnc() for Hermitian matrices; f07fdc() overwrites A.
/// \par Example
/// \code{.c}
/// double a[] = {4.0, 2.0, 0.0, 5.0}, p[2], det;
/// Integer dete;
/// f03aec(2, a, 2, p, &det, &dete, &fail);   // L = (2, 0; 1, 2): a[2] = 1, p = {0.5, 0.5}; 16 = 0.0625 x 2^8
/// \endcode
void f03aec(Integer n, double a[], Integer tda, double p[], double *det, Integer *dete, KorError *fail);

/// \brief LU factorisation with scaled row interchanges, and determinant, of a real matrix.
///
/// Finds PA = LU, P a permutation, L unit lower and U upper triangular, and det(A) = `*det` 2^`*dete`. The pivot of
/// each stage is the row whose candidate is greatest in proportion to the length of that row of A; the first such row
/// wins a tie. So the choice does not depend on how the equations are scaled.
///
/// \param[in]     n     order of A, at least 1
/// \param[in,out] a     n by n, element (i, j) at `a[i * tda + j]`: A; on return U in the upper triangle, L without its
///                      diagonal of ones below
/// \param[in]     tda   length of a row of the array `a`, at least `n`
/// \param[out]    pivot n elements: `pivot[k]` is the row, from 1, that was interchanged with row k + 1 at that stage;
///                      `pivot[k]` > k
/// \param[out]    det   the mantissa of the determinant: 1/16 <= |`*det`| < 1
/// \param[out]    dete  its exponent of 2, a multiple of 4
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 1.
/// - NE_2_INT_ARG_LT: `tda` is less than `n`.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_SINGULAR: A is singular, or nearly so, or holds a NaN or an infinity: at the stage told by `fail->errnum`, from
///   1, no candidate reached 8 times the precision times the length of its row. `*det` and `*dete` are 0; `a` is partly
///   reduced.
///
/// After the first three the outputs are untouched.
/// \par Accuracy
/// Backward stable: LU is exact for a matrix whose rows differ from those of PA by about n times the precision times
/// the growth of the elements, which is seldom above 10.
/// \par Method
/// Elimination with implicitly scaled partial pivoting (J. H. Wilkinson and C. Reinsch, Linear Algebra (1971),
/// contribution I/7), on halves of the columns (S. Toledo, SIAM J. Matrix Anal. Appl. 18 (1997) 1065-1081).
/// \par Thread safety
/// Safe.
/// \par See also
/// f04ajc() solves with the factors, f04ahc() to full accuracy; f04arc() does both for one right-hand side; f01aac()
/// inverts. f03ahc() for complex matrices.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 2.0, 3.0, 4.0}, det;
/// Integer pivot[2], dete;
/// f03afc(2, a, 2, pivot, &det, &dete, &fail);   // pivot = {2, 2}; det = -0.125, dete = 4: the determinant is -2
/// \endcode
void f03afc(Integer n, double a[], Integer tda, Integer pivot[], double *det, Integer *dete, KorError *fail);

/// \brief LU factorisation with scaled row interchanges, and determinant, of a complex matrix.
///
/// Finds PA = LU, P a permutation, L unit lower and U upper triangular, and det(A) = `*det` 2^`*dete`. The pivot of
/// each stage is the row whose candidate is greatest in proportion to the length of that row of A; the first such row
/// wins a tie. So the choice does not depend on how the equations are scaled.
///
/// \param[in]     n     order of A, at least 1
/// \param[in,out] a     n by n, element (i, j) at `a[i * tda + j]`: A; on return U in the upper triangle, L without its
///                      diagonal of ones below
/// \param[in]     tda   length of a row of the array `a`, at least `n`
/// \param[out]    pivot n elements: `pivot[k]` is the row, from 1, that was interchanged with row k + 1 at that stage;
///                      `pivot[k]` > k
/// \param[out]    det   the mantissa of the determinant: its greater part, in modulus, lies in [1/16, 1)
/// \param[out]    dete  its exponent of 2, a multiple of 4
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 1.
/// - NE_2_INT_ARG_LT: `tda` is less than `n`.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_SINGULAR: A is singular, or nearly so, or holds a NaN or an infinity: at the stage told by `fail->errnum`, from
///   1, no candidate reached 8 times the precision times the length of its row. `*det` and `*dete` are 0; `a` is partly
///   reduced.
///
/// After the first three the outputs are untouched.
/// \par Accuracy
/// Backward stable: LU is exact for a matrix whose rows differ from those of PA by about n times the precision times
/// the growth of the elements, which is seldom above 10.
/// \par Method
/// Elimination with implicitly scaled partial pivoting (J. H. Wilkinson and C. Reinsch, Linear Algebra (1971),
/// contribution I/7), on halves of the columns (S. Toledo, SIAM J. Matrix Anal. Appl. 18 (1997) 1065-1081).
/// \par Thread safety
/// Safe.
/// \par See also
/// f04akc() solves with the factors; f04adc() does both. f03afc() for real matrices.
/// \par Example
/// \code{.c}
/// Complex a[] = {{1.0, 1.0}, {2.0, 0.0}, {0.0, 1.0}, {3.0, 0.0}}, det;
/// Integer pivot[2], dete;
/// f03ahc(2, a, 2, pivot, &det, &dete, &fail);   // det = 0.1875 + 0.0625 i, dete = 4: the determinant is 3 + i
/// \endcode
void f03ahc(Integer n, Complex a[], Integer tda, Integer pivot[], Complex *det, Integer *dete, KorError *fail);

KOR_END_DECLS

#endif
