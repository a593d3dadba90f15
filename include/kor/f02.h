/// \file f02.h
/// Chapter f02: eigenvalues and eigenvectors, singular value decompositions.
#ifndef KOR_F02_H
#define KOR_F02_H

#include <kor.h>

KOR_BEGIN_DECLS

// Symmetric and Hermitian matrices

/// \brief All eigenvalues of a real symmetric matrix.
///
/// \param[in]     n    order of A, at least 1
/// \param[in,out] a    n rows of `tda`: the lower triangle of A, element (i, j) at `a[i * tda + j]`, from 0; the rest of the
///                     array is not read. Overwritten
/// \param[in]     tda  length of a row of a, at least n
/// \param[out]    r    n elements: the eigenvalues in ascending order
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: n is less than 1.
/// - NE_2_INT_ARG_LT: `tda` is less than n.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_TOO_MANY_ITERATIONS: the iteration has not converged, as it does not if A holds a NaN or an infinity; r is of no use.
///
/// \par Accuracy
/// Each error is at most a small multiple of n times the precision times the greatest eigenvalue in modulus.
/// \par Method
/// Reduction to tridiagonal form by reflections, then implicit QL steps (up to order 40), or LAPACK's blocked reduction and
/// root-free QR iteration. B. N. Parlett, The Symmetric Eigenvalue Problem (1980).
/// \par Thread safety
/// Safe.
/// \par See also
/// f02abc() finds the eigenvectors as well.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double a[] = {2.0, 0.0,  1.0, 2.0}, r[2];
/// f02aac(2, a, 2, r, &fail);            // r = {1, 3}
/// \endcode
void f02aac(Integer n, double a[], Integer tda, double r[], KorError *fail);

/// \brief All eigenvalues and eigenvectors of a real symmetric matrix.
///
/// \param[in]     n    order of A, at least 1
/// \param[in]     a    n rows of `tda`: the lower triangle of A; the rest is not read
/// \param[in]     tda  length of a row of a, at least n
/// \param[out]    r    n elements: the eigenvalues in ascending order
/// \param[out]    v    n rows of `tdv`: column j, the elements `v[i * tdv + j]`, is the eigenvector of `r[j]`; the vectors are
///                     orthogonal and of length 1. May be the array a, if `tdv` is `tda`
/// \param[in]     tdv  length of a row of v, at least n
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: n is less than 1.
/// - NE_2_INT_ARG_LT: `tda` or `tdv` is less than n.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_TOO_MANY_ITERATIONS: the iteration has not converged, as it does not if A holds a NaN or an infinity; r and v are of
///   no use.
///
/// \par Accuracy
/// |A v - r v| and |V'V - I| are at most a small multiple of n times the precision, the former times |A|. A vector is as
/// sharp as its eigenvalue stands apart from the others.
/// \par Method
/// As f02aac(); beyond order 40 LAPACK's divide and conquer.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double a[] = {2.0, 0.0,  1.0, 2.0}, r[2], v[4];
/// f02abc(2, a, 2, r, v, 2, &fail);      // r = {1, 3}; the columns of v: +-(0.707, -0.707), +-(0.707, 0.707)
/// \endcode
void f02abc(Integer n, const double a[], Integer tda, double r[], double v[], Integer tdv, KorError *fail);

/// \brief All eigenvalues of A x = lambda B x, A real symmetric, B real symmetric positive-definite.
///
/// \param[in]     n    order of the matrices, at least 1
/// \param[in,out] a    n rows of `tda`: the lower triangle of A; overwritten
/// \param[in]     tda  length of a row of a, at least n
/// \param[in,out] b    n rows of `tdb`: the lower triangle of B; the Cholesky factor L on return, B = LL'
/// \param[in]     tdb  length of a row of b, at least n
/// \param[out]    r    n elements: the eigenvalues in ascending order
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: n is less than 1.
/// - NE_2_INT_ARG_LT: `tda` or `tdb` is less than n.
/// - NE_NOT_POS_DEF: B is not positive definite, or not to working accuracy, or holds a NaN or an infinity.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_TOO_MANY_ITERATIONS: the iteration has not converged, as it does not if A holds a NaN or an infinity; r is of no use.
///
/// \par Accuracy
/// Errors are up to about n times the precision times |A| |B^-1|: small eigenvalues suffer if B is ill-conditioned.
/// \par Method
/// Cholesky factorisation of B, then f02aac() for L^-1 A L'^-1. R. S. Martin and J. H. Wilkinson, Numer. Math. 11 (1968)
/// 99-110.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double a[] = {2.0, 0.0,  0.0, 3.0}, b[] = {4.0, 0.0,  0.0, 2.0}, r[2];
/// f02adc(2, a, 2, b, 2, r, &fail);      // r = {0.5, 1.5}
/// \endcode
void f02adc(Integer n, double a[], Integer tda, double b[], Integer tdb, double r[], KorError *fail);

/// \brief All eigenvalues and eigenvectors of A x = lambda B x, A real symmetric, B real symmetric positive-definite.
///
/// \param[in]     n    order of the matrices, at least 1
/// \param[in,out] a    n rows of `tda`: the lower triangle of A; overwritten
/// \param[in]     tda  length of a row of a, at least n
/// \param[in,out] b    n rows of `tdb`: the lower triangle of B; the Cholesky factor L on return, B = LL'
/// \param[in]     tdb  length of a row of b, at least n
/// \param[out]    r    n elements: the eigenvalues in ascending order
/// \param[out]    v    n rows of `tdv`: the eigenvectors as columns, with x'Bx = 1 and x'By = 0. May be the array a, if `tdv`
///                     is `tda`
/// \param[in]     tdv  length of a row of v, at least n
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As f02adc(), and NE_2_INT_ARG_LT also if `tdv` is less than n.
/// \par Accuracy
/// As f02adc().
/// \par Method
/// As f02adc(), the vectors taken back by L'^-1.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double a[] = {2.0, 0.0,  0.0, 3.0}, b[] = {4.0, 0.0,  0.0, 2.0}, r[2], v[4];
/// f02aec(2, a, 2, b, 2, r, v, 2, &fail);   // r = {0.5, 1.5}; the columns of v: +-(0.5, 0), +-(0, 0.707)
/// \endcode
void f02aec(Integer n, double a[], Integer tda, double b[], Integer tdb, double r[], double v[], Integer tdv,
            KorError *fail);

