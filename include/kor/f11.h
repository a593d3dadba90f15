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

/// \brief Solves a nonsymmetric system A x = b by RGMRES, CGS or BiCGSTAB(l), with incomplete LU factors as preconditioner.
///
/// The iteration ends when |b - A x| <= `tol` (|A| |x| + |b|), in the infinity norm: x is then the exact solution of a system
/// whose data differ from those given by about `tol`, relatively.
///
/// \param[in]     method Kor_SparseNsym_RGMRES (restarted GMRES), Kor_SparseNsym_CGS or Kor_SparseNsym_BiCGSTAB
/// \param[in]     n      order of A, at least 1
/// \param[in]     nnz    number of elements of A, from 1 to n*n
/// \param[in]     a      `la` elements: A and its factor, as f11dac() left them
/// \param[in]     la     length of the three arrays, at least 2 `nnz`
/// \param[in]     irow   `la` elements, as f11dac() left them
/// \param[in]     icol   `la` elements, as f11dac() left them
/// \param[in]     ipivp  n elements, as f11dac() left them
/// \param[in]     ipivq  n elements, as f11dac() left them
/// \param[in]     istr   n + 1 elements, as f11dac() left them
/// \param[in]     idiag  n elements, as f11dac() left them
/// \param[in]     b      n elements: the right-hand side
/// \param[in]     m      RGMRES: the number of basis vectors between restarts, from 1 to min(n, 50). BiCGSTAB: the degree of
///                       its polynomials, from 1 to min(n, 10). Not looked at for CGS
/// \param[in]     tol    accuracy wanted, less than 1; values below 10 times the precision count as that, 0 and negative
///                       ones as the root of the precision
/// \param[in]     maxitn most iterations allowed, at least 1; one is a step that multiplies by A once (RGMRES) or twice
/// \param[in,out] x      n elements: a first estimate of the solution, zeros if none is known; on return the solution, or, after
///                       a failure of the iteration, the best approximation found
/// \param[out]    rnorm  |b - A x|, computed from x
/// \param[out]    itn    number of iterations done
/// \param[in]     comm   not used: may be null
/// \param[in,out] fail   the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `method` is none of the values above.
/// - NE_INT_ARG_LT: `n` or `maxitn` is less than 1.
/// - NE_INT_2: `nnz` is not from 1 to n*n, or `m` is out of its range.
/// - NE_2_INT_ARG_LT: `la` is less than 2 `nnz`.
/// - NE_REAL_ARG_GE: `tol` is not less than 1.
/// - NE_INVALID_CS: elements of A are out of range, out of order or repeated.
/// - NE_INVALID_CS_PRECOND: the arrays do not hold what f11dac() leaves.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_NOT_REQ_ACC: `maxitn` iterations were not enough; or the iteration has broken down, stands still or has met numbers
///   that are not finite, far from a solution. Better factors, another method or more basis vectors may help.
/// - NE_ACC_LIMIT: |b - A x| is not more than about 1e-8 (|A| |x| + |b|), and cannot be made smaller.
///
/// `x`, `rnorm` and `itn` are set after the last two, and untouched after the others.
/// \par Accuracy
/// The test is made again on a residual that is computed from x; where it falls short by more than a factor of 10 the
/// iteration starts again from there. A right-hand side of zeros gives x = 0 at once; a first estimate that passes the test
/// stays as it is.
/// \par Method
/// Preconditioned from the right. Y. Saad and M. H. Schultz, SIAM J. Sci. Stat. Comput. 7 (1986) 856-869; P. Sonneveld, ibid.
/// 10 (1989) 36-52; G. L. G. Sleijpen and D. R. Fokkema, ETNA 1 (1993) 11-32. CGS and BiCGSTAB need memory for 10 and
/// 2 `m` + 6 vectors, RGMRES for `m` + 5, besides a copy of the factor; a breakdown is answered by a new start with another
/// shadow residual.
/// \par Thread safety
/// Safe.
/// \par See also
/// f11dec() needs no factors.
/// \par Example
/// \code{.c}
/// // after the example of f11dac(): A = (4 0; 2 8)
/// double b[] = {8.0, 20.0}, x[] = {0.0, 0.0}, rnorm;
/// Integer itn;
/// f11dcc(Kor_SparseNsym_RGMRES, 2, 3, a, la, irow, icol, ipivp, ipivq, istr, idiag, b, 2, 1e-10, 100, x, &rnorm, &itn,
///        NULL, &fail);   // x = 2, 2
/// \endcode
void f11dcc(Integer method, Integer n, Integer nnz, const double a[], Integer la, const Integer irow[],
            const Integer icol[], const Integer ipivp[], const Integer ipivq[], const Integer istr[],
            const Integer idiag[], const double b[], Integer m, double tol, Integer maxitn, double x[], double *rnorm,
            Integer *itn, KorComm *comm, KorError *fail);

