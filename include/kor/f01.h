/// \file f01.h
/// Chapter f01: factorisations, inverses and reductions of matrices.
#ifndef KOR_F01_H
#define KOR_F01_H

#include <kor.h>

KOR_BEGIN_DECLS

// Inverses, transposition, triangular and orthogonal factors

/// \brief Inverse of a real matrix.
///
/// Finds X = A^-1 from PA = LU.
///
/// \param[in,out] a    n by n, element (i, j) at `a[i * tda + j]`: A; on return its factors, as f03afc() leaves them
/// \param[in]     tda  length of a row of the array `a`, at least `n`
/// \param[in]     n    order of A, at least 1
/// \param[out]    unit not used; may be null
/// \param[out]    x    n by n, row-major: the inverse
/// \param[in]     tdx  length of a row of the array `x`, at least `n`
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 1.
/// - NE_2_INT_ARG_LT: `tda` or `tdx` is less than `n`.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_SINGULAR: A is singular, or nearly so; `fail->errnum` is the stage, from 1, at which no scaled pivot reached 8
///   times the precision. `a` is partly reduced, `x` untouched.
/// \par Accuracy
/// The error of X is about n times the precision times the condition number of A, relative to X; |XA - I| is of that
/// size too.
/// \par Method
/// The factors as f03afc(); then the inverse of U, and XL = U^-1 by columns (J. J. Du Croz and N. J. Higham, IMA J.
/// Numer. Anal. 12 (1992) 1-19). To solve a system, f04arc() is quicker and more accurate than a product with the
/// inverse.
/// \par Thread safety
/// Safe.
/// \par See also
/// f01adc() and f01acc() for symmetric positive-definite matrices; f04aec() with a unit matrix on the right gives a
/// fully accurate inverse.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 2.0, 3.0, 4.0}, x[4];
/// f01aac(a, 2, 2, NULL, x, 2, &fail);   // x = {-2, 1, 1.5, -0.5}
/// \endcode
void f01aac(double a[], Integer tda, Integer n, double unit[], double x[], Integer tdx, KorError *fail);

/// \brief Inverse of a real symmetric positive-definite matrix, to full accuracy.
///
/// Finds B = A^-1 from A = LL', and refines it with residuals in doubled precision.
///
/// \param[in]     n          order of A, at least 1
/// \param[in,out] a          n by n, element (i, j) at `a[i * tda + j]`: the upper triangle of A, which stays; on
///                           return L below the diagonal, without its diagonal
/// \param[in]     tda        length of a row of the array `a`, at least `n`
/// \param[out]    b          n by n, row-major: the inverse, both triangles
/// \param[in]     tdb        length of a row of the array `b`, at least `n`
/// \param[out]    iterations number of solutions with the factor
/// \return 0: done; 1: A is not positive definite; 2: A is too ill-conditioned for the refinement to converge; 3: `n`
///     is less than 1, or `tda` or `tdb` less than `n`; 4: there is not enough memory
///
/// \par Errors
/// None, and no error record: the result tells. With 3 and 4 everything is untouched; with 1 `b` is.
/// \par Accuracy
/// Each column of the inverse is accurate to the last bit or two of its greatest element, whatever the condition of A.
/// It is exactly symmetric.
/// \par Method
/// Iterative refinement of all columns at once: J. H. Wilkinson and C. Reinsch, Linear Algebra (1971), contribution
/// I/2.
/// \par Thread safety
/// Safe.
/// \par See also
/// f01adc() does without refinement, in the place of A.
/// \par Example
/// \code{.c}
/// double a[] = {4.0, 2.0, 0.0, 5.0}, b[4];
/// Integer iterations, status = f01acc(2, a, 2, b, 2, &iterations);   // b = {0.3125, -0.125, -0.125, 0.25}
/// \endcode
Integer f01acc(Integer n, double a[], Integer tda, double b[], Integer tdb, Integer *iterations);

/// \brief Inverse of a real symmetric positive-definite matrix, in its place.
///
/// Replaces A by its inverse, from A = U'U.
///
/// \param[in]     n   order of A, at least 1
/// \param[in,out] a   n by n, element (i, j) at `a[i * tda + j]`: the upper triangle of A; on return the inverse, both
///                    triangles
/// \param[in]     tda length of a row of the array `a`, at least `n`
/// \return 0: done; 1: A is not positive definite, and `a` is partly overwritten; 3: `n` is less than 1, or `tda` less
///     than `n`, and `a` is untouched
///
/// \par Errors
/// None, and no error record: the result tells.
/// \par Accuracy
/// The error of the inverse is about n times the precision times the condition number of A, relative to it. It is
/// exactly symmetric.
/// \par Method
/// As f07fdc(); then the inverse of U, times its transpose (potri of LAPACK).
/// \par Thread safety
/// Safe.
/// \par See also
/// f01acc() refines the inverse to full accuracy; f01aac() for general matrices.
/// \par Example
/// \code{.c}
/// double a[] = {4.0, 2.0, 0.0, 5.0};
/// Integer status = f01adc(2, a, 2);   // a = {0.3125, -0.125, -0.125, 0.25}
/// \endcode
Integer f01adc(Integer n, double a[], Integer tda);

/// \brief Cholesky factorisation of a complex Hermitian positive-definite matrix.
///
/// Finds the lower triangular L with A = LL^H, its diagonal real and positive. The upper triangle of the array keeps A.
///
/// \param[in]     n    order of A, at least 1
/// \param[in,out] a    n by n, element (i, j) at `a[i * tda + j]`: on entry the upper triangle of A with its diagonal,
///                     which stay; on return L below the diagonal, without its diagonal
/// \param[in]     tda  length of a row of the array `a`, at least `n`
/// \param[out]    p    n elements: the reciprocals of the diagonal of L
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 1.
/// - NE_2_INT_ARG_LT: `tda` is less than `n`.
/// - NE_DIAG_IMAG_NON_ZERO: a diagonal element has an imaginary part that is not zero; the message tells which, from 0.
/// - NE_NOT_POS_DEF: A is not positive definite, or holds a NaN or an infinity; `fail->errnum` is the order k of the
///   first leading minor that is not positive. `p` holds the k - 1 reciprocals known and zeros; the upper triangle
///   still holds A.
///
/// After the first three the outputs are untouched.
/// \par Accuracy
/// Backward stable: L is exact for a matrix that differs from A, in each element, by about n times the precision times
/// the geometric mean of two diagonal elements.
/// \par Method
/// Cholesky factorisation along rows, from order 25 on in blocks by LAPACK, as f03aec().
/// \par Thread safety
/// Safe.
/// \par See also
/// f04awc() solves with the factor; f03aec() for real matrices.
/// \par Example
/// \code{.c}
/// Complex a[] = {{2.0, 0.0}, {0.0, 1.0}, {0.0, 0.0}, {2.0, 0.0}};
/// double p[2];
/// f01bnc(2, a, 2, p, &fail);   // p = {0.707107, 0.816497}; a[2] = -0.707107 i
/// \endcode
void f01bnc(Integer n, Complex a[], Integer tda, double p[], KorError *fail);