/// \brief All eigenvalues of a complex Hermitian matrix.
///
/// \param[in]     n    order of A, at least 1
/// \param[in,out] a    n rows of `tda`: the lower triangle of A, with a real diagonal; overwritten
/// \param[in]     tda  length of a row of a, at least n
/// \param[out]    r    n elements: the eigenvalues in ascending order
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: n is less than 1.
/// - NE_2_INT_ARG_LT: `tda` is less than n.
/// - NE_DIAG_IMAG_NON_ZERO: an element of the diagonal has an imaginary part; the message tells which.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_TOO_MANY_ITERATIONS: the iteration has not converged, as it does not if A holds a NaN or an infinity; r is of no use.
///
/// \par Accuracy
/// As f02aac().
/// \par Method
/// As f02aac().
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex a[] = {{2.0, 0.0}, {0.0, 0.0},  {0.0, 1.0}, {2.0, 0.0}};
/// double r[2];
/// f02awc(2, a, 2, r, &fail);            // r = {1, 3}
/// \endcode
void f02awc(Integer n, Complex a[], Integer tda, double r[], KorError *fail);

/// \brief All eigenvalues and eigenvectors of a complex Hermitian matrix.
///
/// \param[in]     n    order of A, at least 1
/// \param[in]     a    n rows of `tda`: the lower triangle of A, with a real diagonal; the rest is not read
/// \param[in]     tda  length of a row of a, at least n
/// \param[out]    r    n elements: the eigenvalues in ascending order
/// \param[out]    v    n rows of `tdv`: the eigenvectors as columns, orthogonal and of length 1. May be the array a, if `tdv`
///                     is `tda`
/// \param[in]     tdv  length of a row of v, at least n
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As f02awc(), and NE_2_INT_ARG_LT also if `tdv` is less than n.
/// \par Accuracy
/// As f02abc().
/// \par Method
/// As f02abc().
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex a[] = {{2.0, 0.0}, {0.0, 0.0},  {0.0, 1.0}, {2.0, 0.0}}, v[4];
/// double r[2];
/// f02axc(2, a, 2, r, v, 2, &fail);      // r = {1, 3}; the columns of v: z (0.707, -0.707 i), z (0.707, 0.707 i), |z| = 1
/// \endcode
void f02axc(Integer n, const Complex a[], Integer tda, double r[], Complex v[], Integer tdv, KorError *fail);

/// \brief All eigenvalues of a real symmetric tridiagonal matrix.
///
/// \param[in]     n    order of the matrix, at least 1
/// \param[in]     eps  an element beside the diagonal is negligible at `eps` times the sum of its neighbours' moduli; what is
///                     below the machine precision x02ajc(), or NaN, counts as the precision
/// \param[in,out] d    n elements: the diagonal; the eigenvalues in ascending order on return
/// \param[in,out] e    n elements: beside the diagonal, element (i, i-1) in `e[i]`, as f01agc() leaves them; `e[0]` is not
///                     read. Zero on return
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: n is less than 1.
/// - NE_TOO_MANY_ITERATIONS: 30 n steps were not enough, as they are not if d or e holds a NaN or an infinity; d and e hold
///   the matrix as far as it was reduced.
///
/// \par Accuracy
/// Each error is at most a small multiple of n times `eps` times the greatest eigenvalue in modulus.
/// \par Method
/// Implicit QL or QR steps with Wilkinson's shift, from the end with the greater elements. A. Dubrulle, R. S. Martin and
/// J. H. Wilkinson, Numer. Math. 12 (1968) 377-383.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double d[] = {2.0, 2.0}, e[] = {0.0, 1.0};
/// f02avc(2, x02ajc(), d, e, &fail);       // d = {1, 3}
/// \endcode
void f02avc(Integer n, double eps, double d[], double e[], KorError *fail);

/// \brief All eigenvalues and eigenvectors of a real symmetric tridiagonal matrix, or of a symmetric one reduced to it.
///
/// \param[in]     n    order of the matrix, at least 1
/// \param[in]     eps  as in f02avc()
/// \param[in,out] d    n elements: the diagonal; the eigenvalues in ascending order on return
/// \param[in,out] e    n elements: beside the diagonal, element (i, i-1) in `e[i]`; zero on return
/// \param[in,out] z    n rows of `tdz`: the orthogonal matrix from f01ajc(), or the unit matrix for the vectors of the
///                     tridiagonal matrix itself; the eigenvectors as columns on return
/// \param[in]     tdz  length of a row of z, at least n
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: n is less than 1.
/// - NE_2_INT_ARG_LT: `tdz` is less than n.
/// - NE_TOO_MANY_ITERATIONS: as in f02avc(); z holds the transformation as far as it went, and is as it was if d or e holds a
///   NaN or an infinity.
///
/// \par Accuracy
/// As f02avc(); the vectors are orthogonal to a small multiple of n times the precision.
/// \par Method
/// As f02avc().
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double d[] = {2.0, 2.0}, e[] = {0.0, 1.0}, z[] = {1.0, 0.0,  0.0, 1.0};
/// f02amc(2, x02ajc(), d, e, z, 2, &fail); // d = {1, 3}; the columns of z: +-(0.707, -0.707), +-(0.707, 0.707)
/// \endcode
void f02amc(Integer n, double eps, double d[], double e[], double z[], Integer tdz, KorError *fail);

/// \brief All eigenvalues and eigenvectors of a Hermitian matrix that f01bcc() reduced to real tridiagonal form.
///
/// \param[in]     n    order of the matrix, at least 1
/// \param[in]     eps  as in f02avc()
/// \param[in,out] d    n elements: the diagonal; the eigenvalues in ascending order on return
/// \param[in,out] e    n elements: beside the diagonal, element (i, i-1) in `e[i]`; zero on return
/// \param[in,out] z    n rows of `tdz`: the unitary matrix from f01bcc(); the eigenvectors as columns on return
/// \param[in]     tdz  length of a row of z, at least n
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As f02amc().
/// \par Accuracy
/// As f02amc().
/// \par Method
/// As f02avc().
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// f01bcc(n, 0.0, a, n, d, e, tau);
/// f02ayc(n, x02ajc(), d, e, a, n, &fail); // d: the eigenvalues, a: the eigenvectors
/// \endcode
void f02ayc(Integer n, double eps, double d[], double e[], Complex z[], Integer tdz, KorError *fail);

// General matrices

/// \brief All eigenvalues of a real general matrix.
///
/// \param[in]     n    order of A, at least 1
/// \param[in,out] a    n rows of `tda`: A; overwritten
/// \param[in]     tda  length of a row of a, at least n
/// \param[out]    r    n elements: the eigenvalues in no particular order; of a complex pair the one with the positive
///                     imaginary part comes first, the other next
/// \param[out]    iter n elements: the number of steps that each eigenvalue took (of two that came together the second one's
///                     with a minus sign), or 0 where the linked LAPACK did the work
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: n is less than 1.
/// - NE_2_INT_ARG_LT: `tda` is less than n.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_TOO_MANY_ITERATIONS: the iteration has not converged, as it does not if A holds a NaN or an infinity; r is of no use.
///
/// \par Accuracy
/// The eigenvalues are those of a matrix that differs from A by a small multiple of n times the precision times |A|. One with
/// a chain of k vectors (a Jordan block of order k) moves by the k-th root of such a change.
/// \par Method
/// Balancing, reduction to Hessenberg form by reflections, QR steps with double shifts (up to order 64), or LAPACK's small-bulge
/// multishift QR. J. H. Wilkinson, The Algebraic Eigenvalue Problem (1965).
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double a[] = {0.0, -1.0,  1.0, 0.0};
/// Complex r[2];
/// Integer iter[2];
/// f02afc(2, a, 2, r, iter, &fail);      // r = {i, -i}
/// \endcode
void f02afc(Integer n, double a[], Integer tda, Complex r[], Integer iter[], KorError *fail);

