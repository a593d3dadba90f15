/// \file f11.h
/// Chapter f11: large sparse systems of linear equations: storage, incomplete factors, iterative solvers.
///
/// A matrix is stored as a list of its elements: `a[p]` stands in row `irow[p]` and column `icol[p]`, both counted from 1,
/// for p = 0 .. `nnz` - 1. The elements lie row by row, within a row by increasing column, and none is given twice. Of a
/// symmetric matrix only the lower triangle is stored, `icol[p]` <= `irow[p]`. f11zac() and f11zbc() bring a list in any
/// order into this form.
///
/// A factor lies behind its matrix in the same three arrays, which the routine that computes it may replace by longer ones:
/// they must come from x04bbc() (or from `malloc`), and are released by x04bdc(). Places in the arrays that are handed out
/// (`istr`, `idiag`) count from 1, as rows and columns do: row i of the factor begins at `a[istr[i-1] - 1]`.
#ifndef KOR_F11_H
#define KOR_F11_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief Brings the elements of a nonsymmetric matrix, in any order, into the storage that this chapter works on.
///
/// \param[in]     n    order of the matrix, at least 1
/// \param[in,out] nnz  number of elements, at least 1; on return of those that are left
/// \param[in,out] a    `nnz` elements: the values; on return in order
/// \param[in,out] irow `nnz` elements: their rows, from 1 to `n`; on return in order
/// \param[in,out] icol `nnz` elements: their columns, from 1 to `n`; on return in order
/// \param[in]     dup  what becomes of elements with the same row and column: Kor_SparseNsym_RemoveDups (the first of the
///                     list stays), Kor_SparseNsym_SumDups (their sum, as in the assembly of finite elements) or
///                     Kor_SparseNsym_FailDups
/// \param[in]     zero what becomes of elements of the value 0, and of sums that come to 0: Kor_SparseNsym_RemoveZeros,
///                     Kor_SparseNsym_KeepZeros or Kor_SparseNsym_FailZeros. Zeros that are given go before repetitions are
///                     looked at
/// \param[out]    istr n + 1 elements: row i begins at element `istr[i-1]`, counted from 1; `istr[n]` is `nnz` + 1
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` or `nnz` is less than 1.
/// - NE_BAD_PARAM: `dup` or `zero` is none of the values above.
/// - NE_NONSYMM_MATRIX: an element lies outside the matrix.
/// - NE_ZERO_COEFF: Kor_SparseNsym_FailZeros, and there is a zero.
/// - NE_NON_ZERO_DUP: Kor_SparseNsym_FailDups, and an element is repeated.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// After an error all arguments are as they were.
/// \par Method
/// Two distributions over columns and rows, which keep the order of equals: time proportional to `n` + `nnz`. A list that is
/// in order already is left as it is.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Integer nnz = 4, irow[] = {2, 1, 2, 2}, icol[] = {2, 1, 1, 2}, istr[3];
/// double a[] = {5.0, 4.0, -1.0, 2.0};
/// f11zac(2, &nnz, a, irow, icol, Kor_SparseNsym_SumDups, Kor_SparseNsym_RemoveZeros, istr, &fail);
/// // nnz = 3: (1,1) 4, (2,1) -1, (2,2) 7; istr = 1, 2, 4
/// \endcode
void f11zac(Integer n, Integer *nnz, double a[], Integer irow[], Integer icol[], Integer dup, Integer zero,
            Integer istr[], KorError *fail);

/// \brief Brings the lower triangle of a symmetric matrix, in any order, into the storage that this chapter works on.
///
/// \param[in]     n    order of the matrix, at least 1
/// \param[in,out] nnz  number of elements of the lower triangle, at least 1; on return of those that are left
/// \param[in,out] a    `nnz` elements: the values; on return in order
/// \param[in,out] irow `nnz` elements: their rows, from 1 to `n`; on return in order
/// \param[in,out] icol `nnz` elements: their columns, from 1 to the row; on return in order
/// \param[in]     dup  what becomes of elements with the same row and column: Kor_SparseSym_RemoveDups (the first of the list
///                     stays), Kor_SparseSym_SumDups (their sum) or Kor_SparseNsym_FailDups
/// \param[in]     zero what becomes of elements of the value 0, and of sums that come to 0: Kor_SparseSym_RemoveZeros,
///                     Kor_SparseSym_KeepZeros or Kor_SparseNsym_FailZeros
/// \param[out]    istr n + 1 elements: row i begins at element `istr[i-1]`, counted from 1; `istr[n]` is `nnz` + 1
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` or `nnz` is less than 1.
/// - NE_BAD_PARAM: `dup` or `zero` is none of the values above.
/// - NE_SYMM_MATRIX: an element lies outside the matrix or above its diagonal.
/// - NE_ZERO_COEFF: Kor_SparseNsym_FailZeros, and there is a zero.
/// - NE_NON_ZERO_DUP: Kor_SparseNsym_FailDups, and an element is repeated.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// After an error all arguments are as they were.
/// \par Method
/// As f11zac().
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Integer nnz = 3, irow[] = {2, 1, 2}, icol[] = {2, 1, 1}, istr[3];
/// double a[] = {7.0, 4.0, -1.0};
/// f11zbc(2, &nnz, a, irow, icol, Kor_SparseSym_SumDups, Kor_SparseSym_RemoveZeros, istr, &fail);
/// // (1,1) 4, (2,1) -1, (2,2) 7; istr = 1, 2, 4
/// \endcode
void f11zbc(Integer n, Integer *nnz, double a[], Integer irow[], Integer icol[], Integer dup, Integer zero,
            Integer istr[], KorError *fail);