/// \brief Solves a nonsymmetric system A x = b by RGMRES, CGS or BiCGSTAB(l), with a preconditioner that needs no factors.
///
/// As f11dcc(), for systems that are easy enough or too large for factors.
///
/// \param[in]     method Kor_SparseNsym_RGMRES (restarted GMRES), Kor_SparseNsym_CGS or Kor_SparseNsym_BiCGSTAB
/// \param[in]     precon Kor_SparseNsym_NoPrec: none; Kor_SparseNsym_JacPrec: the diagonal D of A; Kor_SparseNsym_SSORPrec:
///                       symmetric successive over-relaxation, (D + omega L) D^-1 (D + omega U) with the triangles L and U of A
/// \param[in]     n      order of A, at least 1
/// \param[in]     nnz    number of elements of A, from 1 to n*n
/// \param[in]     a      `nnz` elements: the values, in order (see f11zac())
/// \param[in]     irow   `nnz` elements: their rows, from 1
/// \param[in]     icol   `nnz` elements: their columns, from 1
/// \param[in]     omega  the relaxation parameter, greater than 0 and less than 2; looked at for Kor_SparseNsym_SSORPrec only
/// \param[in]     b      n elements: the right-hand side
/// \param[in]     m      RGMRES: the number of basis vectors between restarts, from 1 to min(n, 50). BiCGSTAB: the degree of
///                       its polynomials, from 1 to min(n, 10). Not looked at for CGS
/// \param[in]     tol    accuracy wanted, less than 1; values below 10 times the precision count as that, 0 and negative
///                       ones as the root of the precision
/// \param[in]     maxitn most iterations allowed, at least 1
/// \param[in,out] x      n elements: a first estimate; on return the solution, or the best approximation found
/// \param[out]    rnorm  |b - A x| in the infinity norm, computed from x
/// \param[out]    itn    number of iterations done
/// \param[in]     comm   not used: may be null
/// \param[in,out] fail   the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `method` or `precon` is none of the values above.
/// - NE_INT_ARG_LT: `n` or `maxitn` is less than 1.
/// - NE_INT_2: `nnz` is not from 1 to n*n, or `m` is out of its range.
/// - NE_REAL_ARG_GE: `tol` is not less than 1.
/// - NE_REAL: `omega` is out of its range.
/// - NE_INVALID_CS: elements of A are out of range, out of order or repeated.
/// - NE_ZERO_DIAGONAL_ELEM: a preconditioner is wanted, and an element of the diagonal is zero or missing.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_NOT_REQ_ACC, NE_ACC_LIMIT: as in f11dcc().
///
/// `x`, `rnorm` and `itn` are set after the last two, and untouched after the others.
/// \par Accuracy
/// As f11dcc().
/// \par Method
/// As f11dcc().
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Integer irow[] = {1, 2, 2}, icol[] = {1, 1, 2}, itn;
/// double a[] = {4.0, 2.0, 8.0}, b[] = {8.0, 20.0}, x[] = {0.0, 0.0}, rnorm;
/// f11dec(Kor_SparseNsym_BiCGSTAB, Kor_SparseNsym_JacPrec, 2, 3, a, irow, icol, 0.0, b, 1, 1e-10, 100, x, &rnorm, &itn,
///        NULL, &fail);   // x = 2, 2
/// \endcode
void f11dec(Integer method, Integer precon, Integer n, Integer nnz, const double a[], const Integer irow[],
            const Integer icol[], double omega, const double b[], Integer m, double tol, Integer maxitn, double x[],
            double *rnorm, Integer *itn, KorComm *comm, KorError *fail);

