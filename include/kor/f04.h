/// \file f04.h
/// Chapter f04: linear equations and linear least squares.
///
/// Matrices are row-major, with the length of a row of the array after them; right-hand sides and solutions are the
/// columns of arrays with `nrhs` columns, and one alone is a vector with the row length 1.
#ifndef KOR_F04_H
#define KOR_F04_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief Solves real linear systems with the factors of f03afc().
///
/// Solves AX = B for several right-hand sides, from PA = LU.
///
/// \param[in]     n     order of A, at least 1
/// \param[in]     nrhs  number of right-hand sides, at least 1
/// \param[in]     a     n by n: L and U as f03afc() leaves them
/// \param[in]     tda   length of a row of the array `a`, at least `n`
/// \param[in]     pivot n elements: the interchanges, from f03afc()
/// \param[in,out] b     n by nrhs, element (i, j) at `b[i * tdb + j]`: the right-hand sides, one a column; the
///                      solutions on return
/// \param[in]     tdb   length of a row of the array `b`, at least `nrhs`
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` or `nrhs` is less than 1.
/// - NE_2_INT_ARG_LT: `tda` is less than `n`, or `tdb` than `nrhs`.
/// - NE_BAD_PARAM: `pivot` is not what a factorisation leaves: some `pivot[k]` does not lie between k + 1 and `n`.
/// - NE_SINGULAR: U has a zero on its diagonal.
///
/// After an error `b` is untouched.
/// \par Accuracy
/// Backward stable: the solution is exact for a matrix that differs from A by about n times the precision, relative to
/// its rows; its own error is that times the condition number of A.
/// \par Method
/// Substitution, in blocks where the order is large.
/// \par Thread safety
/// Safe.
/// \par See also
/// f04arc() factorises as well; f04ahc() refines the solutions to full accuracy.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 2.0, 3.0, 4.0}, b[] = {5.0, 11.0}, det;
/// Integer pivot[2], dete;
/// f03afc(2, a, 2, pivot, &det, &dete, &fail);
/// f04ajc(2, 1, a, 2, pivot, b, 1, &fail);   // b = {1, 2}
/// \endcode
void f04ajc(Integer n, Integer nrhs, const double a[], Integer tda, const Integer pivot[], double b[], Integer tdb,
            KorError *fail);

/// \brief Solves complex linear systems with the factors of f03ahc().
///
/// Solves AX = B for several right-hand sides, from PA = LU.
///
/// \param[in]     n     order of A, at least 1
/// \param[in]     nrhs  number of right-hand sides, at least 1
/// \param[in]     a     n by n: L and U as f03ahc() leaves them
/// \param[in]     tda   length of a row of the array `a`, at least `n`
/// \param[in]     pivot n elements: the interchanges, from f03ahc()
/// \param[in,out] b     n by nrhs, element (i, j) at `b[i * tdb + j]`: the right-hand sides, one a column; the
///                      solutions on return
/// \param[in]     tdb   length of a row of the array `b`, at least `nrhs`
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` or `nrhs` is less than 1.
/// - NE_2_INT_ARG_LT: `tda` is less than `n`, or `tdb` than `nrhs`.
/// - NE_BAD_PARAM: `pivot` is not what a factorisation leaves: some `pivot[k]` does not lie between k + 1 and `n`.
/// - NE_SINGULAR: U has a zero on its diagonal.
///
/// After an error `b` is untouched.
/// \par Accuracy
/// Backward stable: the solution is exact for a matrix that differs from A by about n times the precision, relative to
/// its rows; its own error is that times the condition number of A.
/// \par Method
/// Substitution, in blocks where the order is large.
/// \par Thread safety
/// Safe.
/// \par See also
/// f04adc() factorises as well.
/// \par Example
/// \code{.c}
/// Complex a[] = {{1.0, 1.0}, {2.0, 0.0}, {0.0, 1.0}, {3.0, 0.0}}, b[] = {{3.0, 1.0}, {3.0, 1.0}}, det;
/// Integer pivot[2], dete;
/// f03ahc(2, a, 2, pivot, &det, &dete, &fail);
/// f04akc(2, 1, a, 2, pivot, b, 1, &fail);   // b = {1, 1}
/// \endcode
void f04akc(Integer n, Integer nrhs, const Complex a[], Integer tda, const Integer pivot[], Complex b[], Integer tdb,
            KorError *fail);