/// \brief Product y = A x of a symmetric matrix, of which the lower triangle is stored, and a vector.
///
/// \param[in]  n     order of A, at least 1
/// \param[in]  nnz   number of elements of the lower triangle, from 1 to n(n+1)/2
/// \param[in]  a     `nnz` elements: the values, in order (see f11zbc())
/// \param[in]  irow  `nnz` elements: their rows, from 1
/// \param[in]  icol  `nnz` elements: their columns, from 1, at most the row
/// \param[in]  check Kor_SparseSym_Check: the storage is checked; Kor_SparseSym_NoCheck: it is taken on trust, and wrong
///                   indices read and write outside the arrays
/// \param[in]  x     n elements
/// \param[out] y     n elements: the product; must not overlap `x`
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 1.
/// - NE_INT_2: `nnz` is not from 1 to n(n+1)/2.
/// - NE_BAD_PARAM: `check` is neither of the two values.
/// - NE_SYMM_MATRIX_DUP: the check has found elements out of range, out of order, above the diagonal or repeated.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// `y` is untouched after an error.
/// \par Accuracy
/// Element i of y differs from the exact sum by at most the number of its terms times the precision times the sum of their
/// moduli.
/// \par Method
/// One pass through the elements: each serves its row and its column.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Integer irow[] = {1, 2, 2}, icol[] = {1, 1, 2};
/// double a[] = {4.0, -1.0, 7.0}, x[] = {1.0, 2.0}, y[2];
/// f11xec(2, 3, a, irow, icol, Kor_SparseSym_Check, x, y, &fail);   // y = 2, 13
/// \endcode
void f11xec(Integer n, Integer nnz, const double a[], const Integer irow[], const Integer icol[], Integer check,
            const double x[], double y[], KorError *fail);