/// \brief Solves a symmetric system A x = b by conjugate gradients or the method of Lanczos, with incomplete Cholesky factors.
///
/// The iteration ends when |b - A x| <= `tol` (|A| |x| + |b|), in the infinity norm: x is then the exact solution of a system
/// whose data differ from those given by about `tol`, relatively.
///
/// \param[in]     method Kor_SparseSym_CG: conjugate gradients, for positive-definite A; Kor_SparseSym_Lanczos: SYMMLQ, for A
///                       that may be indefinite
/// \param[in]     n      order of A, at least 1
/// \param[in]     nnz    number of elements of the lower triangle of A, from 1 to n(n+1)/2
/// \param[in]     a      `la` elements: A and its factor, as f11jac() left them
/// \param[in]     la     length of the three arrays, at least 2 `nnz`
/// \param[in]     irow   `la` elements, as f11jac() left them
/// \param[in]     icol   `la` elements, as f11jac() left them
/// \param[in]     ipiv   n elements, as f11jac() left them
/// \param[in]     istr   n + 1 elements, as f11jac() left them
/// \param[in]     b      n elements: the right-hand side
/// \param[in]     tol    accuracy wanted, less than 1; values below 10 times the precision count as that, 0 and negative
///                       ones as the root of the precision
/// \param[in]     maxitn most iterations allowed, at least 1
/// \param[in,out] x      n elements: a first estimate of the solution, zeros if none is known; on return the solution, or, after
///                       a failure of the iteration, the best approximation found
/// \param[out]    rnorm  |b - A x|, computed from x
/// \param[out]    itn    number of iterations done
/// \param[in,out] anorm  |A| in the infinity norm, not negative; 0: the routine computes it. On return what was used
/// \param[in]     comm   not used: may be null
/// \param[in,out] fail   the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `method` is none of the values above.
/// - NE_INT_ARG_LT: `n` or `maxitn` is less than 1.
/// - NE_INT_2: `nnz` is not from 1 to n(n+1)/2.
/// - NE_2_INT_ARG_LT: `la` is less than 2 `nnz`.
/// - NE_REAL_ARG_GE: `tol` is not less than 1.
/// - NE_REAL_ARG_LT: `anorm` is negative.
/// - NE_INVALID_SCS: elements of A are out of range, above the diagonal, out of order or repeated.
/// - NE_INVALID_SCS_PRECOND: the arrays do not hold what f11jac() leaves.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_COEFF_NOT_POS_DEF: conjugate gradients have met a direction p with p'Ap <= 0: use Kor_SparseSym_Lanczos.
/// - NE_PRECOND_NOT_POS_DEF: the preconditioner is not positive definite.
/// - NE_NOT_REQ_ACC: `maxitn` iterations were not enough; or the iteration stands still or has met numbers that are not
///   finite, far from a solution.
/// - NE_ACC_LIMIT: |b - A x| is not more than about 1e-8 (|A| |x| + |b|), and cannot be made smaller.
///
/// `x`, `rnorm`, `itn` and `anorm` are set after the last four, and untouched after the others.
/// \par Accuracy
/// The test is made again on a residual that is computed from x; where it falls short by more than a factor of 10 the
/// iteration starts again from there. A right-hand side of zeros gives x = 0 at once; a first estimate that passes the test
/// stays as it is.
/// \par Method
/// M. R. Hestenes and E. Stiefel, J. Res. Nat. Bur. Standards 49 (1952) 409-436; C. C. Paige and M. A. Saunders, SIAM J.
/// Numer. Anal. 12 (1975) 617-629, where of the point of the method and that of the conjugate gradients the better one is
/// taken.
/// \par Thread safety
/// Safe.
/// \par See also
/// f11jec() needs no factors; f11gbc() leaves products and preconditioning to the caller.
/// \par Example
/// \code{.c}
/// // after the example of f11jac(): A = (4 2; 2 9)
/// double b[] = {10.0, 21.0}, x[] = {0.0, 0.0}, rnorm, anorm = 0.0;
/// Integer itn;
/// f11jcc(Kor_SparseSym_CG, 2, 3, a, la, irow, icol, ipiv, istr, b, 1e-10, 100, x, &rnorm, &itn, &anorm, NULL, &fail);
/// // x = 1.5, 2
/// \endcode
void f11jcc(Integer method, Integer n, Integer nnz, const double a[], Integer la, const Integer irow[],
            const Integer icol[], const Integer ipiv[], const Integer istr[], const double b[], double tol,
            Integer maxitn, double x[], double *rnorm, Integer *itn, double *anorm, KorComm *comm, KorError *fail);