/// \brief All eigenvalues and eigenvectors of a real general matrix.
///
/// \param[in]     n    order of A, at least 1
/// \param[in,out] a    n rows of `tda`: A; overwritten
/// \param[in]     tda  length of a row of a, at least n
/// \param[out]    r    n elements: the eigenvalues, as in f02afc()
/// \param[out]    v    n rows of `tdv`: column j is the eigenvector of `r[j]`, of length 1 and with its largest component real
///                     and positive
/// \param[in]     tdv  length of a row of v, at least n
/// \param[out]    iter n elements, as in f02afc()
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As f02afc(), and NE_2_INT_ARG_LT also if `tdv` is less than n.
/// \par Accuracy
/// |A v - r v| is at most a small multiple of n times the precision times |A|. The vectors of a matrix without a full set of
/// them come out nearly parallel. If the elements are of very different sizes the bound holds for the balanced matrix
/// B = D^-1 A D, |B u - r u| with v = D u, which keeps small eigenvalues sharp.
/// \par Method
/// As f02afc(), then back substitution in the Schur form. G. Peters and J. H. Wilkinson, Numer. Math. 16 (1970) 181-204.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double a[] = {0.0, -1.0,  1.0, 0.0};
/// Complex r[2], v[4];
/// Integer iter[2];
/// f02agc(2, a, 2, r, v, 2, iter, &fail);   // r = {i, -i}; the columns of v: (0.707, -0.707 i), (0.707, 0.707 i)
/// \endcode
void f02agc(Integer n, double a[], Integer tda, Complex r[], Complex v[], Integer tdv, Integer iter[], KorError *fail);

/// \brief All eigenvalues of a real upper Hessenberg matrix.
///
/// \param[in]     n     order of the matrix, at least 1
/// \param[in]     eps   relative size at which an element below the diagonal is negligible; what is below the machine
///                      precision x02ajc(), or NaN, counts as the precision
/// \param[in,out] h     n rows of `tdh`: the matrix, as f01akc() leaves it; below the subdiagonal nothing is read.
///                      Overwritten
/// \param[in]     tdh   length of a row of h, at least n
/// \param[out]    wr    n elements: real parts of the eigenvalues
/// \param[out]    wi    n elements: imaginary parts; of a pair the positive one first
/// \param[out]    count n elements: steps that each eigenvalue took; of two that came together the second one's with a minus
///                      sign
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: n is less than 1.
/// - NE_2_INT_ARG_LT: `tdh` is less than n.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_TOO_MANY_ITERATIONS: 30 n steps were not enough, as they are not if h holds a NaN or an infinity. The last elements of
///   wr and wi, as far as the iteration came, are eigenvalues.
///
/// \par Accuracy
/// As f02afc().
/// \par Method
/// QR steps with implicit double shifts, after every tenth step on an eigenvalue with exceptional ones. R. S. Martin,
/// G. Peters and J. H. Wilkinson, Numer. Math. 14 (1970) 219-231.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double h[] = {0.0, -1.0,  1.0, 0.0}, wr[2], wi[2];
/// Integer count[2];
/// f02apc(2, x02ajc(), h, 2, wr, wi, count, &fail);   // wr = {0, 0}, wi = {1, -1}
/// \endcode
void f02apc(Integer n, double eps, double h[], Integer tdh, double wr[], double wi[], Integer count[], KorError *fail);

/// \brief All eigenvalues and eigenvectors of a real upper Hessenberg matrix, or of a general one reduced to it.
///
/// \param[in]     n      order of the matrix, at least 1
/// \param[in]     low    first row, from 1, of the part that is not triangular, from f01atc(), or 1
/// \param[in]     high   last row of that part, or n
/// \param[in]     eps    as in f02apc()
/// \param[in,out] h      n rows of `tdh`: the matrix; its quasi-triangular Schur form on return
/// \param[in]     tdh    length of a row of h, at least n
/// \param[in,out] vecs   n rows of `tdvecs`: the matrix from f01apc(), or the unit matrix for the vectors of h itself. On
///                       return the eigenvectors: that of a real eigenvalue j in column j; real and imaginary part of that
///                       with the positive imaginary part of a pair j, j+1 in columns j and j+1. Length 1, largest component
///                       real and positive
/// \param[in]     tdvecs length of a row of vecs, at least n
/// \param[out]    wr     n elements: real parts of the eigenvalues
/// \param[out]    wi     n elements: imaginary parts; of a pair the positive one first
/// \param[out]    count  n elements, as in f02apc()
/// \param[in,out] fail   the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: n or `low` is less than 1.
/// - NE_2_INT_ARG_LT: `high` is less than `low`, or `tdh` or `tdvecs` less than n.
/// - NE_2_INT_ARG_GT: `high` is greater than n.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_TOO_MANY_ITERATIONS: as in f02apc(); vecs is of no use.
///
/// \par Accuracy
/// As f02agc(), if vecs was orthogonal.
/// \par Method
/// As f02agc().
/// \par Thread safety
/// Safe.
/// \par See also
/// f01auc() takes the vectors of a balanced matrix back; they have other lengths then.
/// \par Example
/// \code{.c}
/// double h[] = {1.0, 2.0,  0.0, 3.0}, vecs[] = {1.0, 0.0,  0.0, 1.0}, wr[2], wi[2];
/// Integer count[2];
/// f02aqc(2, 1, 2, x02ajc(), h, 2, vecs, 2, wr, wi, count, &fail);   // wr = {1, 3}; columns (1, 0), (0.707, 0.707)
/// \endcode
void f02aqc(Integer n, Integer low, Integer high, double eps, double h[], Integer tdh, double vecs[], Integer tdvecs,
            double wr[], double wi[], Integer count[], KorError *fail);