/// \brief Solves real symmetric positive-definite systems with the factor of f03aec().
///
/// Solves AX = B for several right-hand sides, from A = LL'.
///
/// \param[in]     n    order of A, at least 1
/// \param[in]     nrhs number of right-hand sides, at least 1
/// \param[in]     a    n by n, as f03aec() leaves it: L below the diagonal; the rest is not read
/// \param[in]     tda  length of a row of the array `a`, at least `n`
/// \param[in]     p    n elements: the reciprocals of the diagonal of L, from f03aec()
/// \param[in]     b    n by nrhs, row-major: the right-hand sides, one a column
/// \param[in]     tdb  length of a row of the array `b`, at least `nrhs`
/// \param[out]    x    n by nrhs, row-major: the solutions; it may be `b` itself
/// \param[in]     tdx  length of a row of the array `x`, at least `nrhs`
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` or `nrhs` is less than 1.
/// - NE_2_INT_ARG_LT: `tda` is less than `n`, or `tdb` or `tdx` than `nrhs`.
/// - NE_NOT_POS_DEF_FACT: an element of `p` is not positive: this is no factor of a positive-definite matrix.
///
/// After an error `x` is untouched.
/// \par Accuracy
/// Backward stable: the solution is exact for a matrix that differs from A by about n times the precision, relative to
/// its rows; its own error is that times the condition number of A.
/// \par Method
/// Substitution in blocks, with L and its adjoint.
/// \par Thread safety
/// Safe.
/// \par See also
/// f04asc() factorises as well; f04afc() refines the solutions to full accuracy; f04awc() for Hermitian matrices.
/// \par Example
/// \code{.c}
/// double a[] = {4.0, 2.0, 0.0, 5.0}, p[2], det, b[] = {8.0, 12.0}, x[2];
/// Integer dete;
/// f03aec(2, a, 2, p, &det, &dete, &fail);
/// f04agc(2, 1, a, 2, p, b, 1, x, 1, &fail);   // x = {1, 2}
/// \endcode
void f04agc(Integer n, Integer nrhs, const double a[], Integer tda, const double p[], const double b[], Integer tdb,
            double x[], Integer tdx, KorError *fail);

/// \brief Solves complex Hermitian positive-definite systems with the factor of f01bnc().
///
/// Solves AX = B for several right-hand sides, from A = LL^H.
///
/// \param[in]     n    order of A, at least 1
/// \param[in]     nrhs number of right-hand sides, at least 1
/// \param[in]     a    n by n, as f01bnc() leaves it: L below the diagonal; the rest is not read
/// \param[in]     tda  length of a row of the array `a`, at least `n`
/// \param[in]     p    n elements: the reciprocals of the diagonal of L, from f01bnc()
/// \param[in]     b    n by nrhs, row-major: the right-hand sides, one a column
/// \param[in]     tdb  length of a row of the array `b`, at least `nrhs`
/// \param[out]    x    n by nrhs, row-major: the solutions; it may be `b` itself
/// \param[in]     tdx  length of a row of the array `x`, at least `nrhs`
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` or `nrhs` is less than 1.
/// - NE_2_INT_ARG_LT: `tda` is less than `n`, or `tdb` or `tdx` than `nrhs`.
/// - NE_NOT_POS_DEF_FACT: an element of `p` is not positive: this is no factor of a positive-definite matrix.
///
/// After an error `x` is untouched.
/// \par Accuracy
/// Backward stable: the solution is exact for a matrix that differs from A by about n times the precision, relative to
/// its rows; its own error is that times the condition number of A.
/// \par Method
/// Substitution in blocks, with L and its adjoint.
/// \par Thread safety
/// Safe.
/// \par See also
/// f01bnc() makes the factor; f04agc() for real matrices.
/// \par Example
/// \code{.c}
/// Complex a[] = {{2.0, 0.0}, {0.0, 1.0}, {0.0, 0.0}, {2.0, 0.0}}, b[] = {{2.0, 1.0}, {2.0, -1.0}}, x[2];
/// double p[2];
/// f01bnc(2, a, 2, p, &fail);
/// f04awc(2, 1, a, 2, p, b, 1, x, 1, &fail);   // x = {1, 1}
/// \endcode
void f04awc(Integer n, Integer nrhs, const Complex a[], Integer tda, const double p[], const Complex b[], Integer tdb,
            Complex x[], Integer tdx, KorError *fail);

/// \brief Solves one real linear system.
///
/// Solves Ax = b for a general matrix A, which stays.
///
/// \param[in]     n    order of A, at least 1
/// \param[in]     a    n by n, element (i, j) at `a[i * tda + j]`: A
/// \param[in]     tda  length of a row of the array `a`, at least `n`
/// \param[in]     b    n elements: the right-hand side
/// \param[out]    x    n elements: the solution; it may be `b` itself
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 1.
/// - NE_2_INT_ARG_LT: `tda` is less than `n`.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_SINGULAR: A is singular, or nearly so: a scaled pivot is less than 8 times the precision.
///
/// After an error `x` is untouched.
/// \par Accuracy
/// Backward stable: the solution is exact for a matrix that differs from A by about n times the precision, relative to
/// its rows; its own error is that times the condition number of A.
/// \par Method
/// As f03afc() and f04ajc(), on a copy of A.
/// \par Thread safety
/// Safe.
/// \par See also
/// f04aec() for several right-hand sides, to full accuracy; f04aac() for several, overwriting A; f04asc() for symmetric
/// positive-definite A.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 2.0, 3.0, 4.0}, b[] = {5.0, 11.0}, x[2];
/// f04arc(2, a, 2, b, x, &fail);   // x = {1, 2}
/// \endcode
void f04arc(Integer n, const double a[], Integer tda, const double b[], double x[], KorError *fail);