/// \brief Solves a symmetric system A x = b by conjugate gradients or the method of Lanczos, with a preconditioner that needs
/// no factors.
///
/// As f11jcc(), for systems that are easy enough or too large for factors.
///
/// \param[in]     method Kor_SparseSym_CG: conjugate gradients, for positive-definite A; Kor_SparseSym_Lanczos: SYMMLQ, for A
///                       that may be indefinite
/// \param[in]     precon Kor_SparseSym_NoPrec: none; Kor_SparseSym_JacPrec: the diagonal D of A; Kor_SparseSym_SSORPrec:
///                       symmetric successive over-relaxation, (D + omega L) D^-1 (D + omega L') with the lower triangle L
/// \param[in]     n      order of A, at least 1
/// \param[in]     nnz    number of elements of the lower triangle of A, from 1 to n(n+1)/2
/// \param[in]     a      `nnz` elements: the values of the lower triangle, in order (see f11zbc())
/// \param[in]     la     length of the three arrays, at least `nnz`
/// \param[in]     irow   `nnz` elements: their rows, from 1
/// \param[in]     icol   `nnz` elements: their columns, from 1, at most the row
/// \param[in]     omega  the relaxation parameter, from 0 to 2; looked at for Kor_SparseSym_SSORPrec only
/// \param[in]     b      n elements: the right-hand side
/// \param[in]     tol    accuracy wanted, less than 1; values below 10 times the precision count as that, 0 and negative
///                       ones as the root of the precision
/// \param[in]     maxitn most iterations allowed, at least 1
/// \param[in,out] x      n elements: a first estimate; on return the solution, or the best approximation found
/// \param[out]    rnorm  |b - A x| in the infinity norm, computed from x
/// \param[out]    itn    number of iterations done
/// \param[in,out] anorm  |A| in the infinity norm, not negative; 0: the routine computes it. On return what was used
/// \param[in]     comm   not used: may be null
/// \param[in,out] fail   the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `method` or `precon` is none of the values above.
/// - NE_INT_ARG_LT: `n` or `maxitn` is less than 1.
/// - NE_INT_2: `nnz` is not from 1 to n(n+1)/2.
/// - NE_2_INT_ARG_LT: `la` is less than `nnz`.
/// - NE_REAL_ARG_GE: `tol` is not less than 1.
/// - NE_REAL: `omega` is out of its range.
/// - NE_REAL_ARG_LT: `anorm` is negative.
/// - NE_INVALID_SCS: elements of A are out of range, above the diagonal, out of order or repeated.
/// - NE_ZERO_DIAGONAL_ELEM: a preconditioner is wanted, and an element of the diagonal is zero or missing.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_COEFF_NOT_POS_DEF, NE_PRECOND_NOT_POS_DEF, NE_NOT_REQ_ACC, NE_ACC_LIMIT: as in f11jcc().
///
/// `x`, `rnorm`, `itn` and `anorm` are set after the last four, and untouched after the others.
/// \par Accuracy
/// As f11jcc().
/// \par Method
/// As f11jcc().
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Integer irow[] = {1, 2, 2}, icol[] = {1, 1, 2}, itn;
/// double a[] = {4.0, 2.0, 9.0}, b[] = {10.0, 21.0}, x[] = {0.0, 0.0}, rnorm, anorm = 0.0;
/// f11jec(Kor_SparseSym_CG, Kor_SparseSym_SSORPrec, 2, 3, a, 3, irow, icol, 1.1, b, 1e-10, 100, x, &rnorm, &itn, &anorm,
///        NULL, &fail);   // x = 1.5, 2
/// \endcode
void f11jec(Integer method, Integer precon, Integer n, Integer nnz, const double a[], Integer la, const Integer irow[],
            const Integer icol[], double omega, const double b[], double tol, Integer maxitn, double x[], double *rnorm,
            Integer *itn, double *anorm, KorComm *comm, KorError *fail);