/// \brief Selected eigenvalues and eigenvectors of a real general matrix.
///
/// All eigenvalues are found; eigenvectors only of those whose modulus or real part is in a range.
///
/// \param[in]     crit Kor_Select_Modulus or Kor_Select_RealPart: what must be in the range
/// \param[in]     n    order of A, not negative
/// \param[in]     a    n rows of `tda`: A; not changed
/// \param[in]     tda  length of a row of a, at least max(1, n)
/// \param[in]     wl   lower end of the range, which belongs to it; may be negative
/// \param[in]     wu   upper end of the range, which belongs to it, greater than `wl`
/// \param[in]     mest number of eigenvectors for which v has room, at least 1; a complex pair counts as two
/// \param[out]    m    number of eigenvalues in the range
/// \param[out]    w    n elements: the `m` selected eigenvalues, then the others; of a complex pair the one with the positive
///                     imaginary part comes first
/// \param[out]    v    n rows of `tdv`: column j, j less than `m`, is the eigenvector of `w[j]`, of length 1 and with its
///                     largest component real and positive
/// \param[in]     tdv  length of a row of v, at least max(1, mest)
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `crit` is neither of the two.
/// - NE_INT_ARG_LT: n is negative, or `mest` less than 1.
/// - NE_INT_2: `tda` is less than max(1, n), or `tdv` less than max(1, `mest`).
/// - NE_2_REAL_ARG_LE: `wu` is not greater than `wl`.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_TOO_MANY_ITERATIONS: the eigenvalues could not all be found, as they cannot if A holds a NaN or an infinity.
/// - NE_REQD_EIGVAL: more than `mest` eigenvalues are in the range; `m` is their number and w is set, v is not.
/// - NE_EIGVEC: inverse iteration has failed for at least one eigenvector: its column is zero, the rest is set.
///
/// \par Accuracy
/// As f02agc().
/// \par Method
/// Balancing, Hessenberg form, QR iteration for the eigenvalues, inverse iteration on the Hessenberg matrix, all by LAPACK.
/// J. H. Wilkinson and C. Reinsch, Linear Algebra (1971), contribution II/18.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 2.0,  0.0, 3.0};
/// Complex w[2], v[2];
/// Integer m;
/// f02ecc(Kor_Select_Modulus, 2, a, 2, 2.0, 4.0, 1, &m, w, v, 1, &fail);   // m = 1, w[0] = 3, v = (0.707, 0.707)
/// \endcode
void f02ecc(Integer crit, Integer n, double a[], Integer tda, double wl, double wu, Integer mest, Integer *m,
            Complex w[], Complex v[], Integer tdv, KorError *fail);

/// \brief Selected eigenvalues and eigenvectors of a complex general matrix.
///
/// As f02ecc(), for a complex matrix, whose eigenvalues are in no particular order.
///
/// \param[in]     crit Kor_Select_Modulus or Kor_Select_RealPart: what must be in the range
/// \param[in]     n    order of A, not negative
/// \param[in]     a    n rows of `tda`: A; not changed
/// \param[in]     tda  length of a row of a, at least max(1, n)
/// \param[in]     wl   lower end of the range, which belongs to it
/// \param[in]     wu   upper end of the range, which belongs to it, greater than `wl`
/// \param[in]     mest number of eigenvectors for which v has room, at least 1
/// \param[out]    m    number of eigenvalues in the range
/// \param[out]    w    n elements: the `m` selected eigenvalues, then the others
/// \param[out]    v    n rows of `tdv`: column j, j less than `m`, is the eigenvector of `w[j]`, of length 1 and with its
///                     largest component real and positive
/// \param[in]     tdv  length of a row of v, at least max(1, mest)
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As f02ecc().
/// \par Accuracy
/// As f02agc().
/// \par Method
/// As f02ecc().
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex a[] = {{0.0, 1.0}, {0.0, 0.0},  {0.0, 0.0}, {3.0, 0.0}}, w[2], v[2];
/// Integer m;
/// f02gcc(Kor_Select_RealPart, 2, a, 2, 1.0, 4.0, 1, &m, w, v, 1, &fail);   // m = 1, w[0] = 3, v = (0, 1)
/// \endcode
void f02gcc(Integer crit, Integer n, Complex a[], Integer tda, double wl, double wu, Integer mest, Integer *m,
            Complex w[], Complex v[], Integer tdv, KorError *fail);

/// \brief Eigenvalues and eigenvectors of a pair of real matrices, A x = lambda B x, by the QZ algorithm.
///
/// B may be singular: an eigenvalue is given as a quotient lambda = alfa/beta, infinite if beta = 0 and alfa is not. If both
/// are 0 (or negligible), the pair is singular: det(A - lambda B) = 0 for all lambda, and then the other quotients may have
/// any value as well.
///
/// \param[in]     n     order of the matrices, at least 1
/// \param[in,out] a     n rows of `tda`: A; overwritten
/// \param[in]     tda   length of a row of a, at least n
/// \param[in,out] b     n rows of `tdb`: B; overwritten
/// \param[in]     tdb   length of a row of b, at least n
/// \param[in]     tol   diagonal elements of the triangular pair at or below `tol` times the Euclidean norm of A, or of B,
///                      count as zero: uncertainty of the data. With 0, or less than the machine precision, only rounding
///                      errors are allowed for, and alfa and beta are what the algorithm finds
/// \param[out]    alfa  n elements; of a complex pair the one with the positive imaginary part comes first
/// \param[out]    beta  n elements, not negative
/// \param[in]     wantv whether eigenvectors are wanted
/// \param[out]    v     if so, n rows of `tdv`: the eigenvector of a real eigenvalue j in column j; real and imaginary part of
///                      that with the positive imaginary part of a pair j, j+1 in columns j and j+1. The largest component is
///                      1. Else not used, may be null
/// \param[in]     tdv   length of a row of v, at least n if vectors are wanted
/// \param[out]    iter  n elements: 0, the steps of the linked LAPACK are not told
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: n is less than 1.
/// - NE_2_INT_ARG_LT: `tda` or `tdb`, or, if vectors are wanted, `tdv` is less than n.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_ITERATIONS_QZ: the iteration has not converged, as it does not if A or B holds a NaN or an infinity.
///
/// \par Accuracy
/// |beta A x - alfa B x| is at most a small multiple of n times the precision times |beta| |A| + |alfa| |B|.
/// \par Method
/// Balancing by permutations, Hessenberg-triangular form, QZ steps, back substitution, by LAPACK. C. B. Moler and
/// G. W. Stewart, SIAM J. Numer. Anal. 10 (1973) 241-256.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 0.0,  0.0, 2.0}, b[] = {1.0, 0.0,  0.0, 0.0}, beta[2], v[4];
/// Complex alfa[2];
/// Integer iter[2];
/// f02bjc(2, a, 2, b, 2, 0.0, alfa, beta, 1, v, 2, iter, &fail);   // alfa = {1, 2}, beta = {1, 0}, v = I
/// \endcode
void f02bjc(Integer n, double a[], Integer tda, double b[], Integer tdb, double tol, Complex alfa[], double beta[],
            Boolean wantv, double v[], Integer tdv, Integer iter[], KorError *fail);

// Singular values