/// \brief Solves complex linear systems with several right-hand sides.
///
/// Solves AX = B for a general complex matrix A.
///
/// \param[in]     n    order of A, at least 1
/// \param[in]     nrhs number of right-hand sides, at least 1
/// \param[in]     a    n by n, element (i, j) at `a[i * tda + j]`: A; it stays
/// \param[in]     tda  length of a row of the array `a`, at least `n`
/// \param[in]     b    n by nrhs, row-major: the right-hand sides, one a column
/// \param[in]     tdb  length of a row of the array `b`, at least `nrhs`
/// \param[out]    x    n by nrhs, row-major: the solutions; it may be `b` itself
/// \param[in]     tdx  length of a row of the array `x`, at least `nrhs`
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` or `nrhs` is less than 1.
/// - NE_2_INT_ARG_LT: `tda` is less than `n`, or `tdb` or `tdx` than `nrhs`.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_SINGULAR: A is singular, or nearly so: a scaled pivot is less than 8 times the precision.
///
/// After an error `x` is untouched.
/// \par Accuracy
/// Backward stable: the solution is exact for a matrix that differs from A by about n times the precision, relative to
/// its rows; its own error is that times the condition number of A.
/// \par Method
/// As f03ahc() and f04akc(), on a copy of A.
/// \par Thread safety
/// Safe.
/// \par See also
/// f04akc() solves again with factors kept by f03ahc().
/// \par Example
/// \code{.c}
/// Complex a[] = {{1.0, 1.0}, {2.0, 0.0}, {0.0, 1.0}, {3.0, 0.0}}, b[] = {{3.0, 1.0}, {3.0, 1.0}}, x[2];
/// f04adc(2, 1, a, 2, b, 1, x, 1, &fail);   // x = {1, 1}
/// \endcode
void f04adc(Integer n, Integer nrhs, Complex a[], Integer tda, Complex b[], Integer tdb, Complex x[], Integer tdx,
            KorError *fail);

/// \brief Solves one real symmetric positive-definite system to full accuracy.
///
/// Solves Ax = b by A = LL' and iterative refinement.
///
/// \param[in]     n    order of A, at least 1
/// \param[in,out] a    n by n, element (i, j) at `a[i * tda + j]`: the upper triangle of A, which stays; on return L
///                     below the diagonal, as f03aec() leaves it
/// \param[in]     tda  length of a row of the array `a`, at least `n`
/// \param[in]     b    n elements: the right-hand side
/// \param[out]    x    n elements: the solution
/// \param[out]    p    n elements: the reciprocals of the diagonal of L
/// \param[out]    bb   n elements: the residual b - Ax, formed in doubled precision
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 1.
/// - NE_2_INT_ARG_LT: `tda` is less than `n`.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_NOT_POS_DEF: A is not positive definite; `x` and `bb` are untouched.
/// - NE_ITER_FAIL_CONV: A is too ill-conditioned for the refinement to converge; `x` and `bb` hold what was reached.
/// \par Accuracy
/// A solution that is returned with success is accurate to the last bit or two of its greatest component, whatever the
/// condition of A.
/// \par Method
/// Iterative refinement with residuals in doubled precision: J. H. Wilkinson and C. Reinsch, Linear Algebra (1971),
/// contributions I/2 and I/7. It stops when no correction exceeds 2 x02ajc() times its solution, and fails when a
/// correction is not at most half of the one before.
/// \par Thread safety
/// Safe.
/// \par See also
/// f04afc() refines with a factor at hand, for several right-hand sides; f04agc() does without refinement.
/// \par Example
/// \code{.c}
/// double a[] = {4.0, 2.0, 0.0, 5.0}, b[] = {8.0, 12.0}, x[2], p[2], rest[2];
/// f04asc(2, a, 2, b, x, p, rest, &fail);   // x = {1, 2}
/// \endcode
void f04asc(Integer n, double a[], Integer tda, const double b[], double x[], double p[], double bb[], KorError *fail);

/// \brief Solves real linear systems with several right-hand sides to full accuracy.
///
/// Solves AX = B by PA = LU and iterative refinement.
///
/// \param[in]     n    order of A, at least 1
/// \param[in]     nrhs number of right-hand sides, at least 1
/// \param[in]     a    n by n, element (i, j) at `a[i * tda + j]`: A
/// \param[in]     tda  length of a row of the array `a`, at least `n`
/// \param[in]     b    n by nrhs, row-major: the right-hand sides, one a column
/// \param[in]     tdb  length of a row of the array `b`, at least `nrhs`
/// \param[out]    x    n by nrhs, row-major: the solutions
/// \param[in]     tdx  length of a row of the array `x`, at least `nrhs`
/// \param[out]    aa   n by n, row-major: L and U, as f03afc() leaves them
/// \param[in]     tdaa length of a row of the array `aa`, at least `n`
/// \param[out]    bb   n by nrhs, row-major: the residuals B - AX, formed in doubled precision
/// \param[in]     tdbb length of a row of the array `bb`, at least `nrhs`
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` or `nrhs` is less than 1.
/// - NE_2_INT_ARG_LT: `tda` or `tdaa` is less than `n`, or `tdb`, `tdx` or `tdbb` than `nrhs`.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_SINGULAR: A is singular, or nearly so: a scaled pivot is less than 8 times the precision. `x` and `bb` are
///   untouched.
/// - NE_ITER_FAIL_CONV: A is too ill-conditioned for the refinement to converge; `x` and `bb` hold what was reached.
/// \par Accuracy
/// A solution that is returned with success is accurate to the last bit or two of its greatest component, whatever the
/// condition of A.
/// \par Method
/// Iterative refinement with residuals in doubled precision: J. H. Wilkinson and C. Reinsch, Linear Algebra (1971),
/// contributions I/2 and I/7. It stops when no correction exceeds 2 x02ajc() times its solution, and fails when a
/// correction is not at most half of the one before.
/// \par Thread safety
/// Safe.
/// \par See also
/// f04ahc() refines with factors at hand; f04arc() and f04aac() do without refinement.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 2.0, 3.0, 4.0}, b[] = {5.0, 11.0}, x[2], factors[4], rest[2];
/// f04aec(2, 1, a, 2, b, 1, x, 1, factors, 2, rest, 1, &fail);   // x = {1, 2}
/// \endcode
void f04aec(Integer n, Integer nrhs, const double a[], Integer tda, const double b[], Integer tdb, double x[],
            Integer tdx, double aa[], Integer tdaa, double bb[], Integer tdbb, KorError *fail);