/// The record of an iteration that f11gac() sets up, f11gbc() drives and f11gcc() looks into. The caller provides it and passes
/// it along; the members are the library's own. A copy of a record is not set up.
typedef struct {
    Integer stamp[2];  ///< tells a record that has been set up
    void *self;        ///< its own address
    void *work;        ///< the iteration and its vectors; null when it has ended
    Integer request;   ///< what was last asked for
    Integer itn;       ///< iterations done
    Integer sigma_itn; ///< iterations that went into `sigmax`
    double stop_lhs;   ///< left-hand side of the stopping test
    double stop_rhs;   ///< right-hand side of the stopping test
    double anorm;      ///< norm of the matrix
    double sigmax;     ///< largest singular value of the iteration matrix
    double sigma_err;  ///< relative change of the last two estimates of `sigmax`
} KorSparseSymState;

/// \brief Sets up an iteration for a symmetric system A x = b whose products the caller computes.
///
/// f11gbc() then runs the iteration, and returns to its caller for each product by A and each application of a preconditioner
/// M; A and M may live anywhere: in another storage, on other processors, in no storage at all. M must be symmetric and
/// positive definite.
///
/// \param[in]  method  Kor_SparseSym_CG: conjugate gradients, for positive-definite A; Kor_SparseSym_Lanczos: SYMMLQ, for A that
///                     may be indefinite
/// \param[in]  precon  Kor_SparseSym_Prec: there is a preconditioner; Kor_SparseSym_NoPrec: there is none
/// \param[in]  sigcmp  Kor_SparseSym_Bisect: the largest singular value sigma of the preconditioned matrix E^-1 A E'^-1,
///                     M = E E', is estimated; Kor_SparseSym_NoBisect: it is not
/// \param[in]  norm    of the stopping test: Kor_SparseSym_OneNorm, Kor_SparseSym_TwoNorm, Kor_SparseSym_InfNorm
/// \param[in]  weight  Kor_SparseSym_Weighted: vectors are multiplied element by element by the weights that f11gbc() is given
///                     before their norm is taken; Kor_SparseSym_UnWeighted
/// \param[in]  iterm   the stopping test, with r = b - A x. Kor_SparseSym_TermLanczosCG: |r| <= `tol` (|A| |x| + |b|);
///                     Kor_SparseSym_TermLanczos, for method Kor_SparseSym_Lanczos only: |s| <= `tol` (|s0| + sigma |d|) in
///                     2-norms, where s = E^-1 r, s0 that of the first estimate, and d = E'(x - x0)
/// \param[in]  n       order of A, at least 1
/// \param[in]  tol     accuracy wanted, less than 1; values below 10 times the precision count as that, 0 and negative ones as
///                     the root of the precision
/// \param[in]  maxitn  most iterations allowed, at least 1
/// \param[in]  anorm   |A| in the norm chosen (with weights W: that of W A W^-1), not negative. 0: it is estimated, which takes
///                     4 to 11 products by A at the start (twice as many in a weighted 2-norm); for a 2-norm the estimate is
///                     of an upper bound
/// \param[in]  sigmax  sigma, if it is known and not to be estimated; not negative, 0 if not known
/// \param[in]  sigtol  Kor_SparseSym_Bisect: the estimate of sigma is final when two successive ones differ relatively by no
///                     more than this; less than 1. 0 and negative: 0.01
/// \param[in]  maxits  Kor_SparseSym_Bisect: most iterations that go into the estimate, at least 1
/// \param[in,out] state the record; need not be initialised. An iteration that it still holds is abandoned, and its memory
///                     freed
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `method`, `precon`, `sigcmp`, `norm`, `weight` or `iterm` is none of its values.
/// - NE_ENUM_ENUM_ARG_CONS: `iterm` is Kor_SparseSym_TermLanczos with method Kor_SparseSym_CG.
/// - NE_INT_ARG_LT: `n` or `maxitn` is less than 1, or `maxits` is and sigma is to be estimated.
/// - NE_REAL_ARG_GE: `tol` is not less than 1, or `sigtol` is not and sigma is to be estimated.
/// - NE_REAL_ARG_LT: `anorm` or `sigmax` is negative.
/// - NE_REAL_ENUM_ARG_CONS: the test Kor_SparseSym_TermLanczos needs sigma, which is neither given nor to be estimated.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// For a bad argument `fail->errnum` is its place in the list, negative. `state` is untouched after an error.
/// \par Thread safety
/// Safe: all state is in the record. Different records may be used on different threads.
/// \par Method
/// As f11jcc(); see f11gbc().
/// \par Example
/// \code{.c}
/// KorSparseSymState state;
/// f11gac(Kor_SparseSym_CG, Kor_SparseSym_NoPrec, Kor_SparseSym_NoBisect, Kor_SparseSym_InfNorm, Kor_SparseSym_UnWeighted,
///        Kor_SparseSym_TermLanczosCG, 2, 1e-10, 100, 0.0, 0.0, 0.0, 0, &state, &fail);
/// \endcode
void f11gac(Integer method, Integer precon, Integer sigcmp, Integer norm, Integer weight, Integer iterm, Integer n,
            double tol, Integer maxitn, double anorm, double sigmax, double sigtol, Integer maxits,
            KorSparseSymState *state, KorError *fail);