/// \brief Cholesky factorisation of a real symmetric matrix, perturbed on its diagonal where it is not positive
/// definite.
///
/// Finds A + E = LDL', L unit lower triangular, D and E diagonal, D positive, E not negative, and E = 0 where A is
/// sufficiently positive definite. The elements of L and D are bounded, whatever A is: this is the factorisation from
/// which minimisers take their direction of descent where the Hessian is indefinite.
///
/// \param[in]     n    order of A, at least 1
/// \param[in,out] a    n by n, element (i, j) at `a[i * tda + j]`: on entry the upper triangle of A with its diagonal,
///                     which stay; on return L below the diagonal, without its ones
/// \param[in]     tda  length of a row of the array `a`, at least `n`
/// \param[out]    d    n elements: the diagonal of D
/// \param[out]    jmax the row, from 1, of the greatest element of E; 0 if E = 0
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 1.
/// - NE_2_INT_ARG_LT: `tda` is less than `n`.
/// - NE_NOT_POS_DEF: A holds a NaN or an infinity.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_MATRIX_NOT_ZERO: E is not zero; the message tells `*jmax`. The factorisation is valid: this is a warning.
///
/// After all but the last the outputs are untouched.
/// \par Accuracy
/// LDL' is exact for A + E up to about n times the precision times the greatest element of A. With the bound beta^2,
/// the greatest of the diagonal elements and of the others over sqrt(n^2 - 1), all L(i, j)^2 D(j) are at most beta^2,
/// and D(j) is at least the precision times the sum of the greatest elements on and beside the diagonal.
/// \par Method
/// P. E. Gill, W. Murray and M. H. Wright, Practical Optimization (1981), section 4.4.2.2, without interchanges.
/// \par Thread safety
/// Safe.
/// \par See also
/// f03aec() refuses what is not positive definite; f04agc() takes factors of that kind.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 2.0, 0.0, 1.0}, d[2];
/// Integer jmax;
/// f01bqc(2, a, 2, d, &jmax, &fail);   // indefinite: jmax = 2 or 1 and NE_MATRIX_NOT_ZERO
/// \endcode
void f01bqc(Integer n, double a[], Integer tda, double d[], Integer *jmax, KorError *fail);

/// \brief Transposes a rectangular matrix in its place.
///
/// Replaces the m by n matrix by its n by m transpose, both without gaps between their rows.
///
/// \param[in]     m    number of rows, not negative
/// \param[in]     n    number of columns, not negative
/// \param[in,out] a    m n elements: on entry element (i, j) at `a[i * n + j]`, on return at `a[j * m + i]`
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `m` or `n` is negative.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// After an error `a` is untouched.
/// \par Accuracy
/// Exact.
/// \par Method
/// B. Catanzaro, A. Keller and M. Garland, A decomposition for in-place matrix transposition, Proc. PPoPP (2014)
/// 193-206, with work space for 8 rows or columns; a square matrix needs none.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06qfc() copies matrices.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 2.0, 3.0,  4.0, 5.0, 6.0};
/// f01crc(2, 3, a, &fail);   // a = {1, 4,  2, 5,  3, 6}
/// \endcode
void f01crc(Integer m, Integer n, double a[], KorError *fail);