/// \brief Incomplete LU factorisation of a nonsymmetric matrix, to be used as a preconditioner by f11dcc().
///
/// Finds M = P' L U Q' close to A, where L has a unit diagonal, P and Q are the permutations that `ipivp` and `ipivq`
/// describe (row i of LU belongs to row `ipivp[i-1]` of A, column j to column `ipivq[j-1]`), and L and U together have
/// `nnzc` elements. How much fill L and U are allowed decides between a cheap factor and a good one.
///
/// \param[in]     n      order of A, at least 1
/// \param[in]     nnz    number of elements of A, from 1 to n*n
/// \param[in,out] a      address of an array of `*la` elements, got from x04bbc(): the values of A in the first `nnz`, in
///                       order (see f11zac()). On return the factor follows, row by row: the elements of L, the *reciprocal*
///                       of the diagonal element of U, the other elements of U. The array is replaced by a longer one if
///                       there is no room
/// \param[in,out] la     length of the three arrays, at least 2 `nnz`; on return the length that they have then. They grow
///                       in steps of 1 percent of `nnz`, at least 1
/// \param[in,out] irow   address of an array of `*la` elements: the rows of A, from 1; behind them those of the factor
/// \param[in,out] icol   address of an array of `*la` elements: the columns of A, from 1; behind them those of the factor
/// \param[in]     lfill  the greatest level of fill that is kept, if not negative: elements of A have level 0, an element
///                       that arises in the elimination is one level above the higher of the two that it is the product of.
///                       0 keeps the pattern of A. Negative: `dtol` decides
/// \param[in]     dtol   fill of a modulus less than `dtol` times the greatest modulus in A is dropped, if `lfill` is
///                       negative; then not negative. 0 keeps all fill: a complete factorisation
/// \param[in]     pstrat the pivots: Kor_SparseNsym_NoPiv, the diagonal; Kor_SparseNsym_UserPiv, rows and columns in the
///                       order given in `ipivp` and `ipivq`; Kor_SparseNsym_PartialPiv, in each row the element of greatest
///                       modulus; Kor_SparseNsym_CompletePiv, the same, and rows with few elements come first
/// \param[in]     milu   Kor_SparseNsym_ModFact: what is dropped from a row is added to its pivot, so that M and A have the
///                       same row sums; Kor_SparseNsym_UnModFact: it is lost
/// \param[in,out] ipivp  n elements: the row of A at each stage, from 1; given for Kor_SparseNsym_UserPiv, else a result
/// \param[in,out] ipivq  n elements: the column of the pivot at each stage, from 1; likewise
/// \param[out]    istr   n + 1 elements: row i of the factor begins at place `istr[i-1]`, counted from 1; `istr[0]` is
///                       `nnz` + 1, `istr[n]` is `nnz` + `nnzc` + 1
/// \param[out]    idiag  n elements: the place of the diagonal element of each row, counted from 1
/// \param[out]    nnzc   number of elements of the factor
/// \param[out]    npivm  number of pivots that had to be replaced; M may then be a poor preconditioner. -1: none, but with
///                       Kor_SparseNsym_CompletePiv at least one row was done again without dropping
/// \param[in,out] fail   the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 1.
/// - NE_INT_2: `nnz` is not from 1 to n*n.
/// - NE_2_INT_ARG_LT: `la` is less than 2 `nnz`.
/// - NE_REAL_INT_ARG_CONS: `lfill` and `dtol` are both negative (or `dtol` is a NaN).
/// - NE_BAD_PARAM: `pstrat` or `milu` is none of the values above.
/// - NE_NONSYMM_MATRIX_DUP: elements of A are out of range, out of order or repeated.
/// - NE_INVALID_ROWCOL_PIVOT: `ipivp` or `ipivq`, when given, is no permutation of 1..n.
/// - NE_LA_TOO_SMALL: the factor has more elements than an `Integer` can count.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// After an error all arguments are as they were.
/// \par Accuracy
/// A complete factorisation has the backward error of Gaussian elimination with the pivoting chosen. A pivot of a modulus
/// less than max(10, amax) times the precision, where amax is the greatest modulus in A, is first tried to be avoided, by
/// doing its row again without dropping, and if this does not help replaced by 1. The bound does not follow the scale of A:
/// scale a matrix whose elements are all tiny before.
/// \par Method
/// Elimination row by row with a working row; fill is judged when its value is complete. Time proportional to the
/// multiplications, with a factor of the logarithm of the row's length for the order of elimination. J. A. Meijerink and
/// H. A. van der Vorst, J. Comput. Phys. 44 (1981) 134-155; I. Gustafsson, BIT 18 (1978) 142-156; Y. Saad, Numer. Linear
/// Algebra Appl. 1 (1994) 387-402.
/// \par Thread safety
/// Safe.
/// \par See also
/// f11dcc() solves with the factor as preconditioner.
/// \par Example
/// \code{.c}
/// Integer la = 6, *irow = x04bbc(la * sizeof *irow), *icol = x04bbc(la * sizeof *icol);
/// double *a = x04bbc(la * sizeof *a);
/// Integer ipivp[2], ipivq[2], istr[3], idiag[2], nnzc, npivm;
/// a[0] = 4.0; irow[0] = 1; icol[0] = 1;
/// a[1] = 2.0; irow[1] = 2; icol[1] = 1;
/// a[2] = 8.0; irow[2] = 2; icol[2] = 2;
/// f11dac(2, 3, &a, &la, &irow, &icol, 0, 0.0, Kor_SparseNsym_NoPiv, Kor_SparseNsym_UnModFact, ipivp, ipivq, istr, idiag,
///        &nnzc, &npivm, &fail);
/// // nnzc = 3: a[3] = 1/4, a[4] = 0.5 (in L), a[5] = 1/8
/// \endcode
void f11dac(Integer n, Integer nnz, double **a, Integer *la, Integer **irow, Integer **icol, Integer lfill, double dtol,
            Integer pstrat, Integer milu, Integer ipivp[], Integer ipivq[], Integer istr[], Integer idiag[],
            Integer *nnzc, Integer *npivm, KorError *fail);

