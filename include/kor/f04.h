/// \file f04.h
/// Chapter f04: linear equations and linear least squares.
///
/// Matrices are row-major, with the length of a row of the array after them; right-hand sides and solutions are the columns of
/// arrays with `nrhs` columns, and one alone is a vector with the row length 1.
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
void f04aec(Integer n, Integer nrhs, const double a[], Integer tda, const double b[], Integer tdb, double x[], Integer
            tdx, double aa[], Integer tdaa, double bb[], Integer tdbb, KorError *fail);

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
void f04ahc(Integer n, Integer nrhs, const double a[], Integer tda, const double aa[], Integer tdaa, const Integer
            pivot[], const double b[], Integer tdb, double x[], Integer tdx, double bb[], Integer tdbb, Integer
            *iterations, KorError *fail);

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

KOR_END_DECLS

#endif