/// \brief One step of an iteration for a symmetric system, by reverse communication.
///
/// After f11gac() set `irevcm` to 0, `u` to a first estimate of the solution and `v` to the right-hand side b, and call until
/// `irevcm` is 4, each time doing what it asks for: \n
/// 1: v = A u; \n
/// 2: v = M^-1 u; \n
/// 3: look at the iteration: `u` holds the present solution, `v` its residual, and f11gcc() tells more. Nothing need be done; \n
/// 4: the end: `u` holds the solution, `v` its residual. \n
/// To stop early set `irevcm` to 5, which ends with the best solution so far in `u` (and its residual in `v` where it is
/// known; else `v` stays as it is), or to 6, which ends at once and leaves `u` and `v` alone. Both return with `irevcm` = 4
/// and report success.
///
/// \param[in,out] irevcm the protocol: on entry 0, the value of the last return, 5 or 6; on return what is wanted next
/// \param[in,out] u      n elements: on the first call a first estimate; then the vector to be multiplied, which may be changed
///                       freely; at the end the solution
/// \param[in,out] v      n elements: on the first call b; then the product; at the end the residual
/// \param[in]     wgt    Kor_SparseSym_Weighted: n positive weights, the same in every call; else not looked at, may be null
/// \param[in,out] state  the record that f11gac() has set up; its memory is freed when `irevcm` comes back as 4
/// \param[in,out] fail   the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_NO_SETUP: `state` has not been set up by f11gac(), is a copy, or its iteration has ended.
/// - NE_INT: `irevcm` is none of the values allowed.
/// - NE_REAL_ARRAY_CONS: a weight is not positive.
/// - NE_COEFF_NOT_POS_DEF: conjugate gradients have met a direction p with p'Ap <= 0.
/// - NE_PRECOND_NOT_POS_DEF: M is not positive definite.
/// - NE_NOT_REQ_ACC: `maxitn` iterations were not enough; or the iteration stands still or has met numbers that are not
///   finite, far from a solution.
/// - NE_ACC_LIMIT: the residual is not more than about 1e-8 / `tol` times what the test asks for, and cannot be made smaller.
///
/// The last four come with `irevcm` = 4 and the best solution found; after the others all arguments are untouched.
/// \par Accuracy
/// Before the end the residual is computed from x, at the cost of one more product; where it falls short by more than a factor
/// of 10 the iteration starts again from there.
/// \par Method
/// As f11jcc(). The norm of A: W. W. Hager, SIAM J. Sci. Stat. Comput. 5 (1984) 311-316, and N. J. Higham, ACM Trans. Math.
/// Softw. 14 (1988) 381-396. Sigma: bisection on the tridiagonal matrix of the Lanczos process; W. Barth, R. S. Martin and J.
/// H. Wilkinson, Numer. Math. 9 (1967) 386-393.
/// \par Thread safety
/// Safe: all state is in the arguments.
/// \par Example
/// \code{.c}
/// // after the example of f11gac(): A = (4 2; 2 9)
/// double u[] = {0.0, 0.0}, v[] = {10.0, 21.0};
/// Integer irevcm = 0;
/// for (f11gbc(&irevcm, u, v, NULL, &state, &fail); irevcm != 4; f11gbc(&irevcm, u, v, NULL, &state, &fail))
///     if (irevcm == 1) {
///         v[0] = 4.0 * u[0] + 2.0 * u[1];
///         v[1] = 2.0 * u[0] + 9.0 * u[1];
///     }
/// // u = 1.5, 2
/// \endcode
void f11gbc(Integer *irevcm, double u[], double v[], const double wgt[], KorSparseSymState *state, KorError *fail);