/// \brief Singular value decomposition of a real rectangular matrix.
///
/// A = Q S P' with Q and P orthogonal and S zero but for the singular values on its diagonal, which are not negative. The
/// first r = min(m, n) columns of Q and rows of P' are the singular vectors.
///
/// \param[in]     m        number of rows of A, not negative
/// \param[in]     n        number of columns, not negative. With m or n 0 there is nothing to do
/// \param[in,out] a        m rows of `tda`: A. On return, if m >= n: with `wantq` the first n columns of Q; with `wantp` alone
///                         P' in the first n rows. If m < n: with `wantp` the first m rows of P'. Else overwritten
/// \param[in]     tda      length of a row of a, at least n
/// \param[in]     ncolb    number of columns of b, not negative
/// \param[in,out] b        m rows of `tdb`: becomes Q'b, Q with all its m columns; not used if `ncolb` is 0, may be null
/// \param[in]     tdb      length of a row of b, at least `ncolb`
/// \param[in]     wantq    whether the left-hand vectors are wanted
/// \param[out]    q        if so, and m < n, m rows of `tdq`: Q. Else not used, may be null
/// \param[in]     tdq      length of a row of q, at least m if q is used
/// \param[out]    sv       min(m, n) elements: the singular values in descending order
/// \param[in]     wantp    whether the right-hand vectors are wanted
/// \param[out]    pt       if so, and m >= n, and the left-hand vectors are wanted too, n rows of `tdpt`: P'. Else not used,
///                         may be null
/// \param[in]     tdpt     length of a row of pt, at least n if pt is used
/// \param[out]    iter     steps that the iteration took, or 0 where the linked LAPACK did the work
/// \param[out]    e        min(m, n) - 1 elements: what the iteration left above the diagonal, zero after success; may be null
/// \param[out]    failinfo number of singular values that have not converged, 0 after success
/// \param[in,out] fail     the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: m, n or `ncolb` is negative.
/// - NE_2_INT_ARG_LT: `tda` is less than n, or `tdb` less than `ncolb`.
/// - NE_TDQ_LT_M: m < n, left-hand vectors are wanted, and `tdq` is less than m.
/// - NE_TDP_LT_N: m >= n, vectors of both sides are wanted, and `tdpt` is less than n.
/// - NE_ALLOC_FAIL: there is not enough memory; b may have been transformed already.
/// - NE_QR_NOT_CONV: 50 min(m, n) steps were not enough, as they are not if A holds a NaN or an infinity (then all values
///   count as not converged). `failinfo` tells how many singular values may be wrong; vectors are of no use.
///
/// \par Accuracy
/// Each error of a singular value is at most a small multiple of max(m, n) times the precision times the greatest one;
/// |A - Q S P'| and |Q'Q - I| likewise.
/// \par Method
/// Reduction to bidiagonal form by reflections, then QR steps, without shift where the small values need it (smaller matrices:
/// min(m, n) up to 40 and m n up to 4096), or LAPACK's blocked reduction and divide and conquer. G. H. Golub and C. Reinsch,
/// Numer. Math. 14 (1970) 403-420; J. Demmel and W. Kahan, SIAM J. Sci. Stat. Comput. 11 (1990) 873-912.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double a[] = {3.0, 0.0,  0.0, 0.0,  4.0, 0.0}, sv[2], pt[4], e[1];
/// Integer iter, failinfo;
/// f02wec(3, 2, a, 2, 0, 0, 0, 1, 0, 0, sv, 1, pt, 2, &iter, e, &failinfo, &fail);   // sv = {5, 0}
/// \endcode
void f02wec(Integer m, Integer n, double a[], Integer tda, Integer ncolb, double b[], Integer tdb, Boolean wantq,
            double q[], Integer tdq, double sv[], Boolean wantp, double pt[], Integer tdpt, Integer *iter, double e[],
            Integer *failinfo, KorError *fail);

/// \brief Singular value decomposition of a complex rectangular matrix.
///
/// A = Q S conj(P)' with Q and P unitary; arrays and errors as in f02wec().
///
/// \param[in]     m        number of rows of A, not negative
/// \param[in]     n        number of columns, not negative
/// \param[in,out] a        m rows of `tda`: A. On return, if m >= n: with `wantq` the first n columns of Q; with `wantp` alone
///                         conj(P)' in the first n rows. If m < n: with `wantp` the first m rows of conj(P)'. Else overwritten
/// \param[in]     tda      length of a row of a, at least n
/// \param[in]     ncolb    number of columns of b, not negative
/// \param[in,out] b        m rows of `tdb`: becomes conj(Q)'b; not used if `ncolb` is 0, may be null
/// \param[in]     tdb      length of a row of b, at least `ncolb`
/// \param[in]     wantq    whether the left-hand vectors are wanted
/// \param[out]    q        if so, and m < n, m rows of `tdq`: Q. Else not used, may be null
/// \param[in]     tdq      length of a row of q, at least m if q is used
/// \param[out]    sv       min(m, n) elements: the singular values in descending order
/// \param[in]     wantp    whether the right-hand vectors are wanted
/// \param[out]    pt       if so, and m >= n, and the left-hand vectors are wanted too, n rows of `tdpt`: conj(P)'. Else not
///                         used, may be null
/// \param[in]     tdpt     length of a row of pt, at least n if pt is used
/// \param[out]    iter     steps that the iteration took, or 0 where the linked LAPACK did the work
/// \param[out]    e        min(m, n) - 1 elements: what the iteration left above the diagonal, zero after success; may be null
/// \param[out]    failinfo number of singular values that have not converged, 0 after success
/// \param[in,out] fail     the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As f02wec().
/// \par Accuracy
/// As f02wec().
/// \par Method
/// As f02wec(), by LAPACK from min(m, n) = 25 on; the bidiagonal matrix is real.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex a[] = {{0.0, 3.0}, {4.0, 0.0}};
/// double sv[1], e[1];
/// Integer iter, failinfo;
/// f02xec(2, 1, a, 1, 0, 0, 0, 0, 0, 0, sv, 0, 0, 0, &iter, e, &failinfo, &fail);   // sv = {5}
/// \endcode
void f02xec(Integer m, Integer n, Complex a[], Integer tda, Integer ncolb, Complex b[], Integer tdb, Boolean wantq,
            Complex q[], Integer tdq, double sv[], Boolean wantp, Complex pt[], Integer tdpt, Integer *iter, double e[],
            Integer *failinfo, KorError *fail);