/// \brief Incomplete Cholesky factorisation of a symmetric matrix, to be used as a preconditioner by f11jcc().
///
/// Finds M = P' L D L' P close to A, where L is lower triangular with a unit diagonal, D is diagonal and positive, and P is
/// the permutation that `ipiv` describes: row i of the factor belongs to row `ipiv[i-1]` of A.
///
/// \param[in]     n      order of A, at least 1
/// \param[in]     nnz    number of elements of the lower triangle of A, from 1 to n(n+1)/2
/// \param[in,out] a      address of an array of `*la` elements, got from x04bbc(): the values of the lower triangle of A in the
///                       first `nnz`, in order (see f11zbc()). On return the factor follows, row by row: the elements of L,
///                       then the *reciprocal* of the element of D. The array is replaced by a longer one if there is no
///                       room
/// \param[in,out] la     length of the three arrays, at least 2 `nnz`; on return the length that they have then. They grow
///                       in steps of 1 percent of `nnz`, at least 1
/// \param[in,out] irow   address of an array of `*la` elements: the rows of A, from 1; behind them those of the factor
/// \param[in,out] icol   address of an array of `*la` elements: the columns of A, from 1; behind them those of the factor
/// \param[in]     lfill  the greatest level of fill that is kept, if not negative: elements of A have level 0, an element
///                       that arises in the elimination is one level above the higher of the two that it is the product of.
///                       0 keeps the pattern of A. Negative: `dtol` decides
/// \param[in]     dtol   fill of a modulus less than `dtol` times the greatest modulus in A is dropped, if `lfill` is
///                       negative; then not negative. 0 keeps all fill: a complete factorisation
/// \param[in]     mic    Kor_SparseSym_ModFact: what is dropped is added to the diagonal, so that M and A have the same row
///                       sums; Kor_SparseSym_UnModFact: it is lost
/// \param[in]     dscale the diagonal of A is multiplied by 1 + `dscale` before the factorisation; 0.0 is usual, a small
///                       positive value keeps the pivots of a modified factorisation away from zero
/// \param[in]     pstrat the order of the pivots: Kor_SparseSym_NoPiv, that of A; Kor_SparseSym_MarkPiv, always a row with the
///                       fewest neighbours that are left, which keeps the fill low; Kor_SparseSym_UserPiv, that given in
///                       `ipiv`
/// \param[in,out] ipiv   n elements: the row of A at each stage, from 1; given for Kor_SparseSym_UserPiv, else a result
/// \param[out]    istr   n + 1 elements: row i of the factor begins at place `istr[i-1]`, counted from 1; `istr[0]` is
///                       `nnz` + 1, `istr[n]` is `nnz` + `nnzc` + 1
/// \param[out]    nnzc   number of elements of the factor
/// \param[out]    npivm  number of pivots that had to be replaced; with more than a few of them M may be a poor
///                       preconditioner: more fill, or a positive `dscale`, may help
/// \param[in,out] fail   the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 1.
/// - NE_INT_2: `nnz` is not from 1 to n(n+1)/2.
/// - NE_2_INT_ARG_LT: `la` is less than 2 `nnz`.
/// - NE_REAL_INT_ARG_CONS: `lfill` and `dtol` are both negative (or `dtol` is a NaN).
/// - NE_BAD_PARAM: `mic` or `pstrat` is none of the values above.
/// - NE_SYMM_MATRIX_DUP: elements of A are out of range, above the diagonal, out of order or repeated.
/// - NE_INVALID_ROW_PIVOT: `ipiv`, when given, is no permutation of 1..n.
/// - NE_LA_TOO_SMALL: the factor has more elements than an `Integer` can count.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// After an error all arguments are as they were.
/// \par Accuracy
/// A complete factorisation of a positive-definite matrix is backward stable. M is always positive definite: a pivot that is
/// not greater than 0.01 times the sum of the moduli beside it is replaced by that sum, or by 1 if the sum is 0.
/// \par Method
/// Elimination node by node on the graph of the matrix; fill is judged when it first appears. Time proportional to the
/// multiplications and the lengths of the rows that they touch. J. A. Meijerink and H. A. van der Vorst, J. Comput. Phys. 44
/// (1981) 134-155; I. Gustafsson, BIT 18 (1978) 142-156; H. M. Markowitz, Management Sci. 3 (1957) 255-269; D. S. Kershaw, J.
/// Comput. Phys. 26 (1978) 43-65.
/// \par Thread safety
/// Safe.
/// \par See also
/// f11jcc() solves with the factor as preconditioner; f11jbc() applies the factor.
/// \par Example
/// \code{.c}
/// Integer la = 6, *irow = x04bbc(la * sizeof *irow), *icol = x04bbc(la * sizeof *icol);
/// double *a = x04bbc(la * sizeof *a);
/// Integer ipiv[2], istr[3], nnzc, npivm;
/// a[0] = 4.0; irow[0] = 1; icol[0] = 1;
/// a[1] = 2.0; irow[1] = 2; icol[1] = 1;
/// a[2] = 9.0; irow[2] = 2; icol[2] = 2;
/// f11jac(2, 3, &a, &la, &irow, &icol, 0, 0.0, Kor_SparseSym_UnModFact, 0.0, Kor_SparseSym_NoPiv, ipiv, istr, &nnzc,
///        &npivm, &fail);
/// // nnzc = 3: a[3] = 1/4, a[4] = 0.5 (in L), a[5] = 1/8
/// \endcode
void f11jac(Integer n, Integer nnz, double **a, Integer *la, Integer **irow, Integer **icol, Integer lfill, double dtol,
            Integer mic, double dscale, Integer pstrat, Integer ipiv[], Integer istr[], Integer *nnzc, Integer *npivm,
            KorError *fail);