/// \brief Solves real linear systems with the factors of f03afc() to full accuracy.
///
/// Solves AX = B by iterative refinement from PA = LU.
///
/// \param[in]     n          order of A, at least 1
/// \param[in]     nrhs       number of right-hand sides, at least 1
/// \param[in]     a          n by n, element (i, j) at `a[i * tda + j]`: A
/// \param[in]     tda        length of a row of the array `a`, at least `n`
/// \param[in]     aa         n by n: L and U, as f03afc() leaves them
/// \param[in]     tdaa       length of a row of the array `aa`, at least `n`
/// \param[in]     pivot      n elements: the interchanges, from f03afc()
/// \param[in]     b          n by nrhs, row-major: the right-hand sides, one a column
/// \param[in]     tdb        length of a row of the array `b`, at least `nrhs`
/// \param[out]    x          n by nrhs, row-major: the solutions
/// \param[in]     tdx        length of a row of the array `x`, at least `nrhs`
/// \param[out]    bb         n by nrhs, row-major: the residuals B - AX, formed in doubled precision
/// \param[in]     tdbb       length of a row of the array `bb`, at least `nrhs`
/// \param[out]    iterations number of solutions with the factors
/// \param[in,out] fail       the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` or `nrhs` is less than 1.
/// - NE_2_INT_ARG_LT: `tda` or `tdaa` is less than `n`, or `tdb`, `tdx` or `tdbb` than `nrhs`.
/// - NE_BAD_PARAM: `pivot` is not what a factorisation leaves.
/// - NE_SINGULAR: U has a zero on its diagonal.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_ITER_FAIL_CONV: A is too ill-conditioned for the refinement to converge; `x` and `bb` hold what was reached.
///
/// After all but the last the outputs are untouched.
/// \par Accuracy
/// A solution that is returned with success is accurate to the last bit or two of its greatest component, whatever the
/// condition of A.
/// \par Method
/// Iterative refinement with residuals in doubled precision: J. H. Wilkinson and C. Reinsch, Linear Algebra (1971),
/// contributions I/2 and I/7. It stops when no correction exceeds 2 x02ajc() times its solution, and fails when a
/// correction is not at most half of the one before.
/// \par Thread safety
/// Safe.
/// \par See also
/// f04aec() factorises as well; f04afc() for symmetric positive-definite A.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 2.0, 3.0, 4.0}, aa[] = {1.0, 2.0, 3.0, 4.0}, b[] = {5.0, 11.0}, x[2], rest[2], det;
/// Integer pivot[2], dete, iterations;
/// f03afc(2, aa, 2, pivot, &det, &dete, &fail);
/// f04ahc(2, 1, a, 2, aa, 2, pivot, b, 1, x, 1, rest, 1, &iterations, &fail);   // x = {1, 2}
/// \endcode
void f04ahc(Integer n, Integer nrhs, const double a[], Integer tda, const double aa[], Integer tdaa,
            const Integer pivot[], const double b[], Integer tdb, double x[], Integer tdx, double bb[], Integer tdbb,
            Integer *iterations, KorError *fail);