/// \brief Singular value decomposition of a real upper triangular matrix, R = Q S P'.
///
/// \param[in]     n        order of R, not negative; with 0 there is nothing to do
/// \param[in,out] a        n rows of `tda`: R in the upper triangle, the rest is not read. With `wantp` P' on return, in the
///                         whole of it; else not changed
/// \param[in]     tda      length of a row of a, at least n
/// \param[in]     ncolb    number of columns of b, not negative
/// \param[in,out] b        n rows of `tdb`: becomes Q'b; not used if `ncolb` is 0, may be null
/// \param[in]     tdb      length of a row of b, at least `ncolb`
/// \param[in]     wantq    whether the left-hand vectors are wanted
/// \param[out]    q        if so, n rows of `tdq`: Q. Else not used, may be null
/// \param[in]     tdq      length of a row of q, at least n if q is used
/// \param[out]    sv       n elements: the singular values in descending order
/// \param[in]     wantp    whether the right-hand vectors are wanted
/// \param[out]    iter     steps that the iteration took, or 0 where the linked LAPACK did the work
/// \param[out]    e        n - 1 elements: what the iteration left above the diagonal, zero after success; may be null
/// \param[out]    failinfo number of singular values that have not converged, 0 after success
/// \param[in,out] fail     the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: n or `ncolb` is negative.
/// - NE_2_INT_ARG_LT: `tda` is less than n, or `tdb` less than `ncolb`.
/// - NE_TDQ_LT_N: left-hand vectors are wanted, and `tdq` is less than n.
/// - NE_ALLOC_FAIL: there is not enough memory; b may have been transformed already.
/// - NE_QR_NOT_CONV: 50 n steps were not enough, as they are not if R holds a NaN or an infinity. `failinfo` tells how many
///   singular values may be wrong; vectors are of no use.
///
/// \par Accuracy
/// As f02wec().
/// \par Method
/// As f02wec().
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double a[] = {3.0, 5.0,  0.0, 3.0}, sv[2], e[1];
/// Integer iter, failinfo;
/// f02wuc(2, a, 2, 0, 0, 0, 0, 0, 0, sv, 0, &iter, e, &failinfo, &fail);   // sv = {6.405, 1.405}
/// \endcode
void f02wuc(Integer n, double a[], Integer tda, Integer ncolb, double b[], Integer tdb, Boolean wantq, double q[],
            Integer tdq, double sv[], Boolean wantp, Integer *iter, double e[], Integer *failinfo, KorError *fail);

/// \brief Singular value decomposition of a complex upper triangular matrix, R = Q S conj(P)'.
///
/// \param[in]     n        order of R, not negative
/// \param[in,out] a        n rows of `tda`: R in the upper triangle, the rest is not read. With `wantp` conj(P)' on return, in
///                         the whole of it; else not changed
/// \param[in]     tda      length of a row of a, at least n
/// \param[in]     ncolb    number of columns of b, not negative
/// \param[in,out] b        n rows of `tdb`: becomes conj(Q)'b; not used if `ncolb` is 0, may be null
/// \param[in]     tdb      length of a row of b, at least `ncolb`
/// \param[in]     wantq    whether the left-hand vectors are wanted
/// \param[out]    q        if so, n rows of `tdq`: Q. Else not used, may be null
/// \param[in]     tdq      length of a row of q, at least n if q is used
/// \param[out]    sv       n elements: the singular values in descending order
/// \param[in]     wantp    whether the right-hand vectors are wanted
/// \param[out]    iter     steps that the iteration took, or 0 where the linked LAPACK did the work
/// \param[out]    e        n - 1 elements: what the iteration left above the diagonal, zero after success; may be null
/// \param[out]    failinfo number of singular values that have not converged, 0 after success
/// \param[in,out] fail     the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As f02wuc().
/// \par Accuracy
/// As f02wec().
/// \par Method
/// As f02xec().
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex a[] = {{0.0, 3.0}};
/// double sv[1];
/// Integer iter, failinfo;
/// f02xuc(1, a, 1, 0, 0, 0, 0, 0, 0, sv, 0, &iter, 0, &failinfo, &fail);   // sv = {3}
/// \endcode
void f02xuc(Integer n, Complex a[], Integer tda, Integer ncolb, Complex b[], Integer tdb, Boolean wantq, Complex q[],
            Integer tdq, double sv[], Boolean wantp, Integer *iter, double e[], Integer *failinfo, KorError *fail);

/// \brief Reduces a real upper triangular matrix to upper bidiagonal form, R = Q B P'.
///
/// \param[in]     n     order of R, not negative; with 0 there is nothing to do
/// \param[in,out] a     n rows of `tda`: R in the upper triangle. On return what f02sxc() needs of P stands above the diagonal;
///                      the diagonal and the rest are as they were
/// \param[in]     tda   length of a row of a, at least n
/// \param[out]    d     n elements: the diagonal of B
/// \param[out]    e     n - 1 elements: element (i, i+1) of B in `e[i]`
/// \param[in]     ncoly number of columns of y, not negative
/// \param[in,out] y     n rows of `tdy`: becomes Q'y; not used if `ncoly` is 0, may be null
/// \param[in]     tdy   length of a row of y, at least `ncoly`
/// \param[in]     wantq whether Q is wanted
/// \param[out]    q     if so, n rows of `tdq`: Q. Else not used, may be null
/// \param[in]     tdq   length of a row of q, at least n if q is used
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: n or `ncoly` is negative.
/// - NE_2_INT_ARG_LT: `tda` is less than n, or `tdy` less than `ncoly`.
/// - NE_TDQ_LT_N: Q is wanted, and `tdq` is less than n.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// \par Accuracy
/// |R - Q B P'| is at most a small multiple of n times the precision times |R|; Q and P are orthogonal to a small multiple of n
/// times the precision.
/// \par Method
/// Householder reflections of columns and rows by turns. G. H. Golub and C. Reinsch, Numer. Math. 14 (1970) 403-420.
/// \par Thread safety
/// Safe.
/// \par See also
/// f02sxc() forms or applies P'; f02syc() goes on to the singular values.
/// \par Example
/// \code{.c}
/// f02swc(n, a, n, d, e, 0, 0, 0, 1, q, n, &fail);
/// f02sxc(n, a, n, 0, 0, 0, &fail);      // R = Q B P', P' in a
/// \endcode
void f02swc(Integer n, double a[], Integer tda, double d[], double e[], Integer ncoly, double y[], Integer tdy,
            Boolean wantq, double q[], Integer tdq, KorError *fail);

/// \brief Reduces a complex upper triangular matrix to real upper bidiagonal form, R = Q B conj(P)'.
///
/// \param[in]     n     order of R, not negative
/// \param[in,out] a     n rows of `tda`: R in the upper triangle. On return what f02uxc() needs of P stands above the diagonal;
///                      the diagonal and the rest are as they were
/// \param[in]     tda   length of a row of a, at least n
/// \param[out]    d     n elements: the diagonal of B
/// \param[out]    e     n - 1 elements: element (i, i+1) of B in `e[i]`
/// \param[in]     ncoly number of columns of y, not negative
/// \param[in,out] y     n rows of `tdy`: becomes conj(Q)'y; not used if `ncoly` is 0, may be null
/// \param[in]     tdy   length of a row of y, at least `ncoly`
/// \param[in]     wantq whether Q is wanted
/// \param[out]    q     if so, n rows of `tdq`: Q. Else not used, may be null
/// \param[in]     tdq   length of a row of q, at least n if q is used
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As f02swc().
/// \par Accuracy
/// As f02swc().
/// \par Method
/// As f02swc(), by reflections with real results.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// f02uwc(n, a, n, d, e, 0, 0, 0, 1, q, n, &fail);
/// f02uxc(n, a, n, 0, 0, 0, &fail);      // R = Q B conj(P)', conj(P)' in a
/// \endcode
void f02uwc(Integer n, Complex a[], Integer tda, double d[], double e[], Integer ncoly, Complex y[], Integer tdy,
            Boolean wantq, Complex q[], Integer tdq, KorError *fail);

