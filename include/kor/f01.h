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
/// Cholesky factorisation by halves, as f03aec().
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
void f01afc(Integer n, Integer m1, Integer m2, const double b[], Integer tdb, const double dl[], double z[], Integer tdz);

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