/// \brief How an iteration that f11gbc() drives stands, or how it ended.
///
/// May be called at any time after f11gac(), also when the iteration has ended.
///
/// \param[out] itn       number of iterations done
/// \param[out] stop_lhs  left-hand side of the stopping test
/// \param[out] stop_rhs  right-hand side of the stopping test
/// \param[out] anorm     norm of A, as given or as estimated; 0 before it is known, or where it is not needed
/// \param[out] sigmax    largest singular value of the preconditioned matrix, as given or as estimated so far
/// \param[out] sigma_itn number of iterations that have gone into the estimate; 0 if it was given
/// \param[out] sigma_err relative change of the last two estimates
/// \param[in]  state     the record
/// \param[in,out] fail   the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_NO_SETUP: `state` has not been set up by f11gac(), or is a copy; the outputs are untouched.
/// \par Accuracy
/// The estimate of sigma is a lower bound, up to the tolerance of its bisection.
/// \par Method
/// See f11gbc().
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// // after the example of f11gbc()
/// double lhs, rhs, anorm, sigmax, sigma_err;
/// Integer itn, sigma_itn;
/// f11gcc(&itn, &lhs, &rhs, &anorm, &sigmax, &sigma_itn, &sigma_err, &state, &fail);   // itn = 2, anorm = 11
/// \endcode
void f11gcc(Integer *itn, double *stop_lhs, double *stop_rhs, double *anorm, double *sigmax, Integer *sigma_itn,
            double *sigma_err, KorSparseSymState *state, KorError *fail);

KOR_END_DECLS

#endif