/// \brief Applies the right-hand matrix of the reduction f02swc(): y := P'y; or forms P'.
///
/// \param[in]     n     order of the matrix, not negative
/// \param[in,out] a     n rows of `tda`: as f02swc() left it; if `ncoly` is 0 P' on return, in the whole of it, else not changed
/// \param[in]     tda   length of a row of a, at least n
/// \param[in]     ncoly number of columns of y, not negative; 0 asks for P'
/// \param[in,out] y     n rows of `tdy`: becomes P'y; not used if `ncoly` is 0, may be null
/// \param[in]     tdy   length of a row of y, at least `ncoly`
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: n or `ncoly` is negative.
/// - NE_2_INT_ARG_LT: `tda` is less than n, or `tdy` less than `ncoly`.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// \par Accuracy
/// As f02swc().
/// \par Method
/// As f02swc().
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// f02sxc(n, a, n, 1, y, 1, &fail);      // after f02swc(): y := P'y
/// \endcode
void f02sxc(Integer n, double a[], Integer tda, Integer ncoly, double y[], Integer tdy, KorError *fail);

/// \brief Applies the right-hand matrix of the reduction f02uwc(): y := conj(P)'y; or forms conj(P)'.
///
/// \param[in]     n     order of the matrix, not negative
/// \param[in,out] a     n rows of `tda`: as f02uwc() left it; if `ncoly` is 0 conj(P)' on return, in the whole of it, else not
///                      changed
/// \param[in]     tda   length of a row of a, at least n
/// \param[in]     ncoly number of columns of y, not negative; 0 asks for conj(P)'
/// \param[in,out] y     n rows of `tdy`: becomes conj(P)'y; not used if `ncoly` is 0, may be null
/// \param[in]     tdy   length of a row of y, at least `ncoly`
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As f02sxc().
/// \par Accuracy
/// As f02swc().
/// \par Method
/// As f02swc().
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// f02uxc(n, a, n, 1, y, 1, &fail);      // after f02uwc(): y := conj(P)'y
/// \endcode
void f02uxc(Integer n, Complex a[], Integer tda, Integer ncoly, Complex y[], Integer tdy, KorError *fail);

/// \brief Singular value decomposition of a real upper bidiagonal matrix, B = Q S P', its vectors applied to real matrices.
///
/// \param[in]     n        order of B, not negative
/// \param[in,out] d        n elements: the diagonal of B; the singular values in descending order on return
/// \param[in,out] e        n - 1 elements: element (i, i+1) of B in `e[i]`; zero on return
/// \param[in]     ncolb    number of columns of b, not negative
/// \param[in,out] b        n rows of `tdb`: becomes Q'b; not used if `ncolb` is 0, may be null
/// \param[in]     tdb      length of a row of b, at least `ncolb`
/// \param[in]     nrowy    number of rows of y, not negative
/// \param[in,out] y        `nrowy` rows of `tdy`: becomes y Q; not used if `nrowy` is 0, may be null
/// \param[in]     tdy      length of a row of y, at least n if y is used
/// \param[in]     ncolz    number of columns of z, not negative
/// \param[in,out] z        n rows of `tdz`: becomes P'z; not used if `ncolz` is 0, may be null
/// \param[in]     tdz      length of a row of z, at least `ncolz`
/// \param[out]    iter     steps that the iteration took
/// \param[out]    failinfo number of singular values that have not converged, 0 after success
/// \param[in,out] fail     the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: n, `ncolb`, `nrowy` or `ncolz` is negative.
/// - NE_2_INT_ARG_LT: `tdb` is less than `ncolb`, `tdy` less than n, or `tdz` less than `ncolz`.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_QR_NOT_CONV: 50 n steps were not enough, as they are not if d or e holds a NaN or an infinity (then all values count
///   as not converged). `failinfo` tells how many may be wrong; d and e hold the matrix as far as it was reduced.
///
/// \par Accuracy
/// High relative accuracy: each singular value, however small, is right to a small multiple of n times the precision times
/// itself.
/// \par Method
/// QR steps, without shift where the small values need it, from the end with the greater elements. J. Demmel and W. Kahan,
/// SIAM J. Sci. Stat. Comput. 11 (1990) 873-912.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double d[] = {3.0, 3.0}, e[] = {5.0};
/// Integer iter, failinfo;
/// f02syc(2, d, e, 0, 0, 0, 0, 0, 0, 0, 0, 0, &iter, &failinfo, &fail);   // d = {6.405, 1.405}
/// \endcode
void f02syc(Integer n, double d[], double e[], Integer ncolb, double b[], Integer tdb, Integer nrowy, double y[],
            Integer tdy, Integer ncolz, double z[], Integer tdz, Integer *iter, Integer *failinfo, KorError *fail);

/// \brief Singular value decomposition of a real upper bidiagonal matrix, B = Q S P', its vectors applied to complex matrices.
///
/// \param[in]     n        order of B, not negative
/// \param[in,out] d        n elements: the diagonal of B; the singular values in descending order on return
/// \param[in,out] e        n - 1 elements: element (i, i+1) of B in `e[i]`; zero on return
/// \param[in]     ncolb    number of columns of b, not negative
/// \param[in,out] b        n rows of `tdb`: becomes Q'b; not used if `ncolb` is 0, may be null
/// \param[in]     tdb      length of a row of b, at least `ncolb`
/// \param[in]     nrowy    number of rows of y, not negative
/// \param[in,out] y        `nrowy` rows of `tdy`: becomes y Q; not used if `nrowy` is 0, may be null
/// \param[in]     tdy      length of a row of y, at least n if y is used
/// \param[in]     ncolz    number of columns of z, not negative
/// \param[in,out] z        n rows of `tdz`: becomes P'z; not used if `ncolz` is 0, may be null
/// \param[in]     tdz      length of a row of z, at least `ncolz`
/// \param[out]    iter     steps that the iteration took
/// \param[out]    failinfo number of singular values that have not converged, 0 after success
/// \param[in,out] fail     the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As f02syc().
/// \par Accuracy
/// As f02syc().
/// \par Method
/// As f02syc().
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// f02uwc(n, a, n, d, e, 0, 0, 0, 1, q, n, &fail);
/// f02uxc(n, a, n, 0, 0, 0, &fail);
/// f02uyc(n, d, e, 0, 0, 0, n, q, n, n, a, n, &iter, &failinfo, &fail);   // R = q S a
/// \endcode
void f02uyc(Integer n, double d[], double e[], Integer ncolb, Complex b[], Integer tdb, Integer nrowy, Complex y[],
            Integer tdy, Integer ncolz, Complex z[], Integer tdz, Integer *iter, Integer *failinfo, KorError *fail);