/// \brief Solves real symmetric positive-definite systems with the factor of f03aec() to full accuracy.
///
/// Solves AX = B by iterative refinement from A = LL'.
///
/// \param[in]     n          order of A, at least 1
/// \param[in]     nrhs       number of right-hand sides, at least 1
/// \param[in]     a          n by n, as f03aec() leaves it: A in the upper triangle, L below the diagonal
/// \param[in]     tda        length of a row of the array `a`, at least `n`
/// \param[in]     p          n elements: the reciprocals of the diagonal of L, from f03aec()
/// \param[in]     b          n by nrhs, row-major: the right-hand sides, one a column
/// \param[in]     tdb        length of a row of the array `b`, at least `nrhs`
/// \param[out]    x          n by nrhs, row-major: the solutions
/// \param[in]     tdx        length of a row of the array `x`, at least `nrhs`
/// \param[out]    bb         n by nrhs, row-major: the residuals B - AX, formed in doubled precision
/// \param[in]     tdbb       length of a row of the array `bb`, at least `nrhs`
/// \param[out]    iterations number of solutions with the factor
/// \param[in,out] fail       the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` or `nrhs` is less than 1.
/// - NE_2_INT_ARG_LT: `tda` is less than `n`, or `tdb`, `tdx` or `tdbb` than `nrhs`.
/// - NE_NOT_POS_DEF_FACT: an element of `p` is not positive.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_ITER_FAIL_CONV: A is too ill-conditioned for the refinement to converge; `x` and `bb` hold what was reached.
///
/// After all but the last the outputs are untouched.
/// \par Accuracy
/// A solution that is returned with success is accurate to the last bit or two of its greatest component, whatever the
/// condition of A.
/// \par Method
/// Iterative refinement with residuals in doubled precision: J. H. Wilkinson and C. Reinsch, Linear Algebra (1971),
/// contributions I/2 and I/7. It stops when no correction exceeds 2 x02ajc() times its solution, and fails when a
/// correction is not at most half of the one before.
/// \par Thread safety
/// Safe.
/// \par See also
/// f04asc() factorises as well, for one right-hand side.
/// \par Example
/// \code{.c}
/// double a[] = {4.0, 2.0, 0.0, 5.0}, p[2], det, b[] = {8.0, 12.0}, x[2], rest[2];
/// Integer dete, iterations;
/// f03aec(2, a, 2, p, &det, &dete, &fail);
/// f04afc(2, 1, a, 2, p, b, 1, x, 1, rest, 1, &iterations, &fail);   // x = {1, 2}
/// \endcode
void f04afc(Integer n, Integer nrhs, const double a[], Integer tda, const double p[], const double b[], Integer tdb,
            double x[], Integer tdx, double bb[], Integer tdbb, Integer *iterations, KorError *fail);