/// \brief Factorises a real symmetric positive-definite matrix in variable-band storage, A = LDL'.
///
/// Row i of the lower triangle is stored from its first element that is not zero up to the diagonal, the rows one after
/// another; L, which is unit lower triangular, fills the same places.
///
/// \param[in]     n    order of A, at least 1
/// \param[in]     a    the rows of the lower triangle of A, row[0] + ... + row[n - 1] elements
/// \param[in]     lal  length of `a` and `al`, at least that
/// \param[in]     row  n elements: the number of elements stored of each row of the lower triangle, from the first that
///                     is not zero up to the diagonal: 1 to i + 1
/// \param[out]    al   the rows of L, with the ones on its diagonal; it may be `a` itself
/// \param[out]    d    n elements: the diagonal of D
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` or a `row[i]` is less than 1.
/// - NE_2_INT_ARG_GT: a `row[i]` is greater than i + 1.
/// - NE_2_INT_ARG_LT: `lal` is less than the sum of the row lengths.
/// - NE_NOT_POS_DEF: A is not positive definite, or holds a NaN or an infinity; `fail->errnum` is the row, from 1,
///   whose element of D, which `d` holds, is not positive. The rows before it are done.
///
/// After all but the last the outputs are untouched.
/// \par Accuracy
/// LDL' is exact for a matrix that differs from A, in each element, by about the length of a row times the precision
/// times the geometric mean of two diagonal elements.
/// \par Method
/// Row by row, by scalar products: A. George and J. W. Liu, Computer Solution of Large Sparse Positive Definite Systems
/// (1981), chapter 4.
/// \par Thread safety
/// Safe.
/// \par See also
/// f04mcc() and f04aqc() solve with the factors.
/// \par Example
/// \code{.c}
/// double a[] = {4.0,  2.0, 5.0,  2.0, 3.0}, al[5], d[3];   // rows (4), (2, 5), (2, 3): a tridiagonal matrix
/// Integer row[] = {1, 2, 2};
/// f01mcc(3, a, 5, row, al, d, &fail);   // d = {4, 4, 2}; al = {1,  0.5, 1,  0.5, 1}
/// \endcode
void f01mcc(Integer n, const double a[], Integer lal, const Integer row[], double al[], double d[], KorError *fail);

/// \brief QR factorisation of a real matrix.
///
/// Finds A = Q (R; 0), Q orthogonal, R upper triangular of order n. Q' is the product of n reflections, H_n ... H_2
/// H_1; each is H = I - u u' with u = (0, ..., 0, zeta, z), u'u = 2; zeta = 0 means H = I.
///
/// \param[in]     m    number of rows of A, at least `n`
/// \param[in]     n    number of columns of A, not negative; with 0 nothing is done
/// \param[in,out] a    m by n, element (i, j) at `a[i * tda + j]`: A; on return R in the upper triangle, and in column
///                     k below the diagonal the part z of the k-th reflection
/// \param[in]     tda  length of a row of the array `a`, at least `n`
/// \param[out]    zeta n elements: the scalars of the reflections; the last is 0 if m = n
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_2_INT_ARG_LT: `m` is less than `n`, or `tda` is.
/// - NE_INT_ARG_LT: `n` is negative.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// After an error everything is untouched. NaN and infinity pass through the arithmetic.
/// \par Accuracy
/// |Q'Q - I| and the error of QR, relative to |A|, are about the precision times the square root of n.
/// \par Method
/// Reflections as f06frc() chooses them, applied in blocks: C. Puglisi, SIAM J. Sci. Stat. Comput. 13 (1992) 723-726.
/// G. H. Golub, Numer. Math. 7 (1965) 206-216.
/// \par Thread safety
/// Safe.
/// \par See also
/// f01qdc() applies Q, f01qec() forms it; f01qfc() with interchanges of columns; f04jgc() solves least-squares
/// problems; f01rcc() for complex matrices.
/// \par Example
/// \code{.c}
/// double a[] = {3.0, 1.0,  4.0, 2.0}, zeta[2];
/// f01qcc(2, 2, a, 2, zeta, &fail);   // R = (-5, -2.2; 0, 0.4): a[0] = -5, a[1] = -2.2, a[3] = 0.4
/// \endcode
void f01qcc(Integer m, Integer n, double a[], Integer tda, double zeta[], KorError *fail);

/// \brief Multiplies a real matrix by the orthogonal factor of f01qcc().
///
/// B becomes QB or Q'B, Q of order m being given by its reflections.
///
/// \param[in]     trans  NoTranspose: QB; Transpose or ConjugateTranspose: Q'B
/// \param[in]     wheret where the scalars of the reflections are: Kor_ElementsSeparate: in `zeta`; Kor_ElementsIn: on
///                       the diagonal of `a`, and `zeta` is not read, and may be null
/// \param[in]     m      number of rows of A and of B, at least `n`
/// \param[in]     n      number of reflections, not negative
/// \param[in]     a      m by n, as f01qcc() leaves it; R is not read
/// \param[in]     tda    length of a row of the array `a`, at least `n`
/// \param[in]     zeta   n elements: the scalars of the reflections
/// \param[in]     ncolb  number of columns of B, not negative
/// \param[in,out] b      m by ncolb, element (i, j) at `b[i * tdb + j]`: B, and the product
/// \param[in]     tdb    length of a row of the array `b`, at least `ncolb`
/// \param[in,out] fail   the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `trans` or `wheret` is none of these.
/// - NE_2_INT_ARG_LT: `m` or `tda` is less than `n`, or `tdb` than `ncolb`.
/// - NE_INT_ARG_LT: `n` or `ncolb` is negative.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// After an error `b` is untouched.
/// \par Accuracy
/// The error is about the precision times the square root of n, relative to the length of each column.
/// \par Method
/// Reflections as f06frc() chooses them, applied in blocks: C. Puglisi, SIAM J. Sci. Stat. Comput. 13 (1992) 723-726.
/// \par Thread safety
/// Safe.
/// \par See also
/// f01qec() forms Q itself; f01rdc() for complex matrices.
/// \par Example
/// \code{.c}
/// double a[] = {3.0, 4.0}, zeta[1], b[] = {5.0, 0.0};
/// f01qcc(2, 1, a, 1, zeta, &fail);
/// f01qdc(Transpose, Kor_ElementsSeparate, 2, 1, a, 1, zeta, 1, b, 1, &fail);   // b = {-3, -4}
/// \endcode
void f01qdc(Integer trans, Integer wheret, Integer m, Integer n, const double a[], Integer tda, const double zeta[],
            Integer ncolb, double b[], Integer tdb, KorError *fail);

/// \brief Forms the first columns of the orthogonal factor of f01qcc().
///
/// Replaces the reflections by the first ncolq columns of the product Q, which has order m: with ncolq = n an
/// orthonormal basis of the columns of A, if A has full rank, and with ncolq = m behind it one of what is orthogonal to
/// them.
///
/// \param[in]     wheret where the scalars of the reflections are: Kor_ElementsSeparate: in `zeta`; Kor_ElementsIn: on
///                       the diagonal of `a`, and `zeta` is not read, and may be null
/// \param[in]     m      number of rows of A, at least `n`
/// \param[in]     n      number of reflections, not negative
/// \param[in]     ncolq  number of columns wanted, 0 to m
/// \param[in,out] a      m by max(n, ncolq), element (i, j) at `a[i * tda + j]`: the reflections, as f01qcc() leaves
///                       them; the columns of Q on return
/// \param[in]     tda    length of a row of the array `a`, at least `n` and `ncolq`
/// \param[in]     zeta   n elements: the scalars of the reflections
/// \param[in,out] fail   the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `wheret` is neither of these.
/// - NE_2_INT_ARG_LT: `m` is less than `n`, or `tda` less than `n` or `ncolq`.
/// - NE_2_INT_ARG_GT: `ncolq` is greater than `m`.
/// - NE_INT_ARG_LT: `n` or `ncolq` is negative.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// After an error `a` is untouched.
/// \par Accuracy
/// The columns are orthogonal, and have length 1, to about the precision times the square root of n.
/// \par Method
/// Reflections as f06frc() chooses them, applied in blocks: C. Puglisi, SIAM J. Sci. Stat. Comput. 13 (1992) 723-726.
/// \par Thread safety
/// Safe.
/// \par See also
/// f01qdc() applies Q without forming it; f01rec() for complex matrices.
/// \par Example
/// \code{.c}
/// double a[] = {3.0, 4.0}, zeta[1];
/// f01qcc(2, 1, a, 1, zeta, &fail);
/// f01qec(Kor_ElementsSeparate, 2, 1, 1, a, 1, zeta, &fail);   // a = {-0.6, -0.8}
/// \endcode
void f01qec(Integer wheret, Integer m, Integer n, Integer ncolq, double a[], Integer tda, const double zeta[],
            KorError *fail);

/// \brief QR factorisation of a real matrix with interchanges of columns.
///
/// Finds AP = Q (R; 0), P a permutation. At each stage the longest of the columns that are left is taken, so that the
/// diagonal of R does not grow in modulus: where it becomes negligible is the rank of A, for most matrices. The matrix
/// may have more columns than rows; R is then a trapezium.
///
/// \param[in]     pivot VariablePivot: interchanges; FixedPivot: none, as f01qcc()
/// \param[in]     m     number of rows of A, not negative
/// \param[in]     n     number of columns of A, not negative
/// \param[in,out] a     m by n, element (i, j) at `a[i * tda + j]`: A; on return R, and below the diagonal the
///                      reflections, as f01qcc() leaves them
/// \param[in]     tda   length of a row of the array `a`, at least `n`
/// \param[out]    zeta  min(m, n) elements: the scalars of the reflections
/// \param[out]    perm  min(m, n) elements: `perm[k]` is the column, from 1, that was interchanged with column k + 1 at
///                      that stage; `perm[k]` > k
/// \param[out]    work  2 n elements of work space; on return those from min(m, n) to n - 1 hold the lengths that the
///                      columns not taken have below R. Not used with FixedPivot
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `pivot` is neither of these.
/// - NE_INT_ARG_LT: `m` or `n` is negative.
/// - NE_2_INT_ARG_LT: `tda` is less than `n`.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// After an error everything is untouched.
/// \par Accuracy
/// As f01qcc().
/// \par Method
/// P. A. Businger and G. H. Golub, Numer. Math. 7 (1965) 269-276, in blocks after G. Quintana-Orti, X. Sun and C. H.
/// Bischof, SIAM J. Sci. Comput. 19 (1998) 1486-1494, with lengths brought up to date as in Z. Drmac and Z. Bujanovic,
/// ACM Trans. Math. Softw. 35 (2008) 12.
/// \par Thread safety
/// Safe.
/// \par See also
/// f01qdc() and f01qec() apply and form Q, if m is at least n; f06qjc() applies the interchanges; f04jgc() decides
/// ranks by singular values.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 3.0,  1.0, 4.0}, zeta[2], work[4];
/// Integer perm[2];
/// f01qfc(VariablePivot, 2, 2, a, 2, zeta, perm, work, &fail);   // perm = {2, 2}; R = (-5, -1.4; 0, 0.2)
/// \endcode
void f01qfc(Integer pivot, Integer m, Integer n, double a[], Integer tda, double zeta[], Integer perm[], double work[],
            KorError *fail);

/// \brief RQ factorisation of a real matrix, by rows.
///
/// Finds A = (R 0) P', P orthogonal of order n, R upper triangular of order m. P is the product of reflections P_m ...
/// P_2 P_1, P_k = I - u u', u'u = 2. The vector u of row k has zeta = `zeta[k]` at place k, zeros from there up to
/// place m - 1, and elsewhere what row k of `a` holds; zeta = 0 means the unit matrix.
///
/// \param[in]     m    number of rows of A, not negative
/// \param[in]     n    number of columns of A, at least `m`
/// \param[in,out] a    m by n, element (i, j) at `a[i * tda + j]`: A; on return R in the upper triangle of the first m
///                     columns; left of its diagonal, and in the columns from m on, the vectors of the reflections
/// \param[in]     tda  length of a row of the array `a`, at least `n`
/// \param[out]    zeta m elements: the scalars of the reflections
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `m` is negative.
/// - NE_2_INT_ARG_LT: `n` is less than `m`, or `tda` than `n`.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// After an error everything is untouched. NaN and infinity pass through the arithmetic.
/// \par Accuracy
/// |P'P - I| and the error of (R 0) P', relative to |A|, are about the precision times the square root of m.
/// \par Method
/// Reflections as f06frc() chooses them, applied in blocks: C. Puglisi, SIAM J. Sci. Stat. Comput. 13 (1992) 723-726.
/// \par Thread safety
/// Safe.
/// \par See also
/// f01qkc() forms the rows of P'; f01qcc() for matrices with more rows than columns; f01rjc() for complex ones.
/// \par Example
/// \code{.c}
/// double a[] = {3.0, 4.0}, zeta[1];
/// f01qjc(1, 2, a, 2, zeta, &fail);   // R = -5: a[0] = -5
/// \endcode
void f01qjc(Integer m, Integer n, double a[], Integer tda, double zeta[], KorError *fail);

/// \brief Forms the first rows of the transpose, P being the orthogonal factor of f01qjc().
///
/// Replaces the reflections by the first nrowp rows of P', which has order n: with nrowp = m an orthonormal basis of
/// the rows of A, if A has full rank, and with nrowp = n behind it one of what is orthogonal to them.
///
/// \param[in]     wheret where the scalars of the reflections are: Kor_ElementsSeparate: in `zeta`; Kor_ElementsIn: on
///                       the diagonal of `a`, and `zeta` is not read, and may be null
/// \param[in]     m      number of reflections, not negative
/// \param[in]     n      number of columns of A, at least `m`
/// \param[in]     nrowp  number of rows wanted, 0 to n
/// \param[in,out] a      max(m, nrowp) by n, element (i, j) at `a[i * tda + j]`: the reflections, as f01qjc() leaves
///                       them; the rows of P' on return
/// \param[in]     tda    length of a row of the array `a`, at least `n`
/// \param[in]     zeta   m elements: the scalars of the reflections
/// \param[in,out] fail   the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `wheret` is neither of these.
/// - NE_INT_ARG_LT: `m` or `nrowp` is negative.
/// - NE_2_INT_ARG_LT: `n` is less than `m`, or `tda` than `n`.
/// - NE_2_INT_ARG_GT: `nrowp` is greater than `n`.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// After an error `a` is untouched.
/// \par Accuracy
/// The rows are orthogonal, and have length 1, to about the precision times the square root of m.
/// \par Method
/// Reflections as f06frc() chooses them, applied in blocks: C. Puglisi, SIAM J. Sci. Stat. Comput. 13 (1992) 723-726.
/// \par Thread safety
/// Safe.
/// \par See also
/// f01qjc() factorises; f01rkc() for complex matrices.
/// \par Example
/// \code{.c}
/// double a[] = {3.0, 4.0}, zeta[1];
/// f01qjc(1, 2, a, 2, zeta, &fail);
/// f01qkc(Kor_ElementsSeparate, 1, 2, 1, a, 2, zeta, &fail);   // a = {-0.6, -0.8}
/// \endcode
void f01qkc(Integer wheret, Integer m, Integer n, Integer nrowp, double a[], Integer tda, const double zeta[],
            KorError *fail);

/// \brief QR factorisation of a complex matrix.
///
/// Finds A = Q (R; 0), Q unitary, R upper triangular of order n, its diagonal real. Q^H is the product of n
/// reflections, H_n ... H_2 H_1; each is H = I - gamma u u^H with u = (0, ..., 0, zeta, z): `theta[k]` holds zeta in
/// its real part and Im(gamma) in the other, gamma = 1 + i Im(gamma); theta = 0 means H = I.
///
/// \param[in]     m     number of rows of A, at least `n`
/// \param[in]     n     number of columns of A, not negative; with 0 nothing is done
/// \param[in,out] a     m by n, element (i, j) at `a[i * tda + j]`: A; on return R in the upper triangle, and in column
///                      k below the diagonal the part z of the k-th reflection
/// \param[in]     tda   length of a row of the array `a`, at least `n`
/// \param[out]    theta n elements: the scalars of the reflections
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_2_INT_ARG_LT: `m` is less than `n`, or `tda` is.
/// - NE_INT_ARG_LT: `n` is negative.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// After an error everything is untouched. NaN and infinity pass through the arithmetic.
/// \par Accuracy
/// |Q^HQ - I| and the error of QR, relative to |A|, are about the precision times the square root of n.
/// \par Method
/// Reflections as f06hrc() chooses them, applied in blocks: C. Puglisi, SIAM J. Sci. Stat. Comput. 13 (1992) 723-726.
/// G. H. Golub, Numer. Math. 7 (1965) 206-216.
/// \par Thread safety
/// Safe.
/// \par See also
/// f01rdc() applies Q, f01rec() forms it; f01qcc() for real matrices.
/// \par Example
/// \code{.c}
/// Complex a[] = {{3.0, 0.0}, {0.0, 4.0}}, theta[1];
/// f01rcc(2, 1, a, 1, theta, &fail);   // R = -5: a[0] = {-5, 0}
/// \endcode
void f01rcc(Integer m, Integer n, Complex a[], Integer tda, Complex theta[], KorError *fail);

/// \brief Multiplies a complex matrix by the unitary factor of f01rcc().
///
/// B becomes QB or Q^HB, Q of order m being given by its reflections.
///
/// \param[in]     trans  NoTranspose: QB; ConjugateTranspose: Q^H B
/// \param[in]     wheret where the scalars of the reflections are: Kor_ElementsSeparate: in `theta`; Kor_ElementsIn: on
///                       the diagonal of `a`, and `theta` is not read, and may be null
/// \param[in]     m      number of rows of A and of B, at least `n`
/// \param[in]     n      number of reflections, not negative
/// \param[in]     a      m by n, as f01rcc() leaves it; R is not read
/// \param[in]     tda    length of a row of the array `a`, at least `n`
/// \param[in]     theta  n elements: the scalars of the reflections
/// \param[in]     ncolb  number of columns of B, not negative
/// \param[in,out] b      m by ncolb, element (i, j) at `b[i * tdb + j]`: B, and the product
/// \param[in]     tdb    length of a row of the array `b`, at least `ncolb`
/// \param[in,out] fail   the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `trans` or `wheret` is none of these.
/// - NE_2_INT_ARG_LT: `m` or `tda` is less than `n`, or `tdb` than `ncolb`.
/// - NE_INT_ARG_LT: `n` or `ncolb` is negative.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// After an error `b` is untouched.
/// \par Accuracy
/// The error is about the precision times the square root of n, relative to the length of each column.
/// \par Method
/// Reflections as f06hrc() chooses them, applied in blocks: C. Puglisi, SIAM J. Sci. Stat. Comput. 13 (1992) 723-726.
/// \par Thread safety
/// Safe.
/// \par See also
/// f01rec() forms Q itself; f01qdc() for real matrices.
/// \par Example
/// \code{.c}
/// Complex a[] = {{3.0, 0.0}, {0.0, 4.0}}, theta[1], b[] = {{5.0, 0.0}, {0.0, 0.0}};
/// f01rcc(2, 1, a, 1, theta, &fail);
/// f01rdc(ConjugateTranspose, Kor_ElementsSeparate, 2, 1, a, 1, theta, 1, b, 1, &fail);   // b[0] = {-3, 0}
/// \endcode
void f01rdc(Integer trans, Integer wheret, Integer m, Integer n, const Complex a[], Integer tda, const Complex theta[],
            Integer ncolb, Complex b[], Integer tdb, KorError *fail);

/// \brief Forms the first columns of the unitary factor of f01rcc().
///
/// Replaces the reflections by the first ncolq columns of the product Q, which has order m: with ncolq = n an
/// orthonormal basis of the columns of A, if A has full rank, and with ncolq = m behind it one of what is orthogonal to
/// them.
///
/// \param[in]     wheret where the scalars of the reflections are: Kor_ElementsSeparate: in `theta`; Kor_ElementsIn: on
///                       the diagonal of `a`, and `theta` is not read, and may be null
/// \param[in]     m      number of rows of A, at least `n`
/// \param[in]     n      number of reflections, not negative
/// \param[in]     ncolq  number of columns wanted, 0 to m
/// \param[in,out] a      m by max(n, ncolq), element (i, j) at `a[i * tda + j]`: the reflections, as f01rcc() leaves
///                       them; the columns of Q on return
/// \param[in]     tda    length of a row of the array `a`, at least `n` and `ncolq`
/// \param[in]     theta  n elements: the scalars of the reflections
/// \param[in,out] fail   the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `wheret` is neither of these.
/// - NE_2_INT_ARG_LT: `m` is less than `n`, or `tda` less than `n` or `ncolq`.
/// - NE_2_INT_ARG_GT: `ncolq` is greater than `m`.
/// - NE_INT_ARG_LT: `n` or `ncolq` is negative.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// After an error `a` is untouched.
/// \par Accuracy
/// The columns are orthogonal, and have length 1, to about the precision times the square root of n.
/// \par Method
/// Reflections as f06hrc() chooses them, applied in blocks: C. Puglisi, SIAM J. Sci. Stat. Comput. 13 (1992) 723-726.
/// \par Thread safety
/// Safe.
/// \par See also
/// f01rdc() applies Q without forming it; f01qec() for real matrices.
/// \par Example
/// \code{.c}
/// Complex a[] = {{3.0, 0.0}, {0.0, 4.0}}, theta[1];
/// f01rcc(2, 1, a, 1, theta, &fail);
/// f01rec(Kor_ElementsSeparate, 2, 1, 1, a, 1, theta, &fail);   // a = {-0.6, -0.8 i}
/// \endcode
void f01rec(Integer wheret, Integer m, Integer n, Integer ncolq, Complex a[], Integer tda, const Complex theta[],
            KorError *fail);

/// \brief RQ factorisation of a complex matrix, by rows.
///
/// Finds A = (R 0) P^H, P unitary of order n, R upper triangular of order m, its diagonal real. P is the product of
/// reflections P_m ... P_2 P_1, P_k = I - conj(gamma) u u^H with gamma = 1 + i Im(`theta[k]`). The vector u of row k
/// has zeta = Re(`theta[k]`) at place k, zeros from there up to place m - 1, and elsewhere the conjugates of what row k
/// of `a` holds; zeta = 0 means the unit matrix.
///
/// \param[in]     m     number of rows of A, not negative
/// \param[in]     n     number of columns of A, at least `m`
/// \param[in,out] a     m by n, element (i, j) at `a[i * tda + j]`: A; on return R in the upper triangle of the first m
///                      columns; left of its diagonal, and in the columns from m on, the vectors of the reflections
/// \param[in]     tda   length of a row of the array `a`, at least `n`
/// \param[out]    theta m elements: the scalars of the reflections
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `m` is negative.
/// - NE_2_INT_ARG_LT: `n` is less than `m`, or `tda` than `n`.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// After an error everything is untouched. NaN and infinity pass through the arithmetic.
/// \par Accuracy
/// |P^HP - I| and the error of (R 0) P^H, relative to |A|, are about the precision times the square root of m.
/// \par Method
/// Reflections as f06hrc() chooses them, applied in blocks: C. Puglisi, SIAM J. Sci. Stat. Comput. 13 (1992) 723-726.
/// \par Thread safety
/// Safe.
/// \par See also
/// f01rkc() forms the rows of P^H; f01rcc() for matrices with more rows than columns; f01qjc() for real ones.
/// \par Example
/// \code{.c}
/// Complex a[] = {{3.0, 0.0}, {0.0, 4.0}}, theta[1];
/// f01rjc(1, 2, a, 2, theta, &fail);   // R = -5: a[0] = {-5, 0}
/// \endcode
void f01rjc(Integer m, Integer n, Complex a[], Integer tda, Complex theta[], KorError *fail);

/// \brief Forms the first rows of P^H, P being the unitary factor of f01rjc().
///
/// Replaces the reflections by the first nrowp rows of P^H, which has order n: with nrowp = m an orthonormal basis of
/// the rows of A, if A has full rank, and with nrowp = n behind it one of what is orthogonal to them.
///
/// \param[in]     wheret where the scalars of the reflections are: Kor_ElementsSeparate: in `theta`; Kor_ElementsIn: on
///                       the diagonal of `a`, and `theta` is not read, and may be null
/// \param[in]     m      number of reflections, not negative
/// \param[in]     n      number of columns of A, at least `m`
/// \param[in]     nrowp  number of rows wanted, 0 to n
/// \param[in,out] a      max(m, nrowp) by n, element (i, j) at `a[i * tda + j]`: the reflections, as f01rjc() leaves
///                       them; the rows of P^H on return
/// \param[in]     tda    length of a row of the array `a`, at least `n`
/// \param[in]     theta  m elements: the scalars of the reflections
/// \param[in,out] fail   the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `wheret` is neither of these.
/// - NE_INT_ARG_LT: `m` or `nrowp` is negative.
/// - NE_2_INT_ARG_LT: `n` is less than `m`, or `tda` than `n`.
/// - NE_2_INT_ARG_GT: `nrowp` is greater than `n`.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// After an error `a` is untouched.
/// \par Accuracy
/// The rows are orthogonal, and have length 1, to about the precision times the square root of m.
/// \par Method
/// Reflections as f06hrc() chooses them, applied in blocks: C. Puglisi, SIAM J. Sci. Stat. Comput. 13 (1992) 723-726.
/// \par Thread safety
/// Safe.
/// \par See also
/// f01rjc() factorises; f01qkc() for real matrices.
/// \par Example
/// \code{.c}
/// Complex a[] = {{3.0, 0.0}, {0.0, 4.0}}, theta[1];
/// f01rjc(1, 2, a, 2, theta, &fail);
/// f01rkc(Kor_ElementsSeparate, 1, 2, 1, a, 2, theta, &fail);   // a = {-0.6, -0.8 i}
/// \endcode
void f01rkc(Integer wheret, Integer m, Integer n, Integer nrowp, Complex a[], Integer tda, const Complex theta[],
            KorError *fail);

/// \brief QR factorisation of a real matrix together with a companion array.
///
/// Reduces (A C) to (R Q'C): A = Q (R; 0) as f01qcc() finds it, and the companion C, right-hand sides for instance,
/// becomes Q'C.
///
/// \param[in]     m    number of rows of A and of C, at least `n`
/// \param[in]     n    number of columns of A, not negative
/// \param[in,out] a    m by n, element (i, j) at `a[i * tda + j]`: A; on return R and the reflections, as f01qcc()
///                     leaves them
/// \param[in]     tda  length of a row of the array `a`, at least `n`
/// \param[in,out] c    m by tdc, element (i, j) at `c[i * tdc + j]`: C, every column of the array; Q'C on return. It
///                     may be null if `tdc` is 0
/// \param[in]     tdc  number of columns of C, and length of a row of the array; not negative
/// \param[out]    z    n elements: the scalars of the reflections, as the `zeta` of f01qcc()
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_2_INT_ARG_LT: `m` is less than `n`, or `tda` is.
/// - NE_INT_ARG_LT: `n` or `tdc` is negative.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// After an error everything is untouched.
/// \par Accuracy
/// As f01qcc() and f01qdc().
/// \par Method
/// As f01qcc() and f01qdc().
/// \par Thread safety
/// Safe.
/// \par See also
/// f01qbc() for matrices with more columns than rows.
/// \par Example
/// \code{.c}
/// double a[] = {3.0, 4.0}, c[] = {5.0, 0.0}, z[1];
/// f01qac(2, 1, a, 1, c, 1, z, &fail);   // a[0] = -5, c = {-3, -4}
/// \endcode
void f01qac(Integer m, Integer n, double a[], Integer tda, double c[], Integer tdc, double z[], KorError *fail);

/// \brief LQ factorisation of a real matrix, and its orthogonal factor applied to a companion array.
///
/// Finds A = (L 0) P', L lower triangular of order m, and replaces the companion C, which has a row for each column of
/// A, by P'C. P' is the product of reflections H_m ... H_2 H_1, H_k = I - u u' with u = (0, ..., 0, zeta, x), u'u = 2;
/// zeta = 0 means H = I.
///
/// \param[in]     m    number of rows of A, not negative
/// \param[in]     n    number of columns of A and of rows of C, at least `m`
/// \param[in,out] a    m by n, element (i, j) at `a[i * tda + j]`: A; on return L in the lower triangle, and in row k
///                     right of the diagonal the part x of the k-th reflection
/// \param[in]     tda  length of a row of the array `a`, at least `n`
/// \param[in,out] c    n by tdc, element (i, j) at `c[i * tdc + j]`: C, every column of the array; P'C on return. It
///                     may be null if `tdc` is 0
/// \param[in]     tdc  number of columns of C, and length of a row of the array; not negative
/// \param[out]    z    m elements: the scalars zeta
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `m` or `tdc` is negative.
/// - NE_2_INT_ARG_LT: `n` is less than `m`, or `tda` than `n`.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// After an error everything is untouched.
/// \par Accuracy
/// As f01qcc() and f01qdc().
/// \par Method
/// f01qcc() on the transpose.
/// \par Thread safety
/// Safe.
/// \par See also
/// f01qac() for matrices with more rows than columns; f01qjc() gives R in the place of L.
/// \par Example
/// \code{.c}
/// double a[] = {3.0, 4.0}, c[] = {5.0, 0.0}, z[1];
/// f01qbc(1, 2, a, 2, c, 1, z, &fail);   // a[0] = -5, c = {-3, -4}
/// \endcode
void f01qbc(Integer m, Integer n, double a[], Integer tda, double c[], Integer tdc, double z[], KorError *fail);

/// \brief Reduces a real upper triangular matrix to upper bidiagonal form.
///
/// Finds R = Q B P', Q and P orthogonal, B with the diagonal d and e above it. On request b becomes Q'b, Y becomes Q'Y,
/// Z becomes P'Z, and Q is formed; with the unit matrix for Z, P' is.
///
/// \param[in]     n      order of R, at least 1
/// \param[in]     a      n by n, element (i, j) at `a[i * tda + j]`: R; below the diagonal it is not read. It stays,
///                       unless it is `c`
/// \param[in]     tda    length of a row of the array `a`, at least `n`
/// \param[out]    c      n by n, row-major; it may be `a` itself: Q if `want_q`, else work space
/// \param[in]     tdc    length of a row of the array `c`, at least `n`
/// \param[in]     want_b whether b is to be transformed
/// \param[in,out] b      n elements: becomes Q'b if `want_b`; else not used, may be null
/// \param[in]     want_q whether Q is wanted in `c`
/// \param[in]     want_y whether Y is to be transformed
/// \param[in,out] y      n by ncol_y, row-major: becomes Q'Y if `want_y`; else not used, may be null
/// \param[in]     tdy    length of a row of the array `y`, at least `ncol_y`
/// \param[in]     ncol_y number of columns of Y, at least 1
/// \param[in]     want_z whether Z is to be transformed
/// \param[in,out] z      n by ncol_z, row-major: becomes P'Z if `want_z`; else not used, may be null
/// \param[in]     tdz    length of a row of the array `z`, at least `ncol_z`
/// \param[in]     ncol_z number of columns of Z, at least 1
/// \param[out]    d      n elements: the diagonal of B
/// \param[out]    e      n - 1 elements: the elements above it
/// \param[in,out] fail   the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 1; or `ncol_y` is, if `want_y`; or `ncol_z`, if `want_z`.
/// - NE_2_INT_ARG_LT: `tda` or `tdc` is less than `n`; or `tdy` than `ncol_y`, if `want_y`; or `tdz` than `ncol_z`, if
///   `want_z`.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// After an error everything is untouched. NaN and infinity pass through the arithmetic.
/// \par Accuracy
/// The singular values of B are those of R to about n times the precision times the greatest of them.
/// \par Method
/// Reflections from both sides by turns: G. H. Golub and W. Kahan, SIAM J. Numer. Anal. 2 (1965) 205-224.
/// \par Thread safety
/// Safe.
/// \par See also
/// f02szc() finds the singular values of B; f02swc() and f02sxc() are another way to this form.
/// \par Example
/// \code{.c}
/// double r[] = {1.0, 2.0,  0.0, 3.0}, c[4], d[2], e[1];
/// f01lzc(2, r, 2, c, 2, 0, NULL, 0, 0, NULL, 0, 0, 0, NULL, 0, 0, d, e, &fail);   // |d[0] d[1]| = 3
/// \endcode
void f01lzc(Integer n, double a[], Integer tda, double c[], Integer tdc, Boolean want_b, double b[], Boolean want_q,
            Boolean want_y, double y[], Integer tdy, Integer ncol_y, Boolean want_z, double z[], Integer tdz,
            Integer ncol_z, double d[], double e[], KorError *fail);

// Reductions towards eigenvalues and singular values

/// \brief Reduces A x = lambda B x, A symmetric and B symmetric positive-definite, to a standard symmetric problem.
///
/// With B = LL' (Cholesky) the eigenvalues are those of P = L^-1 A L'^-1, and x = L'^-1 z, z an eigenvector of P: see
/// f01afc().
///
/// \param[in]     n   order of the matrices, at least 1
/// \param[in,out] a   n rows of `tda`: the lower triangle of A; the lower triangle of P on return. The rest of the array is
///                    neither read nor changed
/// \param[in]     tda length of a row of a, at least n
/// \param[in,out] b   n rows of `tdb`: the lower triangle of B; L on return
/// \param[in]     tdb length of a row of b, at least n
/// \param[out]    dl  n elements: the diagonal of L
/// \return 0; NE_INT_ARG_LT or NE_2_INT_ARG_LT if n, `tda` or `tdb` is too small, and nothing has changed; NE_NOT_POS_DEF if
///         B is not positive definite, or holds a NaN or an infinity: b is then partly overwritten.
///
/// \par Accuracy
/// Errors of the eigenvalues are up to about n times the precision times |A| |B^-1|: small eigenvalues suffer if B is
/// ill-conditioned.
/// \par Method
/// Cholesky factorisation and two triangular solutions, in blocks. R. S. Martin and J. H. Wilkinson, Numer. Math. 11 (1968)
/// 99-110.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double a[] = {2.0, 0.0, 1.0, 3.0}, b[] = {4.0, 0.0, 2.0, 5.0}, dl[2];
/// Integer status = f01aec(2, a, 2, b, 2, dl);   // status = 0, dl = {2, 2}, a = {0.5, ., 0, 0.625}
/// \endcode
Integer f01aec(Integer n, double a[], Integer tda, double b[], Integer tdb, double dl[]);

/// \brief Eigenvectors of A x = lambda B x from those of the standard problem that f01aec() made of it.
///
/// \param[in]     n   order of the matrices; with n less than 1 nothing is done
/// \param[in]     m1  first column of z to be transformed, from 1; less counts as 1
/// \param[in]     m2  last column of z to be transformed; more than n counts as n
/// \param[in]     b   n rows of `tdb`: the factor L below the diagonal, as f01aec() leaves it
/// \param[in]     tdb length of a row of b, at least n, else nothing is done
/// \param[in]     dl  n elements: the diagonal of L
/// \param[in,out] z   n rows of `tdz`: the columns m1 to m2 are multiplied by L'^-1. Orthonormal vectors become vectors with
///                    x'Bx = 1
/// \param[in]     tdz length of a row of z, at least n, else nothing is done
///
/// \par Accuracy
/// Backward stable in each column.
/// \par Method
/// Back substitution, in blocks.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// f01aec(2, a, 2, b, 2, dl);
/// f01ajc(2, 0.0, a, 2, d, e, z, 2);
/// f02amc(2, x02ajc(), d, e, z, 2, &fail);
/// f01afc(2, 1, 2, b, 2, dl, z, 2);      // the columns of z solve A x = d[j] B x
/// \endcode
void f01afc(Integer n, Integer m1, Integer m2, const double b[], Integer tdb, const double dl[], double z[],
            Integer tdz);

/// \brief Reduces a real symmetric matrix to tridiagonal form, for its eigenvalues.
///
/// \param[in]     n    order of A; with n less than 1 nothing is done
/// \param[in]     atol a row whose elements left of the subdiagonal do not exceed this in modulus is taken as reduced, and
///                     they are dropped; 0 keeps all that matters
/// \param[in,out] a    n rows of `tda`: the lower triangle of A, the rest is not read; overwritten
/// \param[in]     tda  length of a row, at least n, else nothing is done
/// \param[out]    d    n elements: the diagonal of the tridiagonal matrix
/// \param[out]    e    n elements: beside the diagonal, element (i, i-1) in `e[i]`; `e[0]` = 0
/// \param[out]    e2   n elements: the squares of e
///
/// \par Accuracy
/// The tridiagonal matrix is similar to one that differs from A by a small multiple of n times the precision times |A|.
/// \par Method
/// Householder reflections from the last row upwards; from order 64 on in blocks, by LAPACK. R. S. Martin, C. Reinsch and
/// J. H. Wilkinson, Numer. Math. 11 (1968) 181-195.
/// \par Thread safety
/// Safe.
/// \par See also
/// f02avc() goes on to the eigenvalues; f01ajc() keeps the transformation.
/// \par Example
/// \code{.c}
/// double a[] = {2.0, 0.0, 0.0,  3.0, 1.0, 0.0,  4.0, 0.0, 5.0}, d[3], e[3], e2[3];
/// f01agc(3, 0.0, a, 3, d, e, e2);       // d = {1, 2, 5}, e = {0, 3, -4}
/// \endcode
void f01agc(Integer n, double atol, double a[], Integer tda, double d[], double e[], double e2[]);

/// \brief Reduces a real symmetric matrix to tridiagonal form, and forms the orthogonal matrix Q: A = Q T Q'.
///
/// \param[in]  n    order of A; with n less than 1 nothing is done
/// \param[in]  atol as in f01agc()
/// \param[in]  a    n rows of `tda`: the lower triangle of A, the rest is not read
/// \param[in]  tda  length of a row of a, at least n, else nothing is done
/// \param[out] d    n elements: the diagonal of T
/// \param[out] e    n elements: beside the diagonal, element (i, i-1) in `e[i]`; `e[0]` = 0
/// \param[out] z    n rows of `tdz`: Q; may be the array a
/// \param[in]  tdz  length of a row of z, at least n, else nothing is done
///
/// \par Accuracy
/// As f01agc(); Q is orthogonal to a small multiple of n times the precision.
/// \par Method
/// As f01agc().
/// \par Thread safety
/// Safe.
/// \par See also
/// f02amc() goes on to the eigenvalues and eigenvectors.
/// \par Example
/// \code{.c}
/// double a[] = {2.0, 0.0,  1.0, 2.0}, d[2], e[2], z[4];
/// f01ajc(2, 0.0, a, 2, d, e, z, 2);     // d = {2, 2}, e = {0, 1}, z = I
/// \endcode
void f01ajc(Integer n, double atol, const double a[], Integer tda, double d[], double e[], double z[], Integer tdz);

/// \brief Reduces a real general matrix to upper Hessenberg form by elimination with interchanges.
///
/// \param[in]     n      order of A; with n less than 1 nothing is done
/// \param[in]     low    first row and column, from 1, of the part that is not triangular yet, from f01atc(); 1 if the matrix
///                       was not balanced
/// \param[in]     high   last row and column of that part; n if the matrix was not balanced. Nothing is done unless
///                       1 <= low <= high <= n
/// \param[in,out] a      n rows of `tda`: A; the Hessenberg matrix on return, and below its subdiagonal the multipliers
/// \param[in]     tda    length of a row, at least n, else nothing is done
/// \param[out]    intger n elements: for the rows low+1 to high-1 the number, from 1, of the row that was interchanged with
///                       it (row i in `intger[i-1]`)
///
/// \par Accuracy
/// The multipliers are at most 1 in modulus; growth of elements, rare in practice, would cost digits. f02afc() uses
/// reflections, which do not grow.
/// \par Method
/// R. S. Martin and J. H. Wilkinson, Numer. Math. 12 (1968) 349-368.
/// \par Thread safety
/// Safe.
/// \par See also
/// f02apc() goes on to the eigenvalues; f01apc() forms the transformation.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 2.0, 3.0,  2.0, 1.0, 0.0,  4.0, 1.0, 1.0};
/// Integer rows[3];
/// f01akc(3, 1, 3, a, 3, rows);          // a = {1, 4, 2,  4, 1.5, 1,  0.5, -0.25, 0.5}, rows = {1, 3, 3}
/// \endcode
void f01akc(Integer n, Integer low, Integer high, double a[], Integer tda, Integer intger[]);

/// \brief The matrix V by which f01akc() reduced A to upper Hessenberg form: A V = V H.
///
/// \param[in]  n      order of A
/// \param[in]  low    as for f01akc()
/// \param[in]  high   as for f01akc()
/// \param[in]  intger n elements, from f01akc()
/// \param[in]  h      n rows of `tdh`, from f01akc(): the multipliers below the subdiagonal are read
/// \param[in]  tdh    length of a row of h, at least n, else nothing is done
/// \param[out] v      n rows of `tdv`: V
/// \param[in]  tdv    length of a row of v, at least n, else nothing is done
///
/// \par Accuracy
/// Exact: the multipliers are put in their places.
/// \par Method
/// G. Peters and J. H. Wilkinson, Numer. Math. 16 (1970) 181-204.
/// \par Thread safety
/// Safe.
/// \par See also
/// f02aqc() goes on to the eigenvalues and eigenvectors.
/// \par Example
/// \code{.c}
/// f01apc(3, 1, 3, rows, a, 3, v, 3);    // after f01akc(): v = {1, 0, 0,  0, 0.5, 1,  0, 1, 0}
/// \endcode
void f01apc(Integer n, Integer low, Integer high, const Integer intger[], const double h[], Integer tdh, double v[],
            Integer tdv);

/// \brief Balances a real general matrix: splits off eigenvalues that stand isolated, and scales the rest.
///
/// Rows and columns are interchanged, and then scaled so that each row is about as great as its column. Eigenvalues stay;
/// their errors, which are in proportion to the norm, become smaller. f01auc() takes the eigenvectors back.
///
/// \param[in]     n    order of A; with n less than 1 nothing is done
/// \param[in]     ib   factors are powers of it, at least 2; less counts as 2
/// \param[in,out] a    n rows of `tda`: A; the balanced matrix on return
/// \param[in]     tda  length of a row, at least n, else nothing is done
/// \param[out]    low  first row, from 1, of the part that is not triangular
/// \param[out]    high last row of that part
/// \param[out]    d    n elements: for rows outside of low to high the number, from 1, of the row with which it was
///                     interchanged; for the others the factor by which the column was multiplied and the row divided
///
/// \par Accuracy
/// Exact if ib is a power of 2.
/// \par Method
/// B. N. Parlett and C. Reinsch, Numer. Math. 13 (1969) 293-304, with Euclidean norms of rows and columns, the diagonal
/// included, which keeps well-scaled matrices as they are.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 1024.0,  0.0009765625, 2.0}, d[2];
/// Integer low, high;
/// f01atc(2, 2, a, 2, &low, &high, d);   // a = {1, 2, 0.5, 2}, low = 1, high = 2, d = {128, 0.25}
/// \endcode
void f01atc(Integer n, Integer ib, double a[], Integer tda, Integer *low, Integer *high, double d[]);

/// \brief Turns the eigenvectors of a balanced matrix into those of the matrix that f01atc() balanced.
///
/// \param[in]     n    order of the matrix
/// \param[in]     low  from f01atc()
/// \param[in]     high from f01atc()
/// \param[in]     m    number of columns of z
/// \param[in]     d    n elements, from f01atc()
/// \param[in,out] z    n rows of `tdz`: m vectors as columns; real and imaginary parts of a complex one in two columns
/// \param[in]     tdz  length of a row of z, at least m, else nothing is done
///
/// \par Accuracy
/// Exact if f01atc() scaled by a power of 2.
/// \par Method
/// B. N. Parlett and C. Reinsch, Numer. Math. 13 (1969) 293-304.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double z[] = {1.0, 0.0,  0.0, 1.0};
/// f01auc(2, low, high, 2, d, z, 2);     // after f01atc(): z = {128, 0,  0, 0.25}
/// \endcode
void f01auc(Integer n, Integer low, Integer high, Integer m, const double d[], double z[], Integer tdz);

/// \brief Reduces a complex Hermitian matrix to real tridiagonal form, and forms the unitary matrix Q: A = Q T conj(Q)'.
///
/// \param[in]     n   order of A; with n less than 1 nothing is done
/// \param[in]     tol a row whose elements left of the subdiagonal do not exceed this in both parts is taken as reduced, and
///                    they are dropped; 0 keeps all that matters
/// \param[in,out] a   n rows of `tda`: the lower triangle of A, the rest is not read, nor are the imaginary parts of the
///                    diagonal; Q on return
/// \param[in]     tda length of a row, at least n, else nothing is done
/// \param[out]    d   n elements: the diagonal of T
/// \param[out]    e   n elements: beside the diagonal, element (i, i-1) in `e[i]`; `e[0]` = 0
/// \param[out]    tau n elements of work space: scalars of the reflections, of no further use
///
/// \par Accuracy
/// As f01ajc().
/// \par Method
/// Householder reflections with real results, so that T is real at once; from order 64 on in blocks, by LAPACK.
/// \par Thread safety
/// Safe.
/// \par See also
/// f02ayc() goes on to the eigenvalues and eigenvectors, f02avc() to the eigenvalues.
/// \par Example
/// \code{.c}
/// Complex a[] = {{2.0, 0.0}, {0.0, 0.0},  {0.0, 1.0}, {2.0, 0.0}}, tau[2];
/// double d[2], e[2];
/// f01bcc(2, 0.0, a, 2, d, e, tau);      // d = {2, 2}, e = {0, -1}
/// \endcode
void f01bcc(Integer n, double tol, Complex a[], Integer tda, double d[], double e[], Complex tau[]);

KOR_END_DECLS

#endif