/// \brief Singular values of a real upper bidiagonal matrix, B = Q S P', for least-squares solvers.
///
/// \param[in]     n      order of B, at least 1
/// \param[in]     d      n elements: the diagonal of B; not changed
/// \param[in]     e      n - 1 elements: element (i, i+1) of B in `e[i]`; not changed
/// \param[out]    sv     n elements: the singular values in descending order
/// \param[in]     want_b whether b is to be transformed
/// \param[in,out] b      if so, n elements: becomes Q'b. Else not used, may be null
/// \param[in]     want_y whether y is to be transformed
/// \param[in,out] y      if so, n rows of `tdy`: becomes Q'y. Else not used, may be null
/// \param[in]     tdy    length of a row of y, at least `ncol_y`
/// \param[in]     ncol_y number of columns of y, not negative
/// \param[in]     want_z whether z is to be transformed
/// \param[in,out] z      if so, n rows of `tdz`: becomes P'z. Else not used, may be null
/// \param[in]     tdz    length of a row of z, at least `ncol_z`
/// \param[in]     ncol_z number of columns of z, not negative
/// \param[out]    work   n elements: what the iteration left above the diagonal in the first n - 1
/// \param[in,out] fail   the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: n is less than 1; or `ncol_y` or `ncol_z` is negative.
/// - NE_2_INT_ARG_LT: `tdy` is less than `ncol_y`, or `tdz` less than `ncol_z`.
/// - NE_QR_FAIL_CONV: 50 n steps were not enough, as they are not if d or e holds a NaN or an infinity.
///
/// \par Accuracy
/// As f02syc().
/// \par Method
/// As f02syc().
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double d[] = {3.0, 3.0}, e[] = {5.0}, sv[2], work[2];
/// f02szc(2, d, e, sv, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, work, &fail);   // sv = {6.405, 1.405}
/// \endcode
void f02szc(Integer n, double d[], double e[], double sv[], Boolean want_b, double b[], Boolean want_y, double y[],
            Integer tdy, Integer ncol_y, Boolean want_z, double z[], Integer tdz, Integer ncol_z, double work[],
            KorError *fail);

/// \brief Singular value decomposition of a real matrix with no more rows than columns, A = Q (S 0) P', for least-squares
/// solvers.
///
/// \param[in]     m     number of rows of A, at least 1
/// \param[in]     n     number of columns, at least m
/// \param[in,out] a     m rows of `tda`: A; the first m rows of P' on return
/// \param[in]     tda   length of a row of a, at least n
/// \param[in]     wantb whether b is to be transformed
/// \param[in,out] b     if so, m elements: becomes Q'b. Else not used, may be null
/// \param[out]    sv    m elements: the singular values in descending order
/// \param[out]    work  `lwork` elements: what the iteration left above the diagonal in the first m - 1, zero after success
/// \param[in]     lwork length of work, at least m
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: m is less than 1.
/// - NE_2_INT_ARG_LT: n is less than m, `tda` less than n, or `lwork` less than m.
/// - NE_ALLOC_FAIL: there is not enough memory; b may have been transformed already.
/// - NE_QR_FAIL_CONV: 50 m steps were not enough, as they are not if A holds a NaN or an infinity.
///
/// \par Accuracy
/// As f02wec().
/// \par Method
/// As f02wec().
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double a[] = {3.0, 4.0}, b[] = {10.0}, sv[1], work[1];
/// f02wbc(1, 2, a, 2, 1, b, sv, work, 1, &fail);   // sv = {5}, a = +-(0.6, 0.8), b = +-10
/// \endcode
void f02wbc(Integer m, Integer n, double a[], Integer tda, Boolean wantb, double b[], double sv[], double work[],
            Integer lwork, KorError *fail);

/// \brief QR factorisation of a real matrix with at least as many rows as columns, and the singular value decomposition of R
/// where the rank is in doubt, for least-squares solvers.
///
/// A = Q (R; 0). If the condition number of R in the Euclidean norm, |R| |R^-1|, times `tol` is at most 1, the rank is n. Else
/// R = U S P', and the rank is the number of singular values above `tol` times the greatest.
///
/// \param[in]     m      number of rows of A, at least n
/// \param[in]     n      number of columns, at least 1
/// \param[in,out] a      m rows of `tda`: A. On return R in the upper triangle, and below the diagonal the vectors of the
///                       reflections, as f01qcc() leaves them, for f01qdc() and f01qec()
/// \param[in]     tda    length of a row of a, at least n
/// \param[in]     wantb  whether b is to be transformed
/// \param[in,out] b      if so, m elements: becomes Q'b, and if `svd` the first n elements of that are multiplied by U'. Else
///                       not used, may be null
/// \param[in]     tol    relative uncertainty of the elements of A
/// \param[out]    svd    whether the singular value decomposition was taken
/// \param[out]    irank  the rank
/// \param[out]    z      n elements: the scalars of the reflections, 0 where there is none
/// \param[out]    sv     n elements: if `svd` the singular values in descending order, else not set
/// \param[in]     wantr  whether R is wanted in r
/// \param[out]    r      if so, n rows of `tdr`: R, with zeros below the diagonal. Else not used, may be null
/// \param[in]     tdr    length of a row of r, at least n if r is used
/// \param[in]     wantpt whether P' is wanted
/// \param[out]    pt     if so, n rows of `tdpt`: if `svd` P', else not set. Not used if not wanted, may be null then
/// \param[in]     tdpt   length of a row of pt, at least n if pt is used
/// \param[out]    work   `lwork` elements of work space
/// \param[in]     lwork  length of work, at least n
/// \param[in,out] fail   the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: n is less than 1.
/// - NE_2_INT_ARG_LT: m, `tda`, `tdr`, `tdpt` or `lwork` is less than n.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_QR_FAIL_CONV: 50 n steps were not enough, as they are not if A holds a NaN or an infinity.
///
/// \par Accuracy
/// As f02wec().
/// \par Method
/// Householder reflections as f01qcc(); singular values of R as f02wuc().
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 1.0,  1.0, 1.0}, z[2], sv[2], work[2];
/// Boolean svd;
/// Integer irank;
/// f02wdc(2, 2, a, 2, 0, 0, 1e-10, &svd, &irank, z, sv, 0, 0, 0, 0, 0, 0, work, 2, &fail);   // svd = 1, irank = 1, sv[0] = 2
/// \endcode
void f02wdc(Integer m, Integer n, double a[], Integer tda, Boolean wantb, double b[], double tol, Boolean *svd,
            Integer *irank, double z[], double sv[], Boolean wantr, double r[], Integer tdr, Boolean wantpt,
            double pt[], Integer tdpt, double work[], Integer lwork, KorError *fail);

KOR_END_DECLS

#endif