/// \brief Solves real linear systems with several right-hand sides, in the place of the matrix.
///
/// Solves AC = B for a general matrix A by PA = LU with partial pivoting; the rows are compared as they are, and no
/// other test for singularity is made than that for a pivot of exactly zero.
///
/// \param[in]     n    order of A, at least 1
/// \param[in]     nrhs number of right-hand sides, at least 1
/// \param[in,out] a    n by n, element (i, j) at `a[i * tda + j]`: A; on return U in the upper triangle, L without its
///                     diagonal of ones below
/// \param[in]     tda  length of a row of the array `a`, at least `n`
/// \param[in]     b    n by nrhs, row-major: the right-hand sides, one a column
/// \param[in]     tdb  length of a row of the array `b`, at least `nrhs`
/// \param[out]    c    n by nrhs, row-major: the solutions; it may be `b` itself
/// \param[in]     tdc  length of a row of the array `c`, at least `nrhs`
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` or `nrhs` is less than 1.
/// - NE_2_INT_ARG_LT: `tda` is less than `n`, or `tdb` or `tdc` than `nrhs`.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_SINGULAR: a pivot is exactly zero, or A holds a NaN; `a` is partly reduced, `c` untouched.
/// \par Accuracy
/// Backward stable: the solution is exact for a matrix that differs from A by about n times the precision, relative to
/// its rows; its own error is that times the condition number of A.
/// \par Method
/// Elimination with partial pivoting, on halves of the columns (S. Toledo, SIAM J. Matrix Anal. Appl. 18 (1997)
/// 1065-1081).
/// \par Thread safety
/// Safe.
/// \par See also
/// f04arc() keeps A, scales its rows and tests for near singularity; f04aec() refines.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 2.0, 3.0, 4.0}, b[] = {5.0, 11.0}, c[2];
/// f04aac(2, 1, a, 2, b, 1, c, 1, &fail);   // c = {1, 2}
/// \endcode
void f04aac(Integer n, Integer nrhs, double a[], Integer tda, const double b[], Integer tdb, double c[], Integer tdc,
            KorError *fail);

/// \brief Least squares of shortest length, with at least as many equations as unknowns, by singular values.
///
/// Finds the x for which |b - Ax| is least. With the singular value decomposition A = Q S P', and the singular values
/// that do not exceed `tol` s_1 taken for zero, x = P S^+ Q'b: among all x that make |b - Ax| least it is the shortest.
///
/// \param[in]     m     number of equations, at least `n`
/// \param[in]     n     number of unknowns, at least 1
/// \param[in,out] a     m by n, element (i, j) at `a[i * tda + j]`: A; on return its first n rows hold those of P'
/// \param[in]     tda   length of a row of the array `a`, at least `n`
/// \param[in,out] b     m elements: the right-hand side b, m of them; on return the first n are the solution x, and the
///                      others stay
/// \param[in]     tol   a singular value counts if it exceeds `tol` times the greatest: the relative uncertainty of the
///                      elements of A. What is not between x02ajc() and 1 is taken for x02ajc()
/// \param[out]    svd   1: singular values were computed
/// \param[out]    sigma |b - Ax| / sqrt(m - rank), an estimate of the standard deviation of the errors of b; 0 if the
///                      rank is m
/// \param[out]    irank the rank of A
/// \param[out]    work  4 n elements of work space; the first n hold the singular values, descending, and the others
///                      are not used
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 1.
/// - NE_2_INT_ARG_LT: `m` or `tda` is less than `n`.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_QR_FAIL_CONV: 50 n steps do not give the singular values, as they do not if A or b holds a NaN or an infinity.
///
/// After an error everything is untouched.
/// \par Accuracy
/// Backward stable: x solves exactly, in the sense above, a problem whose A differs by about max(m, n) times the
/// precision times |A|, with the same rank. Its error is that times the condition number, s_1 / s_rank, and, if the
/// residual is large, the square of it.
/// \par Method
/// Singular values as f02wec(): G. H. Golub and C. Reinsch, Numer. Math. 14 (1970) 403-420.
/// \par Thread safety
/// Safe.
/// \par See also
/// f04jgc() is quicker where A has full rank; f04yac() gives the covariances of x; f04jdc() for fewer equations than
/// unknowns.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 1.0,  1.0, 1.0,  1.0, 1.0}, b[] = {1.0, 2.0, 3.0}, sigma, work[8];
/// Boolean svd;
/// Integer irank;
/// f04jac(3, 2, a, 2, b, 1e-10, &svd, &sigma, &irank, work, &fail);   // irank = 1, x = {1, 1}, sigma = 1
/// \endcode
void f04jac(Integer m, Integer n, double a[], Integer tda, double b[], double tol, Boolean *svd, double *sigma,
            Integer *irank, double work[], KorError *fail);

/// \brief Least squares of shortest length, with at most as many equations as unknowns, by singular values.
///
/// Finds the shortest x for which |b - Ax| is least; if A has the rank m, Ax = b. With the singular value decomposition
/// A = Q S P', and the singular values that do not exceed `tol` s_1 taken for zero, x = P S^+ Q'b: among all x that
/// make |b - Ax| least it is the shortest.
///
/// \param[in]     m     number of equations, at least 1
/// \param[in]     n     number of unknowns, at least `m`
/// \param[in,out] a     m by n, element (i, j) at `a[i * tda + j]`: A; on return its first m rows hold those of P'
/// \param[in]     tda   length of a row of the array `a`, at least `n`
/// \param[in,out] b     n elements: the right-hand side b, m of them; on return the first n are the solution x
/// \param[in]     tol   a singular value counts if it exceeds `tol` times the greatest: the relative uncertainty of the
///                      elements of A. What is not between x02ajc() and 1 is taken for x02ajc()
/// \param[out]    svd   1: singular values were computed
/// \param[out]    sigma |b - Ax| / sqrt(m - rank), an estimate of the standard deviation of the errors of b; 0 if the
///                      rank is m
/// \param[out]    irank the rank of A
/// \param[out]    work  4 n elements of work space; the first m hold the singular values, descending, and the others
///                      are not used
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `m` is less than 1.
/// - NE_2_INT_ARG_LT: `n` is less than `m`, or `tda` than `n`.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_QR_FAIL_CONV: 50 n steps do not give the singular values, as they do not if A or b holds a NaN or an infinity.
///
/// After an error everything is untouched.
/// \par Accuracy
/// Backward stable: x solves exactly, in the sense above, a problem whose A differs by about max(m, n) times the
/// precision times |A|, with the same rank. Its error is that times the condition number, s_1 / s_rank, and, if the
/// residual is large, the square of it.
/// \par Method
/// Singular values as f02wec(): G. H. Golub and C. Reinsch, Numer. Math. 14 (1970) 403-420.
/// \par Thread safety
/// Safe.
/// \par See also
/// f04jac() for more equations than unknowns; f04jgc() for either.
/// \par Example
/// \code{.c}
/// double a[] = {3.0, 4.0}, b[] = {25.0, 0.0}, sigma, work[8];
/// Boolean svd;
/// Integer irank;
/// f04jdc(1, 2, a, 2, b, 1e-10, &svd, &sigma, &irank, work, &fail);   // x = {3, 4}: next to the origin
/// \endcode
void f04jdc(Integer m, Integer n, double a[], Integer tda, double b[], double tol, Boolean *svd, double *sigma,
            Integer *irank, double work[], KorError *fail);

/// \brief Least squares, by QR factorisation, or where the rank is in doubt the shortest by singular values.
///
/// Finds the x for which |b - Ax| is least. If m is at least n, A = QR is factorised. If the condition number |R|
/// |R^-1| in the Frobenius norm, which is not less than s_1 / s_n, times `tol` is at most 1, A has full rank and Rx =
/// Q'b. Else: With the singular value decomposition A = Q S P', and the singular values that do not exceed `tol` s_1
/// taken for zero, x = P S^+ Q'b: among all x that make |b - Ax| least it is the shortest.
///
/// \param[in]     m     number of equations, at least 1
/// \param[in]     n     number of unknowns, at least 1
/// \param[in,out] a     m by n, element (i, j) at `a[i * tda + j]`: A. On return, if not `*svd`, R and the reflections,
///                      as f01qcc() leaves them; else its first min(m, n) rows hold those of P'
/// \param[in]     tda   length of a row of the array `a`, at least `n`
/// \param[in,out] b     max(m, n) elements: the right-hand side b, m of them; on return the first n are the solution x,
///                      and the others stay
/// \param[in]     tol   a singular value counts if it exceeds `tol` times the greatest: the relative uncertainty of the
///                      elements of A. What is not between x02ajc() and 1 is taken for x02ajc()
/// \param[out]    svd   1: the rank was in doubt, and singular values were computed; 0: A has full rank n, and was
///                      factorised
/// \param[out]    sigma |b - Ax| / sqrt(m - rank), an estimate of the standard deviation of the errors of b; 0 if the
///                      rank is m
/// \param[out]    irank the rank of A
/// \param[out]    work  4 n elements of work space; if `*svd` the first min(m, n) hold the singular values, descending,
///                      and the others are not used
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `m` or `n` is less than 1.
/// - NE_2_INT_ARG_LT: `tda` is less than `n`.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_QR_FAIL_CONV: 50 n steps do not give the singular values, as they do not if A or b holds a NaN or an infinity.
///
/// After an error everything is untouched.
/// \par Accuracy
/// Backward stable: x solves exactly, in the sense above, a problem whose A differs by about max(m, n) times the
/// precision times |A|, with the same rank. Its error is that times the condition number, s_1 / s_rank, and, if the
/// residual is large, the square of it.
/// \par Method
/// Reflections as f01qcc(): P. A. Businger and G. H. Golub, Numer. Math. 7 (1965) 269-276. Singular values as f02wec():
/// G. H. Golub and C. Reinsch, Numer. Math. 14 (1970) 403-420.
/// \par Thread safety
/// Safe.
/// \par See also
/// f04yac() gives the covariances of x; f04jac() and f04jdc() always take singular values.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 0.0,  1.0, 1.0,  1.0, 2.0}, b[] = {1.0, 2.0, 4.0}, sigma, work[8];
/// Boolean svd;
/// Integer irank;
/// f04jgc(3, 2, a, 2, b, 1e-10, &svd, &sigma, &irank, work, &fail);   // y = 0.833333 + 1.5 t, sigma = 0.408248
/// \endcode
void f04jgc(Integer m, Integer n, double a[], Integer tda, double b[], double tol, Boolean *svd, double *sigma,
            Integer *irank, double work[], KorError *fail);

/// \brief Covariances of the solution of a least-squares problem.
///
/// Gives C = sigma^2 (A'A)^+, the covariance matrix of the x of f04jac(), f04jdc() or f04jgc(), from what they leave:
/// sigma^2 (R'R)^-1, or sigma^2 times the sum of p_k p_k' / s_k^2 over the first `rank` singular values. The roots of
/// its diagonal are the standard errors of x.
///
/// \param[in]     job   -1: the diagonal of C in `cj`; 0: the whole of C, in the place of `a`; j, from 1 to n: column j
///                      of C in `cj`
/// \param[in]     n     number of unknowns, at least 1
/// \param[in]     sigma sigma, from the solver, not negative
/// \param[in]     rank  the rank, from the solver: 0 to n, and n if not `svd`
/// \param[in,out] a     as the solver leaves it, element (i, j) at `a[i * tda + j]`: R, n by n, if not `svd`; else the
///                      first `rank` rows of P'. With `job` 0 it has n rows, and C on return; else it stays
/// \param[in]     tda   length of a row of the array `a`, at least `n`
/// \param[in]     svd   whether the solver took singular values
/// \param[in]     sv    the singular values, the `work` of the solver, `rank` elements; not read, and may be null, if
///                      not `svd`
/// \param[out]    cj    n elements, as `job` says; not used, and may be null, if it is 0
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `job` is less than -1, `n` less than 1, or `rank` negative.
/// - NE_2_INT_ARG_GT: `job` or `rank` is greater than `n`.
/// - NE_REAL_ARG_LT: `sigma` is negative, or NaN.
/// - NE_2_INT_ARG_LT: `rank` is less than `n` though not `svd`, or `tda` less than `n`.
/// - NE_SINGULAR: R has a zero on its diagonal, or one of the first `rank` singular values is zero.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// After an error everything is untouched.
/// \par Accuracy
/// The error is about n times the precision times the square of the condition number, relative to C.
/// \par Method
/// The inverse of R, or the rows of P' over the singular values, times its transpose: C. L. Lawson and R. J. Hanson,
/// Solving Least Squares Problems (1974), chapter 12.
/// \par Thread safety
/// Safe.
/// \par See also
/// f04jgc().
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 0.0,  1.0, 1.0,  1.0, 2.0}, b[] = {1.0, 2.0, 4.0}, sigma, work[8], variance[2];
/// Boolean svd;
/// Integer irank;
/// f04jgc(3, 2, a, 2, b, 1e-10, &svd, &sigma, &irank, work, &fail);
/// f04yac(-1, 2, sigma, irank, a, 2, svd, work, variance, &fail);   // variance = {0.138889, 0.083333}
/// \endcode
void f04yac(Integer job, Integer n, double sigma, Integer rank, double a[], Integer tda, Boolean svd, const double sv[],
            double cj[], KorError *fail);

/// \brief Solves systems with the factors of a matrix in variable-band storage, or with some of them.
///
/// With L and D from f01mcc() solves for X, as `selct` says: Kor_LDLTX: LDL'X = B; Kor_LDX: LDX = B; Kor_DLTX: DL'X =
/// B; Kor_LLTX: LL'X = B; Kor_LX: LX = B; Kor_LTX: L'X = B. In the last three L may have any diagonal without zeros, a
/// Cholesky factor for instance.
///
/// \param[in]     selct which factors: see above
/// \param[in]     n     order of A, at least 1
/// \param[in]     nrhs  number of right-hand sides, at least 1
/// \param[in]     al    the rows of L, with its diagonal, one after another: row[0] + ... + row[n - 1] elements
/// \param[in]     lal   length of `al`, at least that
/// \param[in]     d     n elements: the diagonal of D; not read, and may be null, in the last three
/// \param[in]     row   n elements: the number of elements of each row of L, from the first that is not zero up to the
///                      diagonal: 1 to i + 1
/// \param[in]     b     n by nrhs, element (i, j) at `b[i * tdb + j]`: the right-hand sides, one a column
/// \param[in]     tdb   length of a row of the array `b`, at least `nrhs`
/// \param[out]    x     n by nrhs, row-major: the solutions; it may be `b` itself
/// \param[in]     tdx   length of a row of the array `x`, at least `nrhs`
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n`, a `row[i]` or `nrhs` is less than 1.
/// - NE_2_INT_ARG_GT: a `row[i]` is greater than i + 1.
/// - NE_2_INT_ARG_LT: `lal` is less than the sum of the row lengths, or `tdb` or `tdx` less than `nrhs`.
/// - NE_BAD_PARAM: `selct` is none of these.
/// - NE_ZERO_DIAG: an element of D that is needed is zero.
/// - NE_NOT_UNIT_DIAG: in the first three, a diagonal element of L is not 1.
/// - NE_SINGULAR: in the last three, a diagonal element of L is zero.
///
/// After an error `x` is untouched.
/// \par Accuracy
/// Backward stable: with the factors of f01mcc() the solution is exact for a matrix that differs from A by about the
/// length of a row times the precision.
/// \par Method
/// Substitution along the rows of L: A. George and J. W. Liu, Computer Solution of Large Sparse Positive Definite
/// Systems (1981), chapter 4.
/// \par Thread safety
/// Safe.
/// \par See also
/// f01mcc() factorises; f04aqc() solves for one right-hand side in place.
/// \par Example
/// \code{.c}
/// double a[] = {4.0,  2.0, 5.0,  2.0, 3.0}, al[5], d[3], b[] = {6.0, 9.0, 5.0}, x[3];
/// Integer row[] = {1, 2, 2};
/// f01mcc(3, a, 5, row, al, d, &fail);
/// f04mcc(Kor_LDLTX, 3, 1, al, 5, d, row, b, 1, x, 1, &fail);   // x = {1, 1, 1}
/// \endcode
void f04mcc(Integer selct, Integer n, Integer nrhs, const double al[], Integer lal, const double d[],
            const Integer row[], const double b[], Integer tdb, double x[], Integer tdx, KorError *fail);