/// \brief Solves M x = y with the factors M = P' L D L' P that f11jac() has left.
///
/// What the caller of f11gbc() needs when it asks for a preconditioned vector.
///
/// \param[in]  n     order of the matrix, at least 1
/// \param[in]  a     `la` elements: the matrix and its factor, as f11jac() left them
/// \param[in]  la    length of the three arrays, at least 1
/// \param[in]  irow  `la` elements, as f11jac() left them
/// \param[in]  icol  `la` elements, as f11jac() left them
/// \param[in]  ipiv  n elements, as f11jac() left them
/// \param[in]  istr  n + 1 elements, as f11jac() left them
/// \param[in]  y     n elements: the right-hand side
/// \param[out] x     n elements: the solution; may be the array `y`
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` or `la` is less than 1.
/// - NE_INVALID_SCS_PRECOND: the arrays do not hold what f11jac() leaves.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// `x` is untouched after an error.
/// \par Accuracy
/// Backward stable: exact for factors changed by a few units in the last place.
/// \par Method
/// Forward and backward substitution.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// // after the example of f11jac(): M = A = (4 2; 2 9)
/// double y[] = {10.0, 21.0}, x[2];
/// f11jbc(2, a, la, irow, icol, ipiv, istr, y, x, &fail);   // x = 1.5, 2
/// \endcode
void f11jbc(Integer n, const double a[], Integer la, const Integer irow[], const Integer icol[], const Integer ipiv[],
            const Integer istr[], const double y[], double x[], KorError *fail);

KOR_END_DECLS

#endif