/// \brief Solves one system with the factors LDL' of a matrix in variable-band storage, in place.
///
/// Solves LDL'x = b with L and D from f01mcc(), without an error record.
///
/// \param[in]     n   order of the matrix; with less than 1 nothing is done
/// \param[in]     al  the rows of L, with its diagonal of ones, one after another
/// \param[in]     d   n elements: the diagonal of D
/// \param[in]     row n elements: the number of elements of each row of L; if one is not between 1 and i + 1 nothing is
///                    done
/// \param[in,out] b   n elements: the right-hand side, and the solution
///
/// \par Errors
/// None, and no error record: a zero in D gives infinities.
/// \par Accuracy
/// As f04mcc().
/// \par Method
/// As f04mcc().
/// \par Thread safety
/// Safe.
/// \par See also
/// f04mcc() tests its arguments, keeps b, and solves for several right-hand sides.
/// \par Example
/// \code{.c}
/// double a[] = {4.0,  2.0, 5.0,  2.0, 3.0}, al[5], d[3], b[] = {6.0, 9.0, 5.0};
/// Integer row[] = {1, 2, 2};
/// f01mcc(3, a, 5, row, al, d, &fail);
/// f04aqc(3, al, d, row, b);   // b = {1, 1, 1}
/// \endcode
void f04aqc(Integer n, const double al[], const double d[], const Integer row[], double b[]);

KOR_END_DECLS

#endif
