/// \file f06.h
/// Chapter f06: vector and matrix kernels: the standard operations (BLAS) under the names of this library, rotations
/// and reflections, norms, copies, permutations.
///
/// Conventions of the chapter. Enumerators come first. A vector is an array with an increment: element k of n, from 0,
/// is `x[k * incx]`, or `x[(k - (n - 1)) * incx]` if the increment is negative: it walks from the far end. An increment
/// of 0, which takes the same element each time, is legal for the operations on vectors, illegal for those on matrices.
/// A matrix is row-major, with the length of a row of the array after it. No routine has an error record, and none ends
/// the process. NaN and infinity pass through the arithmetic.
#ifndef KOR_F06_H
#define KOR_F06_H

#include <kor.h>

KOR_BEGIN_DECLS

/* ---- Scalars: plane rotations of two real numbers, guarded division, lengths ---- */

/// \brief Chooses the plane rotation that makes the second of two numbers zero.
///
/// Finds c, s with \f$\begin{pmatrix} c & s \\ -s & c \end{pmatrix} \begin{pmatrix} a \\ b \end{pmatrix} =
/// \begin{pmatrix} r \\ 0 \end{pmatrix}\f$, r having the sign of the greater of a and b in modulus. One number z keeps
/// the rotation: s if |a| > |b|, else 1/c, or 1 if c is 0. With a = b = 0: c = 1, s = r = z = 0.
///
/// \param[in,out] a first number; r on return
/// \param[in,out] b second number; z on return
/// \param[out]    c cosine
/// \param[out]    s sine
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// About 1 ulp, without spurious overflow or underflow.
/// \par Method
/// The standard operation drotg (C. L. Lawson et al., ACM Trans. Math. Softw. 5 (1979) 308-323). Both numbers are
/// scaled by a power of 2 first.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06bac() keeps the tangent in place of z; f06epc() applies the rotation.
/// \par Example
/// \code{.c}
/// double a = 3.0, b = 4.0, c, s;
/// f06aac(&a, &b, &c, &s);
/// // a = 5; b = 1.66667; c = 0.6; s = 0.8
/// \endcode
void f06aac(double *a, double *b, double *c, double *s);

/// \brief Chooses the plane rotation that makes the second of two numbers zero, and keeps its tangent.
///
/// Finds c, s with \f$\begin{pmatrix} c & s \\ -s & c \end{pmatrix} \begin{pmatrix} a \\ b \end{pmatrix} =
/// \begin{pmatrix} r \\ 0 \end{pmatrix}\f$, from the tangent t = b / a. With the tangent \f$t\f$: \f$c =
/// 1/\sqrt{1+|t|^2}\f$ and \f$s = c\,t\f$, formed so that nothing overflows: below \f$\sqrt\epsilon\f$ c is 1 and s is
/// t, above \f$1/\sqrt\epsilon\f$ c is 1/|t| and s is t/|t| (\f$\epsilon\f$ is x02ajc()). If b is 0: c = 1, s = 0, and
/// a and b stay. c is never negative; with a = 0 it is 2^-1022, the least that keeps a tangent.
///
/// \param[in,out] a first number; r = c a + s b on return
/// \param[in,out] b second number; the tangent t on return, 2^1022 with the sign of a / b where the quotient overflows
/// \param[out]    c cosine
/// \param[out]    s sine
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// c and s to about 2 ulp, r to about 3.
/// \par Method
/// Rotations after W. Givens, J. SIAM 6 (1958) 26-50, kept by their tangents.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06bcc() finds c and s again from the tangent; f06aac() keeps another number; f06cac() for complex numbers.
/// \par Example
/// \code{.c}
/// double a = 3.0, b = 4.0, c, s;
/// f06bac(&a, &b, &c, &s);
/// // a = 5; b = 1.33333; c = 0.6; s = 0.8
/// \endcode
void f06bac(double *a, double *b, double *c, double *s);

/// \brief Cosine and sine of a plane rotation from its tangent.
///
/// With the tangent \f$t\f$: \f$c = 1/\sqrt{1+|t|^2}\f$ and \f$s = c\,t\f$, formed so that nothing overflows: below
/// \f$\sqrt\epsilon\f$ c is 1 and s is t, above \f$1/\sqrt\epsilon\f$ c is 1/|t| and s is t/|t| (\f$\epsilon\f$ is
/// x02ajc()).
///
/// \param[in]  t the tangent, any number
/// \param[out] c cosine, not negative
/// \param[out] s sine, of the sign of t
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// About 2 ulp.
/// \par Method
/// Rotations after W. Givens, J. SIAM 6 (1958) 26-50, kept by their tangents.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06bac() chooses a rotation; f06ccc() for complex tangents.
/// \par Example
/// \code{.c}
/// double c, s;
/// f06bcc(0.75, &c, &s);
/// // c = 0.8; s = 0.6
/// \endcode
void f06bcc(double t, double *c, double *s);

/// \brief Quotient of two real numbers, guarded against overflow and underflow.
///
/// With the bound \f$h = 1/\mathtt{x02amc} = 2^{1022}\f$: 0 if a is 0; h with the sign of a if b is 0; h with the sign
/// of the quotient if |b| < 1 and |a| > |b| h; 0 if |b| >= 1 and |a| < |b| / h; a / b otherwise. With a NaN the result
/// is NaN.
///
/// \param[in]  a    the dividend
/// \param[in]  b    the divisor
/// \param[out] fail 1 if the quotient overflows or b is 0, 0 otherwise: 0 / 0 is 0 with `fail` 1, an underflow is no
///                  failure
/// \return the quotient
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// a / b is correctly rounded.
/// \par Method
/// The comparisons are made before the division, which therefore never overflows.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06clc() for complex numbers.
/// \par Example
/// \code{.c}
/// Boolean overflow;
/// double quotient = f06blc(1e300, -1e-300, &overflow);
/// // quotient = -4.49423e+307; overflow = 1
/// \endcode
double f06blc(double a, double b, Boolean *fail);

/// \brief Euclidean norm from a scaled sum of squares.
///
/// Forms \f$\mathit{scale}\,\sqrt{\mathit{ssq}}\f$, or \f$h = 1/\mathtt{x02amc} = 2^{1022}\f$ in its place if that is
/// not greater. An infinite or NaN argument gives the product.
///
/// \param[in] scale the scale, not negative
/// \param[in] ssq   the sum of squares, at least 1 if it comes from f06fjc() or f06kjc()
/// \return the norm
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// About 1 ulp.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06fjc() and f06kjc() make the scaled sum.
/// \par Example
/// \code{.c}
/// double length = f06bmc(1e200, 25.0);
/// // length = 5e+200
/// \endcode
double f06bmc(double scale, double ssq);

/// \brief Length of the hypotenuse: the Euclidean norm of two numbers.
///
/// Forms \f$\sqrt{a^2+b^2}\f$ without spurious overflow or underflow.
///
/// \param[in] a first number
/// \param[in] b second number
/// \return the length
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Within 1 ulp.
/// \par Thread safety
/// Safe.
/// \par See also
/// a02dbc(), the modulus of a complex number, is the same operation.
/// \par Example
/// \code{.c}
/// double length = f06bnc(3e200, 4e200);
/// // length = 5e+200
/// \endcode
double f06bnc(double a, double b);

/* ---- Scalars: plane rotations of two complex numbers, guarded division ---- */

/// \brief Chooses the plane rotation with a real cosine that makes the second of two complex numbers zero, and keeps
/// its tangent.
///
/// Finds c, s with \f$\begin{pmatrix} c & \bar s \\ -s & c \end{pmatrix} \begin{pmatrix} a \\ b \end{pmatrix} =
/// \begin{pmatrix} r \\ 0 \end{pmatrix}\f$, from the tangent t = b / a. With the tangent \f$t\f$: \f$c =
/// 1/\sqrt{1+|t|^2}\f$ and \f$s = c\,t\f$, formed so that nothing overflows: below \f$\sqrt\epsilon\f$ c is 1 and s is
/// t, above \f$1/\sqrt\epsilon\f$ c is 1/|t| and s is t/|t| (\f$\epsilon\f$ is x02ajc()). If b is 0: c = 1, s = 0, and
/// a and b stay.
///
/// \param[in,out] a first number; r = c a + conj(s) b on return
/// \param[in,out] b second number; the tangent t on return, of modulus 2^1022 and in the direction of the quotient
///                  where that overflows
/// \param[out]    c cosine, real and not negative
/// \param[out]    s sine
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// About 4 ulp of the modulus.
/// \par Method
/// Rotations after W. Givens, J. SIAM 6 (1958) 26-50, kept by their tangents.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06ccc() finds c and s again from the tangent; f06txc() applies such rotations; for f06hpc() conjugate s.
/// \par Example
/// \code{.c}
/// Complex a = {3.0, 0.0}, b = {0.0, 4.0}, s;
/// double c;
/// f06cac(&a, &b, &c, &s);
/// // a = (5, 0); b = (0, 1.33333); c = 0.6; s = (0, 0.8)
/// \endcode
void f06cac(Complex *a, Complex *b, double *c, Complex *s);

/// \brief Cosine and sine of a plane rotation from its complex tangent.
///
/// With the tangent \f$t\f$: \f$c = 1/\sqrt{1+|t|^2}\f$ and \f$s = c\,t\f$, formed so that nothing overflows: below
/// \f$\sqrt\epsilon\f$ c is 1 and s is t, above \f$1/\sqrt\epsilon\f$ c is 1/|t| and s is t/|t| (\f$\epsilon\f$ is
/// x02ajc()).
///
/// \param[in]  t the tangent, any number
/// \param[out] c cosine, real and not negative
/// \param[out] s sine, in the direction of t
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// About 3 ulp of the modulus.
/// \par Method
/// Rotations after W. Givens, J. SIAM 6 (1958) 26-50, kept by their tangents.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06cac() chooses a rotation; f06bcc() for real tangents.
/// \par Example
/// \code{.c}
/// Complex t = {0.0, 0.75}, s;
/// double c;
/// f06ccc(t, &c, &s);
/// // c = 0.8; s = (0, 0.6)
/// \endcode
void f06ccc(Complex t, double *c, Complex *s);

/// \brief Quotient of two complex numbers, guarded against overflow and underflow.
///
/// With the bound \f$h = 1/\mathtt{x02amc} = 2^{1022}\f$: 0 if a is 0; the number of modulus h in the direction of a if
/// b is 0; that in the direction of the quotient if |b| < 1 and |a| > |b| h; 0 if |b| >= 1 and |a| < |b| / h; a / b
/// otherwise. With a NaN the result is NaN. No intermediate result overflows or underflows.
///
/// \param[in]  a    the dividend
/// \param[in]  b    the divisor
/// \param[out] fail 1 if the quotient overflows or b is 0, 0 otherwise: 0 / 0 is 0 with `fail` 1, an underflow is no
///                  failure
/// \return the quotient
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// About 3 ulp of the modulus of the quotient.
/// \par Method
/// Both numbers are scaled by powers of 2, divided, and the exponents compared before they are put together.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06blc() for real numbers; a02cdc() divides without a guard.
/// \par Example
/// \code{.c}
/// Complex a = {1e300, 1e300}, b = {0.0, 1e300};
/// Boolean overflow;
/// Complex quotient = f06clc(a, b, &overflow);
/// // quotient = (1, -1); overflow = 0
/// \endcode
Complex f06clc(Complex a, Complex b, Boolean *fail);

/* ---- Vectors of integers ---- */

/// \brief Loads a constant into a vector of integers.
///
/// Forms \f$x_i := \mathit{con}\f$.
///
/// \param[in]  n    number of elements; with 0 or less nothing happens
/// \param[in]  con  the constant
/// \param[out] x    the vector: n elements, `incx` apart
/// \param[in]  incx step between its elements; a negative one walks from the far end, 0 takes the same element each
///                  time
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Integer x[3];
/// f06dbc(3, 7, x, 1);
/// // x = {7, 7, 7}
/// \endcode
void f06dbc(Integer n, Integer con, Integer x[], Integer incx);

/// \brief Copies a vector of integers.
///
/// Forms \f$y := x\f$.
///
/// \param[in]  n    number of elements; with 0 or less nothing happens
/// \param[in]  x    vector to copy: n elements, `incx` apart
/// \param[in]  incx step between its elements; a negative one walks from the far end, 0 takes the same element each
///                  time
/// \param[out] y    the copy: n elements, `incy` apart
/// \param[in]  incy step between its elements; a negative one walks from the far end, 0 takes the same element each
///                  time
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06efc() for real vectors.
/// \par Example
/// \code{.c}
/// Integer x[] = {1, 2, 3}, y[3];
/// f06dfc(3, x, 1, y, -1);   // backwards
/// // y = {3, 2, 1}
/// \endcode
void f06dfc(Integer n, const Integer x[], Integer incx, Integer y[], Integer incy);

/* ---- Real vectors: the standard operations ---- */

/// \brief Scalar product of two real vectors.
///
/// Forms \f$x'y = \sum_i x_i y_i\f$.
///
/// \param[in] n    number of elements; with 0 or less the result is 0
/// \param[in] x    first vector: n elements, `incx` apart
/// \param[in] incx step between its elements; a negative one walks from the far end, 0 takes the same element each time
/// \param[in] y    second vector: n elements, `incy` apart
/// \param[in] incy step between its elements; a negative one walks from the far end, 0 takes the same element each time
/// \return the scalar product
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Rounding errors as of a sum of n products formed in some order: at most about n times the precision, relative to the
/// sum of the moduli of the terms.
/// \par Method
/// The standard operation ddot (C. L. Lawson et al., ACM Trans. Math. Softw. 5 (1979) 308-323), from the BLAS library
/// that is linked; short vectors, and those with an increment of 0, by a loop in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06gbc() for complex vectors.
/// \par Example
/// \code{.c}
/// double x[] = {1.5, -2.0, 0.5}, y[] = {2.0, 1.0, 4.0};
/// double product = f06eac(3, x, 1, y, 1);
/// // product = 3
/// \endcode
double f06eac(Integer n, const double x[], Integer incx, const double y[], Integer incy);

/// \brief Adds a multiple of a real vector to another.
///
/// Forms \f$y := \alpha x + y\f$. Nothing happens if alpha is 0.
///
/// \param[in]     n     number of elements; with 0 or less nothing happens
/// \param[in]     alpha the factor of x
/// \param[in]     x     vector to add: n elements, `incx` apart
/// \param[in]     incx  step between its elements; a negative one walks from the far end, 0 takes the same element each
///                      time
/// \param[in,out] y     vector to add to: n elements, `incy` apart
/// \param[in]     incy  step between its elements; a negative one walks from the far end, 0 takes the same element each
///                      time
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Each element is rounded as the formula says; the processor may fuse its multiplication and addition.
/// \par Method
/// The standard operation daxpy (C. L. Lawson et al., ACM Trans. Math. Softw. 5 (1979) 308-323), from the BLAS library
/// that is linked; short vectors, and those with an increment of 0, by a loop in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06gcc() for complex vectors.
/// \par Example
/// \code{.c}
/// double x[] = {1.5, -2.0, 0.5}, y[] = {2.0, 1.0, 4.0};
/// f06ecc(3, 2.0, x, 1, y, 1);
/// // y = {5, -3, 5}
/// \endcode
void f06ecc(Integer n, double alpha, const double x[], Integer incx, double y[], Integer incy);

/// \brief Multiplies a real vector by a number.
///
/// Forms \f$x := \alpha x\f$. With alpha = 0 a NaN or an infinity in x becomes NaN, as the product says; f06fbc()
/// clears a vector whatever it holds.
///
/// \param[in]     n     number of elements; with 0 or less nothing happens
/// \param[in]     alpha the factor
/// \param[in,out] x     the vector: n elements, `incx` apart
/// \param[in]     incx  step between its elements; a negative one walks from the far end, 0 takes the same element each
///                      time
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Each element is rounded as the formula says; the processor may fuse its multiplication and addition.
/// \par Method
/// The standard operation dscal (C. L. Lawson et al., ACM Trans. Math. Softw. 5 (1979) 308-323), from the BLAS library
/// that is linked; short vectors, and those with an increment of 0, by a loop in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06fdc() for y := alpha x; f06gdc() and f06jdc() for complex vectors.
/// \par Example
/// \code{.c}
/// double x[] = {1.5, -2.0, 0.5};
/// f06edc(3, 2.0, x, 1);
/// // x = {3, -4, 1}
/// \endcode
void f06edc(Integer n, double alpha, double x[], Integer incx);

/// \brief Copies a real vector.
///
/// Forms \f$y := x\f$.
///
/// \param[in]  n    number of elements; with 0 or less nothing happens
/// \param[in]  x    vector to copy: n elements, `incx` apart
/// \param[in]  incx step between its elements; a negative one walks from the far end, 0 takes the same element each
///                  time
/// \param[out] y    the copy: n elements, `incy` apart
/// \param[in]  incy step between its elements; a negative one walks from the far end, 0 takes the same element each
///                  time
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Exact.
/// \par Method
/// The standard operation dcopy (C. L. Lawson et al., ACM Trans. Math. Softw. 5 (1979) 308-323), from the BLAS library
/// that is linked; short vectors, and those with an increment of 0, by a loop in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06dfc() for integers, f06gfc() for complex vectors, f06kfc() from real to complex.
/// \par Example
/// \code{.c}
/// double x[] = {1.5, -2.0, 0.5}, y[3];
/// f06efc(3, x, 1, y, -1);   // backwards
/// // y = {0.5, -2, 1.5}
/// \endcode
void f06efc(Integer n, const double x[], Integer incx, double y[], Integer incy);

/// \brief Interchanges two real vectors.
///
/// Forms \f$x \leftrightarrow y\f$.
///
/// \param[in]     n    number of elements; with 0 or less nothing happens
/// \param[in,out] x    first vector: n elements, `incx` apart
/// \param[in]     incx step between its elements; a negative one walks from the far end, 0 takes the same element each
///                     time
/// \param[in,out] y    second vector: n elements, `incy` apart
/// \param[in]     incy step between its elements; a negative one walks from the far end, 0 takes the same element each
///                     time
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Exact.
/// \par Method
/// The standard operation dswap (C. L. Lawson et al., ACM Trans. Math. Softw. 5 (1979) 308-323), from the BLAS library
/// that is linked; short vectors, and those with an increment of 0, by a loop in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06ggc() for complex vectors.
/// \par Example
/// \code{.c}
/// double x[] = {1.5, -2.0, 0.5}, y[] = {2.0, 1.0, 4.0};
/// f06egc(3, x, 1, y, 1);
/// // x = {2, 1, 4}; y = {1.5, -2, 0.5}
/// \endcode
void f06egc(Integer n, double x[], Integer incx, double y[], Integer incy);

/// \brief Euclidean norm of a real vector.
///
/// Forms \f$\|x\|_2 = \sqrt{x'x}\f$. No intermediate result overflows or underflows: the norm is right whenever it can
/// be represented, infinite beyond, NaN if an element is NaN.
///
/// \param[in] n    number of elements; with 0 or less the result is 0
/// \param[in] x    the vector: n elements, `incx` apart
/// \param[in] incx step between its elements; a negative one walks from the far end, 0 takes the same element each time
/// \return the norm; |x| itself if n is 1
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// About 1 ulp, whatever the length and the range of the elements.
/// \par Method
/// The standard operation dnrm2 (C. L. Lawson et al., ACM Trans. Math. Softw. 5 (1979) 308-323). A sum of squares in 32
/// lanes, the sums of its pieces added with their rounding errors kept; it is formed again from numbers scaled by a
/// power of 2 when it leaves the safe range.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06fjc() and f06bmc() for a norm in steps; f06jjc() for complex vectors.
/// \par Example
/// \code{.c}
/// double x[] = {3e200, 0.0, -4e200};
/// double length = f06ejc(3, x, 1);
/// // length = 5e+200
/// \endcode
double f06ejc(Integer n, const double x[], Integer incx);

/// \brief Sum of the absolute values of a real vector.
///
/// Forms \f$\|x\|_1 = \sum_i |x_i|\f$.
///
/// \param[in] n    number of elements; with 0 or less the result is 0
/// \param[in] x    the vector: n elements, `incx` apart
/// \param[in] incx step between its elements; a negative one walks from the far end, 0 takes the same element each time
/// \return the sum
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// At most about n/32 times the precision, relative.
/// \par Method
/// The standard operation dasum (C. L. Lawson et al., ACM Trans. Math. Softw. 5 (1979) 308-323). Summed in 32 lanes.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06jkc() for complex vectors.
/// \par Example
/// \code{.c}
/// double x[] = {1.5, -2.0, 0.5};
/// double sum = f06ekc(3, x, 1);
/// // sum = 4
/// \endcode
double f06ekc(Integer n, const double x[], Integer incx);

/// \brief Applies a plane rotation to two real vectors.
///
/// Forms \f$x := c x + s y,\; y := c y - s x\f$ with the old x on the right.
///
/// \param[in]     n    number of elements; with 0 or less nothing happens
/// \param[in,out] x    first vector: n elements, `incx` apart
/// \param[in]     incx step between its elements; a negative one walks from the far end, 0 takes the same element each
///                     time
/// \param[in,out] y    second vector: n elements, `incy` apart
/// \param[in]     incy step between its elements; a negative one walks from the far end, 0 takes the same element each
///                     time
/// \param[in]     c    cosine of the rotation
/// \param[in]     s    its sine
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Each element is rounded as the formula says; the processor may fuse its multiplication and addition.
/// \par Method
/// The standard operation drot (C. L. Lawson et al., ACM Trans. Math. Softw. 5 (1979) 308-323), from the BLAS library
/// that is linked; short vectors, and those with an increment of 0, by a loop in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06aac() and f06bac() choose a rotation; f06fpc() takes short cuts for c = 1 and c = 0; f06hpc() for complex
/// vectors.
/// \par Example
/// \code{.c}
/// double x[] = {3.0, 1.0}, y[] = {4.0, 2.0};
/// f06epc(2, x, 1, y, 1, 0.6, 0.8);
/// // x = {5, 2.2}; y = {0, 0.4}
/// \endcode
void f06epc(Integer n, double x[], Integer incx, double y[], Integer incy, double c, double s);

/* ---- Real vectors: further operations, reflections, sequences of rotations ---- */

/// \brief Loads a constant into a real vector.
///
/// Forms \f$x_i := \mathit{con}\f$, whatever x holds.
///
/// \param[in]  n    number of elements; with 0 or less nothing happens
/// \param[in]  con  the constant
/// \param[out] x    the vector: n elements, `incx` apart
/// \param[in]  incx step between its elements; a negative one walks from the far end, 0 takes the same element each
///                  time
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double x[3];
/// f06fbc(3, 0.5, x, 1);
/// // x = {0.5, 0.5, 0.5}
/// \endcode
void f06fbc(Integer n, double con, double x[], Integer incx);

/// \brief Multiplies a real vector by a diagonal matrix.
///
/// Forms \f$x_i := d_i x_i\f$. With `incd` = 0 all elements are multiplied by `d[0]`, as by f06edc().
///
/// \param[in]     n    number of elements; with 0 or less nothing happens
/// \param[in]     d    the diagonal: n elements, `incd` apart
/// \param[in]     incd step between its elements; a negative one walks from the far end, 0 takes the same element each
///                     time
/// \param[in,out] x    the vector: n elements, `incx` apart
/// \param[in]     incx step between its elements; a negative one walks from the far end, 0 takes the same element each
///                     time
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Each product is correctly rounded.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double d[] = {1.0, 2.0, 3.0}, x[] = {1.0, 1.0, 1.0};
/// f06fcc(3, d, 1, x, 1);
/// // x = {1, 2, 3}
/// \endcode
void f06fcc(Integer n, const double d[], Integer incd, double x[], Integer incx);

/// \brief Multiplies a real vector by a number, into another vector.
///
/// Forms \f$y := \alpha x\f$. With alpha = 0 y is cleared, whatever x holds; with 1 it is a copy, with -1 the negative
/// of x.
///
/// \param[in]  n     number of elements; with 0 or less nothing happens
/// \param[in]  alpha the factor
/// \param[in]  x     the vector to multiply; not read if alpha is 0: n elements, `incx` apart
/// \param[in]  incx  step between its elements; a negative one walks from the far end, 0 takes the same element each
///                   time
/// \param[out] y     the product: n elements, `incy` apart
/// \param[in]  incy  step between its elements; a negative one walks from the far end, 0 takes the same element each
///                   time
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Each product is correctly rounded.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06edc() multiplies in place.
/// \par Example
/// \code{.c}
/// double x[] = {1.0, 2.0, 3.0}, y[3];
/// f06fdc(3, -1.0, x, 1, y, 1);
/// // y = {-1, -2, -3}
/// \endcode
void f06fdc(Integer n, double alpha, const double x[], Integer incx, double y[], Integer incy);

/// \brief Changes the sign of a real vector.
///
/// Forms \f$x := -x\f$.
///
/// \param[in]     n    number of elements; with 0 or less nothing happens
/// \param[in,out] x    the vector: n elements, `incx` apart
/// \param[in]     incx step between its elements; a negative one walks from the far end, 0 takes the same element each
///                     time
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06hgc() for complex vectors.
/// \par Example
/// \code{.c}
/// double x[] = {1.0, -2.0};
/// f06fgc(2, x, 1);
/// // x = {-1, 2}
/// \endcode
void f06fgc(Integer n, double x[], Integer incx);

/// \brief Takes a real vector into a scaled sum of squares.
///
/// Finds new values of scale and sumsq with \f$\mathit{scale}^2\,\mathit{sumsq} = \mathit{scale}_0^2\,\mathit{sumsq}_0
/// + x'x\f$, scale being the greatest of the old one and the moduli of the elements. Start with scale = 0, sumsq = 1;
/// the norm is then f06bmc(scale, sumsq), and no intermediate result overflows or underflows. Zeros change nothing. A
/// NaN makes sumsq NaN, an infinity makes scale infinite.
///
/// \param[in]     n     number of elements; with 0 or less nothing happens
/// \param[in]     x     the vector: n elements, `incx` apart
/// \param[in]     incx  step between its elements; a negative one walks from the far end, 0 takes the same element each
///                      time
/// \param[in,out] scale the scale, not negative; 0 at the start
/// \param[in,out] sumsq the scaled sum of squares, positive; 1 at the start
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// About 2 ulp of sumsq for one vector, whatever its length; scale is exact.
/// \par Method
/// Up to 8 elements one by one: if a = |x| exceeds scale, sumsq becomes 1 + sumsq (scale / a)^2 and scale a; else (a /
/// scale)^2 is added. Longer vectors in two passes: the greatest modulus, then the squares, scaled by a power of 2 and
/// summed in lanes.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06ejc() for the norm at once; f06kjc() for complex vectors.
/// \par Example
/// \code{.c}
/// double x[] = {3e200, 4e200}, scale = 0.0, sumsq = 1.0;
/// f06fjc(2, x, 1, &scale, &sumsq);
/// double length = f06bmc(scale, sumsq);
/// // scale = 4e+200; sumsq = 1.5625; length = 5e+200
/// \endcode
void f06fjc(Integer n, const double x[], Integer incx, double *scale, double *sumsq);

/// \brief Greatest and least absolute value of the elements of a real vector.
///
/// Both are 0 if n is 0 or less, and NaN if an element is NaN.
///
/// \param[in]  n    number of elements
/// \param[in]  x    the vector: n elements, `incx` apart
/// \param[in]  incx step between its elements; a negative one walks from the far end, 0 takes the same element each
///                  time
/// \param[out] xmax greatest |x|
/// \param[out] xmin least |x|
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06jlc() for the place of the greatest.
/// \par Example
/// \code{.c}
/// double x[] = {1.5, -2.0, 0.5}, xmax, xmin;
/// f06flc(3, x, 1, &xmax, &xmin);
/// // xmax = 2; xmin = 0.5
/// \endcode
void f06flc(Integer n, const double x[], Integer incx, double *xmax, double *xmin);

/// \brief Applies a plane rotation to two real vectors, with short cuts.
///
/// Forms \f$x := c x + s y,\; y := c y - s x\f$ with the old x on the right. With c = 1, s = 0 nothing is touched; with
/// c = 0, |s| = 1 the vectors are interchanged and one of them changes sign, without arithmetic.
///
/// \param[in]     n    number of elements; with 0 or less nothing happens
/// \param[in,out] x    first vector: n elements, `incx` apart
/// \param[in]     incx step between its elements; a negative one walks from the far end, 0 takes the same element each
///                     time
/// \param[in,out] y    second vector: n elements, `incy` apart
/// \param[in]     incy step between its elements; a negative one walks from the far end, 0 takes the same element each
///                     time
/// \param[in]     c    cosine of the rotation
/// \param[in]     s    its sine
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Each element is rounded as the formula says; exact in the short cuts.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06epc() without short cuts.
/// \par Example
/// \code{.c}
/// double x[] = {1.0, 2.0}, y[] = {3.0, 4.0};
/// f06fpc(2, x, 1, y, 1, 0.0, 1.0);
/// // x = {3, 4}; y = {-1, -2}
/// \endcode
void f06fpc(Integer n, double x[], Integer incx, double y[], Integer incy, double c, double s);

/// \brief Chooses a sequence of plane rotations that takes a real vector into one element.
///
/// Finds n rotations \f$P_k = \begin{pmatrix} c & s \\ -s & c \end{pmatrix}\f$ that reduce the vector of alpha and
/// \f$x_1 \dots x_n\f$ to the one element beta, in the place of alpha. ForwardSequence: \f$P = P_n \cdots P_1\f$;
/// BackwardSequence: \f$P = P_1 \cdots P_n\f$; the factor on the right acts first.
/// - VariablePivot, BackwardSequence: \f$P\,(\alpha, x_1, \dots, x_n)' = (\beta, 0, \dots, 0)'\f$, \f$P_k\f$ in the
///   plane of elements k and k+1 of that vector.
/// - VariablePivot, ForwardSequence: \f$P\,(x_1, \dots, x_n, \alpha)' = (0, \dots, 0, \beta)'\f$, \f$P_k\f$ in the
///   plane of elements k and k+1 of that vector.
/// - FixedPivot, either direction: \f$P\,(\alpha, x_1, \dots, x_n)' = (\beta, 0, \dots, 0)'\f$, \f$P_k\f$ in the plane
///   of elements 1 and k+1; for the vector with alpha last the planes are (k, n+1) and the sines are the negatives.
///
/// \param[in]     pivot  VariablePivot or FixedPivot
/// \param[in]     direct ForwardSequence or BackwardSequence
/// \param[in]     n      number of elements of x and of rotations; with 0 or less nothing happens
/// \param[in,out] alpha  the element that takes the others in; beta on return
/// \param[in,out] x      the elements to reduce; on return the tangents of the rotations: n elements, `incx` apart
/// \param[in]     incx   step between its elements; a negative one walks from the far end, 0 takes the same element
///                       each time
/// \param[out]    c      n cosines, `c[k-1]` of rotation k
/// \param[out]    s      n sines, `s[k-1]` of rotation k
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `pivot`: not VariablePivot or FixedPivot.
/// - 2, `direct`: not ForwardSequence or BackwardSequence.
/// \par Accuracy
/// P is orthogonal and beta right to about n times the precision.
/// \par Method
/// Rotations after W. Givens, J. SIAM 6 (1958) 26-50, kept by their tangents.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06qxc() applies such a sequence; f06hqc() for complex vectors.
/// \par Example
/// \code{.c}
/// double alpha = 2.0, x[] = {1.0, 2.0}, c[2], s[2];
/// f06fqc(FixedPivot, ForwardSequence, 2, &alpha, x, 1, c, s);
/// // alpha = 3; c = {0.894427, 0.745356}; s = {0.447214, 0.666667}
/// \endcode
void f06fqc(Integer pivot, Integer direct, Integer n, double *alpha, double x[], Integer incx, double c[], double s[]);

/// \brief Chooses the elementary reflection that takes a real vector into its first element.
///
/// Finds \f$H = I - u u'\f$, \f$u = (\zeta, z')'\f$, \f$u'u = 2\f$, with \f$H \begin{pmatrix} \alpha \\ x \end{pmatrix}
/// = \begin{pmatrix} \beta \\ 0 \end{pmatrix}\f$, \f$\beta = -\mathrm{sign}(\alpha) \sqrt{\alpha^2 + x'x}\f$. The
/// number \f$\zeta\f$ is in \f$[1, \sqrt 2]\f$, or 0 for H = I: that is the choice, and nothing is changed, when n is 0
/// or less or no |x[i]| exceeds the greater of `tol` and x02ajc() |alpha|.
///
/// \param[in]     n     number of elements of x
/// \param[in,out] alpha the first element; beta on return
/// \param[in,out] x     the other elements; z on return: n elements, `incx` apart
/// \param[in]     incx  step between its elements; a negative one walks from the far end, 0 takes the same element each
///                      time
/// \param[in]     tol   elements up to this size count as zeros; 0 or less: only rounding errors of alpha do
/// \param[out]    z1    zeta: 0 if H = I
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// H is orthogonal, and H (alpha; x) right, to a few times the precision; nothing overflows unless beta does.
/// \par Method
/// A. S. Householder, J. ACM 5 (1958) 339-342. The sum |alpha| + |beta| cannot cancel.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06ftc() and f06fuc() apply the reflection; f06fsc() is the same operation; f06hrc() for complex vectors.
/// \par Example
/// \code{.c}
/// double alpha = 3.0, x[] = {4.0}, zeta;
/// f06frc(1, &alpha, x, 1, 0.0, &zeta);
/// // alpha = -5; x = {0.632456}; zeta = 1.26491
/// \endcode
void f06frc(Integer n, double *alpha, double x[], Integer incx, double tol, double *z1);

/// \brief Chooses the elementary reflection that takes a real vector into its first element, as f06frc().
///
/// Finds \f$H = I - u u'\f$, \f$u = (\zeta, z')'\f$, \f$u'u = 2\f$, with \f$H \begin{pmatrix} \alpha \\ x \end{pmatrix}
/// = \begin{pmatrix} \beta \\ 0 \end{pmatrix}\f$, \f$\beta = -\mathrm{sign}(\alpha) \sqrt{\alpha^2 + x'x}\f$. The
/// number \f$\zeta\f$ is in \f$[1, \sqrt 2]\f$, or 0 for H = I: that is the choice, and nothing is changed, when n is 0
/// or less or no |x[i]| exceeds the greater of `tol` and x02ajc() |alpha|.
///
/// \param[in]     n     number of elements of x
/// \param[in,out] alpha the first element; beta on return
/// \param[in,out] x     the other elements; z on return: n elements, `incx` apart
/// \param[in]     incx  step between its elements; a negative one walks from the far end, 0 takes the same element each
///                      time
/// \param[in]     tol   elements up to this size count as zeros; 0 or less: only rounding errors of alpha do
/// \param[out]    z1    zeta: 0 if H = I
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// H is orthogonal, and H (alpha; x) right, to a few times the precision; nothing overflows unless beta does.
/// \par Method
/// A. S. Householder, J. ACM 5 (1958) 339-342. The sum |alpha| + |beta| cannot cancel.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06ftc() and f06fuc() apply the reflection; f06frc() is the same operation; f06hrc() for complex vectors.
/// \par Example
/// \code{.c}
/// double alpha = 3.0, x[] = {4.0}, zeta;
/// f06fsc(1, &alpha, x, 1, 0.0, &zeta);
/// // alpha = -5; x = {0.632456}; zeta = 1.26491
/// \endcode
void f06fsc(Integer n, double *alpha, double x[], Integer incx, double tol, double *z1);

/// \brief Applies an elementary reflection to a real vector.
///
/// Forms \f$\begin{pmatrix} \delta \\ y \end{pmatrix} := H \begin{pmatrix} \delta \\ y \end{pmatrix}\f$ with \f$H = I -
/// u u'\f$, \f$u = (\zeta, z')'\f$, as f06frc() gives it. With zeta = 0 H is I.
///
/// \param[in]     n     number of elements of y and z
/// \param[in,out] delta the first element of the vector
/// \param[in,out] y     its other elements: n elements, `incy` apart
/// \param[in]     incy  step between its elements; a negative one walks from the far end, 0 takes the same element each
///                      time
/// \param[in]     zeta  first element of u, or 0
/// \param[in]     z     other elements of u: n elements, `incz` apart
/// \param[in]     incz  step between its elements; a negative one walks from the far end, 0 takes the same element each
///                      time
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// As of f06eac() and f06ecc(), of which it is made.
/// \par Method
/// A. S. Householder, J. ACM 5 (1958) 339-342.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06fuc() is the same operation with the arguments in another order.
/// \par Example
/// \code{.c}
/// double alpha = 3.0, x[] = {4.0}, zeta, delta = 1.0, y[] = {2.0};
/// f06frc(1, &alpha, x, 1, 0.0, &zeta);
/// f06ftc(1, &delta, y, 1, zeta, x, 1);
/// // delta = -2.2; y = {0.4}
/// \endcode
void f06ftc(Integer n, double *delta, double y[], Integer incy, double zeta, const double z[], Integer incz);

/// \brief Applies an elementary reflection to a real vector, the reflection first in the list.
///
/// Forms \f$\begin{pmatrix} \alpha \\ x \end{pmatrix} := H \begin{pmatrix} \alpha \\ x \end{pmatrix}\f$ with \f$H = I -
/// u u'\f$, \f$u = (z_1, z')'\f$, as f06fsc() gives it. With z1 = 0 H is I. alpha may stand anywhere: it need not be
/// beside x.
///
/// \param[in]     n     number of elements of z and x
/// \param[in]     z     elements of u beside z1: n elements, `incz` apart
/// \param[in]     incz  step between its elements; a negative one walks from the far end, 0 takes the same element each
///                      time
/// \param[in]     z1    the element of u that belongs to alpha, or 0
/// \param[in,out] alpha the element of the vector that belongs to z1
/// \param[in,out] x     its other elements: n elements, `incx` apart
/// \param[in]     incx  step between its elements; a negative one walks from the far end, 0 takes the same element each
///                      time
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// As of f06eac() and f06ecc(), of which it is made.
/// \par Method
/// A. S. Householder, J. ACM 5 (1958) 339-342.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06ftc() is the same operation with the arguments in another order.
/// \par Example
/// \code{.c}
/// double alpha = 3.0, z[] = {4.0}, z1, beta = 1.0, x[] = {2.0};
/// f06fsc(1, &alpha, z, 1, 0.0, &z1);
/// f06fuc(1, z, 1, z1, &beta, x, 1);
/// // beta = -2.2; x = {0.4}
/// \endcode
void f06fuc(Integer n, const double z[], Integer incz, double z1, double *alpha, double x[], Integer incx);

/* ---- Complex vectors: the standard operations ---- */

/// \brief Scalar product of two complex vectors, the first conjugated.
///
/// Forms \f$x^H y = \sum_i \bar x_i y_i\f$.
///
/// \param[in] n    number of elements; with 0 or less the result is 0
/// \param[in] x    first vector, taken conjugated: n elements, `incx` apart
/// \param[in] incx step between its elements; a negative one walks from the far end, 0 takes the same element each time
/// \param[in] y    second vector: n elements, `incy` apart
/// \param[in] incy step between its elements; a negative one walks from the far end, 0 takes the same element each time
/// \return the scalar product
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Rounding errors as of a sum of n products formed in some order: at most about n times the precision, relative to the
/// sum of the moduli of the terms.
/// \par Method
/// The standard operation zdotc (C. L. Lawson et al., ACM Trans. Math. Softw. 5 (1979) 308-323), from the BLAS library
/// that is linked; short vectors, and those with an increment of 0, by a loop in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06eac() for real vectors.
/// \par Example
/// \code{.c}
/// Complex x[] = {{1.0, 2.0}, {0.5, -1.0}}, y[] = {{2.0, 0.0}, {1.0, 1.0}};
/// Complex product = f06gbc(2, x, 1, y, 1);
/// // product = (1.5, -2.5)
/// \endcode
Complex f06gbc(Integer n, const Complex x[], Integer incx, const Complex y[], Integer incy);

/// \brief Adds a multiple of a complex vector to another.
///
/// Forms \f$y := \alpha x + y\f$. Nothing happens if alpha is 0.
///
/// \param[in]     n     number of elements; with 0 or less nothing happens
/// \param[in]     alpha the factor of x
/// \param[in]     x     vector to add: n elements, `incx` apart
/// \param[in]     incx  step between its elements; a negative one walks from the far end, 0 takes the same element each
///                      time
/// \param[in,out] y     vector to add to: n elements, `incy` apart
/// \param[in]     incy  step between its elements; a negative one walks from the far end, 0 takes the same element each
///                      time
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Each element is rounded as the formula says; the processor may fuse its multiplication and addition.
/// \par Method
/// The standard operation zaxpy (C. L. Lawson et al., ACM Trans. Math. Softw. 5 (1979) 308-323), from the BLAS library
/// that is linked; short vectors, and those with an increment of 0, by a loop in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06ecc() for real vectors.
/// \par Example
/// \code{.c}
/// Complex x[] = {{1.0, 2.0}, {0.5, -1.0}}, y[] = {{2.0, 0.0}, {1.0, 1.0}}, i = {0.0, 1.0};
/// f06gcc(2, i, x, 1, y, 1);
/// // y = {(0, 1), (2, 1.5)}
/// \endcode
void f06gcc(Integer n, Complex alpha, const Complex x[], Integer incx, Complex y[], Integer incy);

/// \brief Multiplies a complex vector by a complex number.
///
/// Forms \f$x := \alpha x\f$. With alpha = 0 a NaN or an infinity in x becomes NaN, as the product says; f06hbc()
/// clears a vector whatever it holds.
///
/// \param[in]     n     number of elements; with 0 or less nothing happens
/// \param[in]     alpha the factor
/// \param[in,out] x     the vector: n elements, `incx` apart
/// \param[in]     incx  step between its elements; a negative one walks from the far end, 0 takes the same element each
///                      time
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Each element is rounded as the formula says; the processor may fuse its multiplication and addition.
/// \par Method
/// The standard operation zscal (C. L. Lawson et al., ACM Trans. Math. Softw. 5 (1979) 308-323). In place; with an
/// increment other than 1 or -1 from the BLAS library that is linked.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06jdc() for a real factor; f06edc() for real vectors.
/// \par Example
/// \code{.c}
/// Complex x[] = {{1.0, 2.0}, {0.5, -1.0}}, i = {0.0, 1.0};
/// f06gdc(2, i, x, 1);
/// // x = {(-2, 1), (1, 0.5)}
/// \endcode
void f06gdc(Integer n, Complex alpha, Complex x[], Integer incx);

/// \brief Copies a complex vector.
///
/// Forms \f$y := x\f$.
///
/// \param[in]  n    number of elements; with 0 or less nothing happens
/// \param[in]  x    vector to copy: n elements, `incx` apart
/// \param[in]  incx step between its elements; a negative one walks from the far end, 0 takes the same element each
///                  time
/// \param[out] y    the copy: n elements, `incy` apart
/// \param[in]  incy step between its elements; a negative one walks from the far end, 0 takes the same element each
///                  time
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Exact.
/// \par Method
/// The standard operation zcopy (C. L. Lawson et al., ACM Trans. Math. Softw. 5 (1979) 308-323), from the BLAS library
/// that is linked; short vectors, and those with an increment of 0, by a loop in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06kfc() from real to complex; f06efc() for real vectors.
/// \par Example
/// \code{.c}
/// Complex x[] = {{1.0, 2.0}, {0.5, -1.0}}, y[2];
/// f06gfc(2, x, 1, y, -1);   // backwards
/// // y = {(0.5, -1), (1, 2)}
/// \endcode
void f06gfc(Integer n, const Complex x[], Integer incx, Complex y[], Integer incy);

/// \brief Interchanges two complex vectors.
///
/// Forms \f$x \leftrightarrow y\f$.
///
/// \param[in]     n    number of elements; with 0 or less nothing happens
/// \param[in,out] x    first vector: n elements, `incx` apart
/// \param[in]     incx step between its elements; a negative one walks from the far end, 0 takes the same element each
///                     time
/// \param[in,out] y    second vector: n elements, `incy` apart
/// \param[in]     incy step between its elements; a negative one walks from the far end, 0 takes the same element each
///                     time
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Exact.
/// \par Method
/// The standard operation zswap (C. L. Lawson et al., ACM Trans. Math. Softw. 5 (1979) 308-323), from the BLAS library
/// that is linked; short vectors, and those with an increment of 0, by a loop in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06egc() for real vectors.
/// \par Example
/// \code{.c}
/// Complex x[] = {{1.0, 2.0}, {0.5, -1.0}}, y[] = {{2.0, 0.0}, {1.0, 1.0}};
/// f06ggc(2, x, 1, y, 1);
/// // x = {(2, 0), (1, 1)}; y = {(1, 2), (0.5, -1)}
/// \endcode
void f06ggc(Integer n, Complex x[], Integer incx, Complex y[], Integer incy);

/* ---- Complex vectors: further operations, reflections, sequences of rotations ---- */

/// \brief Loads a constant into a complex vector.
///
/// Forms \f$x_i := \mathit{con}\f$, whatever x holds.
///
/// \param[in]  n    number of elements; with 0 or less nothing happens
/// \param[in]  con  the constant
/// \param[out] x    the vector: n elements, `incx` apart
/// \param[in]  incx step between its elements; a negative one walks from the far end, 0 takes the same element each
///                  time
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex zero = {0.0, 0.0}, x[2];
/// f06hbc(2, zero, x, 1);
/// // x = {(0, 0), (0, 0)}
/// \endcode
void f06hbc(Integer n, Complex con, Complex x[], Integer incx);

/// \brief Changes the sign of a complex vector.
///
/// Forms \f$x := -x\f$.
///
/// \param[in]     n    number of elements; with 0 or less nothing happens
/// \param[in,out] x    the vector: n elements, `incx` apart
/// \param[in]     incx step between its elements; a negative one walks from the far end, 0 takes the same element each
///                     time
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06fgc() for real vectors.
/// \par Example
/// \code{.c}
/// Complex x[] = {{1.0, -2.0}};
/// f06hgc(1, x, 1);
/// // x = {(-1, 2)}
/// \endcode
void f06hgc(Integer n, Complex x[], Integer incx);

/// \brief Applies a plane rotation with complex cosine and sine to two complex vectors.
///
/// Forms \f$x := c x + s y,\; y := \bar c y - \bar s x\f$ with the old x on the right. The rotations that f06cac() and
/// f06ccc() choose have a real cosine and put \f$\bar s\f$ where this one has s: hand over {c, 0} and the conjugate of
/// s.
///
/// \param[in]     n    number of elements; with 0 or less nothing happens
/// \param[in,out] x    first vector: n elements, `incx` apart
/// \param[in]     incx step between its elements; a negative one walks from the far end, 0 takes the same element each
///                     time
/// \param[in,out] y    second vector: n elements, `incy` apart
/// \param[in]     incy step between its elements; a negative one walks from the far end, 0 takes the same element each
///                     time
/// \param[in]     c    cosine of the rotation
/// \param[in]     s    its sine
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Each element is rounded as the formula says.
/// \par Method
/// The formula, element by element.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06epc() for real vectors.
/// \par Example
/// \code{.c}
/// Complex x[] = {{3.0, 0.0}}, y[] = {{0.0, 4.0}}, c = {0.6, 0.0}, s = {0.0, -0.8};
/// f06hpc(1, x, 1, y, 1, c, s);
/// // x = {(5, 0)}; y = {(0, 0)}
/// \endcode
void f06hpc(Integer n, Complex x[], Integer incx, Complex y[], Integer incy, Complex c, Complex s);

/// \brief Chooses a sequence of plane rotations that takes a complex vector into one element.
///
/// Finds n rotations \f$P_k = \begin{pmatrix} c & \bar s \\ -s & c \end{pmatrix}\f$ that reduce the vector of alpha and
/// \f$x_1 \dots x_n\f$ to the one element beta, in the place of alpha. ForwardSequence: \f$P = P_n \cdots P_1\f$;
/// BackwardSequence: \f$P = P_1 \cdots P_n\f$; the factor on the right acts first.
/// - VariablePivot, BackwardSequence: \f$P\,(\alpha, x_1, \dots, x_n)' = (\beta, 0, \dots, 0)'\f$, \f$P_k\f$ in the
///   plane of elements k and k+1 of that vector.
/// - VariablePivot, ForwardSequence: \f$P\,(x_1, \dots, x_n, \alpha)' = (0, \dots, 0, \beta)'\f$, \f$P_k\f$ in the
///   plane of elements k and k+1 of that vector.
/// - FixedPivot, either direction: \f$P\,(\alpha, x_1, \dots, x_n)' = (\beta, 0, \dots, 0)'\f$, \f$P_k\f$ in the plane
///   of elements 1 and k+1; for the vector with alpha last the planes are (k, n+1) and the sines are the negatives of
///   the conjugates.
///
/// \param[in]     pivot  VariablePivot or FixedPivot
/// \param[in]     direct ForwardSequence or BackwardSequence
/// \param[in]     n      number of elements of x and of rotations; with 0 or less nothing happens
/// \param[in,out] alpha  the element that takes the others in; beta on return
/// \param[in,out] x      the elements to reduce; on return the tangents of the rotations: n elements, `incx` apart
/// \param[in]     incx   step between its elements; a negative one walks from the far end, 0 takes the same element
///                       each time
/// \param[out]    c      n cosines, `c[k-1]` of rotation k
/// \param[out]    s      n sines, `s[k-1]` of rotation k
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `pivot`: not VariablePivot or FixedPivot.
/// - 2, `direct`: not ForwardSequence or BackwardSequence.
/// \par Accuracy
/// P is orthogonal and beta right to about n times the precision.
/// \par Method
/// Rotations after W. Givens, J. SIAM 6 (1958) 26-50, kept by their tangents.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06txc() applies such a sequence; f06fqc() for real vectors.
/// \par Example
/// \code{.c}
/// Complex alpha = {2.0, 0.0}, x[] = {{0.0, 1.0}, {0.0, 2.0}}, s[2];
/// double c[2];
/// f06hqc(FixedPivot, ForwardSequence, 2, &alpha, x, 1, c, s);
/// // alpha = (3, 0); c = {0.894427, 0.745356}; s = {(0, 0.447214), (0, 0.666667)}
/// \endcode
void f06hqc(Integer pivot, Integer direct, Integer n, Complex *alpha, Complex x[], Integer incx, double c[],
            Complex s[]);

/// \brief Chooses the elementary reflection that takes a complex vector into a real first element.
///
/// Finds the unitary \f$H = I - \gamma u u^H\f$, \f$u = (\zeta, z')'\f$, \f$\zeta\f$ real, \f$\gamma = 1 +
/// i\,\mathrm{Im}\,\theta\f$, \f$|\gamma|^2 u^H u = 2\f$, with \f$H \begin{pmatrix} \alpha \\ x \end{pmatrix} =
/// \begin{pmatrix} \beta \\ 0 \end{pmatrix}\f$, \f$\beta = -\mathrm{sign}(\mathrm{Re}\,\alpha) \sqrt{|\alpha|^2 + x^H
/// x}\f$, a real number. theta holds both: \f$\zeta = \mathrm{Re}\,\theta\f$, in \f$[1, \sqrt 2]\f$, and
/// \f$\mathrm{Im}\,\gamma = \mathrm{Im}\,\theta\f$. x counts as zero when n is 0 or less or no part of an element
/// exceeds the greater of `tol` and x02ajc() times the greater part of alpha. Then, if alpha is real, theta = 0, H = I
/// and nothing is changed; if not, x is cleared, and H makes alpha real.
///
/// \param[in]     n     number of elements of x
/// \param[in,out] alpha the first element; (beta, 0) on return
/// \param[in,out] x     the other elements; z on return: n elements, `incx` apart
/// \param[in]     incx  step between its elements; a negative one walks from the far end, 0 takes the same element each
///                      time
/// \param[in]     tol   parts up to this size count as zeros; 0 or less: only rounding errors of alpha do
/// \param[out]    theta (zeta, Im gamma): (0, 0) if H = I
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// H is unitary, and H (alpha; x) right, to a few times the precision; nothing overflows unless beta does.
/// \par Method
/// A. S. Householder, J. ACM 5 (1958) 339-342. The sum |Re alpha| + |beta| cannot cancel.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06frc() for real vectors.
/// \par Example
/// \code{.c}
/// Complex alpha = {3.0, 0.0}, x[] = {{0.0, 4.0}}, theta;
/// f06hrc(1, &alpha, x, 1, 0.0, &theta);
/// // alpha = (-5, 0); x = {(0, 0.632456)}; theta = (1.26491, 0)
/// \endcode
void f06hrc(Integer n, Complex *alpha, Complex x[], Integer incx, double tol, Complex *theta);

/* ---- Mixed vectors: lengths, sums, greatest elements ---- */

/// \brief Multiplies a complex vector by a real number.
///
/// Forms \f$x := \alpha x\f$, alpha real. With alpha = 0 a NaN or an infinity in x becomes NaN, as the product says;
/// f06hbc() clears a vector whatever it holds.
///
/// \param[in]     n     number of elements; with 0 or less nothing happens
/// \param[in]     alpha the factor
/// \param[in,out] x     the vector: n elements, `incx` apart
/// \param[in]     incx  step between its elements; a negative one walks from the far end, 0 takes the same element each
///                      time
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Each element is rounded as the formula says; the processor may fuse its multiplication and addition.
/// \par Method
/// The standard operation zdscal (C. L. Lawson et al., ACM Trans. Math. Softw. 5 (1979) 308-323), from the BLAS library
/// that is linked; short vectors, and those with an increment of 0, by a loop in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06gdc() for a complex factor; f06edc() for real vectors.
/// \par Example
/// \code{.c}
/// Complex x[] = {{1.0, 2.0}, {0.5, -1.0}};
/// f06jdc(2, 2.0, x, 1);
/// // x = {(2, 4), (1, -2)}
/// \endcode
void f06jdc(Integer n, double alpha, Complex x[], Integer incx);

/// \brief Euclidean norm of a complex vector.
///
/// Forms \f$\|x\|_2 = \sqrt{x^H x}\f$. No intermediate result overflows or underflows: the norm is right whenever it
/// can be represented, infinite beyond, NaN if a part of an element is NaN.
///
/// \param[in] n    number of elements; with 0 or less the result is 0
/// \param[in] x    the vector: n elements, `incx` apart
/// \param[in] incx step between its elements; a negative one walks from the far end, 0 takes the same element each time
/// \return the norm
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// About 1 ulp, whatever the length and the range of the elements.
/// \par Method
/// The standard operation dznrm2 (C. L. Lawson et al., ACM Trans. Math. Softw. 5 (1979) 308-323). A sum of squares in
/// 32 lanes, the sums of its pieces added with their rounding errors kept; it is formed again from numbers scaled by a
/// power of 2 when it leaves the safe range.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06kjc() and f06bmc() for a norm in steps; f06ejc() for real vectors.
/// \par Example
/// \code{.c}
/// Complex x[] = {{1.0, 2.0}, {0.5, -1.0}};
/// double length = f06jjc(2, x, 1);
/// // length = 2.5
/// \endcode
double f06jjc(Integer n, const Complex x[], Integer incx);

/// \brief Sum of the absolute values of the parts of a complex vector.
///
/// Forms \f$\sum_i (|\mathrm{Re}\,x_i| + |\mathrm{Im}\,x_i|)\f$: not the sum of the moduli.
///
/// \param[in] n    number of elements; with 0 or less the result is 0
/// \param[in] x    the vector: n elements, `incx` apart
/// \param[in] incx step between its elements; a negative one walks from the far end, 0 takes the same element each time
/// \return the sum
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// At most about n/16 times the precision, relative.
/// \par Method
/// The standard operation dzasum (C. L. Lawson et al., ACM Trans. Math. Softw. 5 (1979) 308-323). Summed in 32 lanes.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06ekc() for real vectors.
/// \par Example
/// \code{.c}
/// Complex x[] = {{1.0, 2.0}, {0.5, -1.0}};
/// double sum = f06jkc(2, x, 1);
/// // sum = 4.5
/// \endcode
double f06jkc(Integer n, const Complex x[], Integer incx);

/// \brief Position of the element of a real vector with the greatest absolute value.
///
/// Elements are counted in the order in which the increment walks. A NaN in front counts as the greatest; elsewhere it
/// is passed over.
///
/// \param[in] n    number of elements; with 0 or less the result is 0
/// \param[in] x    the vector: n elements, `incx` apart
/// \param[in] incx step between its elements; a negative one walks from the far end, 0 takes the same element each time
/// \return the position, **counted from 1**, of the first element with the greatest |x|; 0 if n is 0 or less
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Exact.
/// \par Method
/// The standard operation idamax (C. L. Lawson et al., ACM Trans. Math. Softw. 5 (1979) 308-323). The greatest value is
/// found in lanes, then its first place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06flc() for the values; f06jmc() for complex vectors.
/// \par Example
/// \code{.c}
/// double x[] = {1.5, -2.0, 0.5};
/// Integer k = f06jlc(3, x, 1);   // x[k - 1] is -2
/// // k = 2
/// \endcode
Integer f06jlc(Integer n, const double x[], Integer incx);

/// \brief Position of the element of a complex vector with the greatest |re| + |im|.
///
/// Elements are counted in the order in which the increment walks; their size is \f$|\mathrm{Re}\,x| +
/// |\mathrm{Im}\,x|\f$, not the modulus. A NaN in front counts as the greatest; elsewhere it is passed over.
///
/// \param[in] n    number of elements; with 0 or less the result is 0
/// \param[in] x    the vector: n elements, `incx` apart
/// \param[in] incx step between its elements; a negative one walks from the far end, 0 takes the same element each time
/// \return the position, **counted from 1**, of the first element with the greatest |re| + |im|; 0 if n is 0 or less
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Exact.
/// \par Method
/// The standard operation izamax (C. L. Lawson et al., ACM Trans. Math. Softw. 5 (1979) 308-323).
/// \par Thread safety
/// Safe.
/// \par See also
/// f06jlc() for real vectors.
/// \par Example
/// \code{.c}
/// Complex x[] = {{1.0, 2.0}, {0.5, -1.0}};
/// Integer k = f06jmc(2, x, 1);
/// // k = 1
/// \endcode
Integer f06jmc(Integer n, const Complex x[], Integer incx);

/* ---- Mixed vectors: further operations ---- */

/// \brief Copies a real vector into a complex one.
///
/// Forms \f$y_k := x_k + 0 i\f$.
///
/// \param[in]  n    number of elements; with 0 or less nothing happens
/// \param[in]  x    vector to copy: n elements, `incx` apart
/// \param[in]  incx step between its elements; a negative one walks from the far end, 0 takes the same element each
///                  time
/// \param[out] y    the copy, with imaginary parts 0: n elements, `incy` apart
/// \param[in]  incy step between its elements; a negative one walks from the far end, 0 takes the same element each
///                  time
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06gfc() copies a complex vector.
/// \par Example
/// \code{.c}
/// double x[] = {1.0, 2.0};
/// Complex y[2];
/// f06kfc(2, x, 1, y, 1);
/// // y = {(1, 0), (2, 0)}
/// \endcode
void f06kfc(Integer n, const double x[], Integer incx, Complex y[], Integer incy);

/// \brief Takes a complex vector into a scaled sum of squares.
///
/// Finds new values of scale and sumsq with \f$\mathit{scale}^2\,\mathit{sumsq} = \mathit{scale}_0^2\,\mathit{sumsq}_0
/// + x^H x\f$, scale being the greatest of the old one and the moduli of the real and imaginary parts. Start with scale
/// = 0, sumsq = 1; the norm is then f06bmc(scale, sumsq), and no intermediate result overflows or underflows. Zeros
/// change nothing. A NaN makes sumsq NaN, an infinity makes scale infinite.
///
/// \param[in]     n     number of elements; with 0 or less nothing happens
/// \param[in]     x     the vector: n elements, `incx` apart
/// \param[in]     incx  step between its elements; a negative one walks from the far end, 0 takes the same element each
///                      time
/// \param[in,out] scale the scale, not negative; 0 at the start
/// \param[in,out] sumsq the scaled sum of squares, positive; 1 at the start
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// About 2 ulp of sumsq for one vector, whatever its length; scale is exact.
/// \par Method
/// As f06fjc(), for the real and imaginary parts one after another.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06jjc() for the norm at once; f06fjc() for real vectors.
/// \par Example
/// \code{.c}
/// Complex x[] = {{3e200, 4e200}};
/// double scale = 0.0, sumsq = 1.0;
/// f06kjc(1, x, 1, &scale, &sumsq);
/// double length = f06bmc(scale, sumsq);
/// // scale = 4e+200; sumsq = 1.5625; length = 5e+200
/// \endcode
void f06kjc(Integer n, const Complex x[], Integer incx, double *scale, double *sumsq);

/// \brief Counts the leading elements of a real vector that are not negligible.
///
/// Counts the leading elements for which \f$|x_k| > \mathit{tol} \cdot \max(|x_1|, \dots, |x_{k-1}|)\f$, and stops at
/// the first for which this fails: a zero in front, or a NaN, is such a one. For singular values, or the diagonal of a
/// triangular factor, that is the numerical rank.
///
/// \param[in] n    number of elements; with 0 or less the result is 0
/// \param[in] x    the vector: n elements, `incx` apart
/// \param[in] incx step between its elements; a negative one walks from the far end, 0 takes the same element each time
/// \param[in] tol  the relative size of what is negligible; x02ajc() is taken if it is negative
/// \return the count, from 0 to n
///
/// \par Errors
/// None, and no error record: there is nothing to refuse.
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double x[] = {4.0, 1.0, 1e-18, 0.0};
/// Integer rank = f06klc(4, x, 1, -1.0);
/// // rank = 2
/// \endcode
Integer f06klc(Integer n, const double x[], Integer incx, double tol);

/* ---- Real matrix and vector: the standard operations ---- */

/// \brief Product of a real general matrix and a vector.
///
/// Forms \f$y := \alpha\, \mathrm{op}(A)\, x + \beta y\f$, A being m by n. Nothing happens if m or n is 0, or if alpha
/// is 0 and beta 1.
///
/// \param[in]     trans NoTranspose: op(A) = A; Transpose or ConjugateTranspose: A'
/// \param[in]     m     rows of A, not negative
/// \param[in]     n     columns of A, not negative
/// \param[in]     alpha the factor of the product; with 0 neither A nor x is read
/// \param[in]     a     the matrix A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda   length of a row of the array: at least max(1, n)
/// \param[in]     x     the vector x: n (if transposed m) elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
/// \param[in]     beta  the factor of y; with 0 y need not be set, and a NaN in it does not matter
/// \param[in,out] y     the vector y: m (if transposed n) elements, `incy` apart
/// \param[in]     incy  step between its elements, not 0; a negative one walks from the far end
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `trans`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 2, `m`: negative.
/// - 3, `n`: negative.
/// - 6, `tda`: less than max(1, n).
/// - 8, `incx`: 0.
/// - 11, `incy`: 0.
/// \par Accuracy
/// Backward stable: the result is exact for elements of the matrix that are changed by at most about n times the
/// precision, relative to each.
/// \par Method
/// The standard operation dgemv (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06sac() for complex data. f06yac() for several vectors at once.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 2.0, 3.0, 4.0}, x[] = {1.0, -1.0}, y[] = {5.0, 6.0};
/// f06pac(NoTranspose, 2, 2, 1.0, a, 2, x, 1, 1.0, y, 1);
/// // y = {4, 5}
/// \endcode
void f06pac(Integer trans, Integer m, Integer n, double alpha, const double a[], Integer tda, const double x[],
            Integer incx, double beta, double y[], Integer incy);

/// \brief Product of a real band matrix and a vector.
///
/// Forms \f$y := \alpha\, \mathrm{op}(A)\, x + \beta y\f$, A being m by n with kl diagonals below and ku above the main
/// one. Nothing happens if m or n is 0, or if alpha is 0 and beta 1.
///
/// \param[in]     trans NoTranspose: op(A) = A; Transpose or ConjugateTranspose: A'
/// \param[in]     m     rows of A, not negative
/// \param[in]     n     columns of A, not negative
/// \param[in]     kl    diagonals below the main one, not negative
/// \param[in]     ku    diagonals above the main one, not negative
/// \param[in]     alpha the factor of the product; with 0 neither A nor x is read
/// \param[in]     a     the band of A, m rows: element (i, j) at `a[i * tda + kl + j - i]`, so that a row of the array
///                      holds the elements of a row of A from its lowest to its highest diagonal; places outside A are
///                      not read
/// \param[in]     tda   length of a row of the array: at least kl + ku + 1
/// \param[in]     x     the vector x: n (if transposed m) elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
/// \param[in]     beta  the factor of y; with 0 y need not be set, and a NaN in it does not matter
/// \param[in,out] y     the vector y: m (if transposed n) elements, `incy` apart
/// \param[in]     incy  step between its elements, not 0; a negative one walks from the far end
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `trans`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 2, `m`: negative.
/// - 3, `n`: negative.
/// - 4, `kl`: negative.
/// - 5, `ku`: negative.
/// - 8, `tda`: less than kl + ku + 1.
/// - 10, `incx`: 0.
/// - 13, `incy`: 0.
/// \par Accuracy
/// Backward stable: the result is exact for elements of the matrix that are changed by at most about n times the
/// precision, relative to each.
/// \par Method
/// The standard operation dgbmv (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06sbc() for complex data.
/// \par Example
/// \code{.c}
/// // a tridiagonal matrix
/// double a[] = {0.0, 2.0, 1.0, 1.0, 2.0, 1.0, 1.0, 2.0, 0.0}, x[] = {1.0, 2.0, 3.0}, y[] = {0.0, 0.0, 0.0};
/// f06pbc(NoTranspose, 3, 3, 1, 1, 1.0, a, 3, x, 1, 0.0, y, 1);
/// // y = {4, 8, 8}
/// \endcode
void f06pbc(Integer trans, Integer m, Integer n, Integer kl, Integer ku, double alpha, const double a[], Integer tda,
            const double x[], Integer incx, double beta, double y[], Integer incy);

/// \brief Product of a real symmetric matrix and a vector.
///
/// Forms \f$y := \alpha A x + \beta y\f$, A being symmetric of order n, one triangle of it stored. Nothing happens if n
/// is 0, or if alpha is 0 and beta 1.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle is stored; the other is not touched
/// \param[in]     n     order of A, not negative
/// \param[in]     alpha the factor of the product; with 0 neither A nor x is read
/// \param[in]     a     the stored triangle of A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda   length of a row of the array: at least max(1, n)
/// \param[in]     x     the vector x: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
/// \param[in]     beta  the factor of y; with 0 y need not be set, and a NaN in it does not matter
/// \param[in,out] y     the vector y: n elements, `incy` apart
/// \param[in]     incy  step between its elements, not 0; a negative one walks from the far end
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `n`: negative.
/// - 5, `tda`: less than max(1, n).
/// - 7, `incx`: 0.
/// - 10, `incy`: 0.
/// \par Accuracy
/// Backward stable: the result is exact for elements of the matrix that are changed by at most about n times the
/// precision, relative to each.
/// \par Method
/// The standard operation dsymv (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06scc() for complex data.
/// \par Example
/// \code{.c}
/// double a[] = {2.0, 1.0, -9.0, 3.0}, x[] = {1.0, -1.0}, y[] = {5.0, 6.0};
/// f06pcc(UpperTriangle, 2, 1.0, a, 2, x, 1, 1.0, y, 1);
/// // y = {6, 4}
/// \endcode
void f06pcc(Integer uplo, Integer n, double alpha, const double a[], Integer tda, const double x[], Integer incx,
            double beta, double y[], Integer incy);

/// \brief Product of a real symmetric band matrix and a vector.
///
/// Forms \f$y := \alpha A x + \beta y\f$, A being symmetric of order n with k diagonals on either side of the main one,
/// half of the band stored. Nothing happens if n is 0, or if alpha is 0 and beta 1.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle is stored; the other is not touched
/// \param[in]     n     order of A, not negative
/// \param[in]     k     diagonals above (or below) the main one, not negative
/// \param[in]     alpha the factor of the product; with 0 neither A nor x is read
/// \param[in]     a     the stored half of the band of A, n rows: element (i, j) at `a[i * tda + j - i]` if the upper
///                      triangle is stored (the diagonal first in each row), at `a[i * tda + k + j - i]` if the lower
///                      is (the diagonal last); places outside A are not read
/// \param[in]     tda   length of a row of the array: at least k + 1
/// \param[in]     x     the vector x: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
/// \param[in]     beta  the factor of y; with 0 y need not be set, and a NaN in it does not matter
/// \param[in,out] y     the vector y: n elements, `incy` apart
/// \param[in]     incy  step between its elements, not 0; a negative one walks from the far end
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `n`: negative.
/// - 3, `k`: negative.
/// - 6, `tda`: less than k + 1.
/// - 8, `incx`: 0.
/// - 11, `incy`: 0.
/// \par Accuracy
/// Backward stable: the result is exact for elements of the matrix that are changed by at most about n times the
/// precision, relative to each.
/// \par Method
/// The standard operation dsbmv (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06sdc() for complex data.
/// \par Example
/// \code{.c}
/// // a tridiagonal matrix
/// double a[] = {2.0, 1.0, 2.0, 1.0, 2.0, 0.0}, x[] = {1.0, 2.0, 3.0}, y[] = {0.0, 0.0, 0.0};
/// f06pdc(UpperTriangle, 3, 1, 1.0, a, 2, x, 1, 0.0, y, 1);
/// // y = {4, 8, 8}
/// \endcode
void f06pdc(Integer uplo, Integer n, Integer k, double alpha, const double a[], Integer tda, const double x[],
            Integer incx, double beta, double y[], Integer incy);

/// \brief Product of a packed real symmetric matrix and a vector.
///
/// Forms \f$y := \alpha A x + \beta y\f$, A being symmetric of order n, one triangle of it packed. Nothing happens if n
/// is 0, or if alpha is 0 and beta 1.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle is packed
/// \param[in]     n     order of A, not negative
/// \param[in]     alpha the factor of the product; with 0 neither A nor x is read
/// \param[in]     ap    the triangle of A packed by rows, one after another: n (n + 1) / 2 elements; element (i, j) at
///                      `ap[j + i * (2 * n - i - 1) / 2]` for the upper triangle, at `ap[i * (i + 1) / 2 + j]` for the
///                      lower, from 0
/// \param[in]     x     the vector x: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
/// \param[in]     beta  the factor of y; with 0 y need not be set, and a NaN in it does not matter
/// \param[in,out] y     the vector y: n elements, `incy` apart
/// \param[in]     incy  step between its elements, not 0; a negative one walks from the far end
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `n`: negative.
/// - 6, `incx`: 0.
/// - 9, `incy`: 0.
/// \par Accuracy
/// Backward stable: the result is exact for elements of the matrix that are changed by at most about n times the
/// precision, relative to each.
/// \par Method
/// The standard operation dspmv (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06sec() for complex data.
/// \par Example
/// \code{.c}
/// double ap[] = {2.0, 1.0, 3.0}, x[] = {1.0, -1.0}, y[] = {5.0, 6.0};
/// f06pec(UpperTriangle, 2, 1.0, ap, x, 1, 1.0, y, 1);
/// // y = {6, 4}
/// \endcode
void f06pec(Integer uplo, Integer n, double alpha, const double ap[], const double x[], Integer incx, double beta,
            double y[], Integer incy);

/// \brief Product of a real triangular matrix and a vector.
///
/// Forms \f$x := \mathrm{op}(A)\, x\f$. Nothing happens if n is 0.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle A is; the other half of the array is not read
/// \param[in]     trans NoTranspose: op(A) = A; Transpose or ConjugateTranspose: A'
/// \param[in]     diag  UnitTriangular: the diagonal is taken as 1 and not read; NotUnitTriangular: it is read
/// \param[in]     n     order of A, not negative
/// \param[in]     a     the triangle of A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda   length of a row of the array: at least max(1, n)
/// \param[in,out] x     the vector x, overwritten with the product: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `trans`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 3, `diag`: not UnitTriangular or NotUnitTriangular.
/// - 4, `n`: negative.
/// - 6, `tda`: less than max(1, n).
/// - 8, `incx`: 0.
/// \par Accuracy
/// Backward stable: the result is exact for elements of the matrix that are changed by at most about n times the
/// precision, relative to each.
/// \par Method
/// The standard operation dtrmv (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06pjc() is the inverse operation.
/// \par Example
/// \code{.c}
/// double a[] = {2.0, 1.0, -9.0, 3.0}, x[] = {2.0, 4.0};
/// f06pfc(UpperTriangle, NoTranspose, NotUnitTriangular, 2, a, 2, x, 1);
/// // x = {8, 12}
/// \endcode
void f06pfc(Integer uplo, Integer trans, Integer diag, Integer n, const double a[], Integer tda, double x[],
            Integer incx);

/// \brief Product of a real triangular band matrix and a vector.
///
/// Forms \f$x := \mathrm{op}(A)\, x\f$. Nothing happens if n is 0.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle A is; the other half of the array is not read
/// \param[in]     trans NoTranspose: op(A) = A; Transpose or ConjugateTranspose: A'
/// \param[in]     diag  UnitTriangular: the diagonal is taken as 1 and not read; NotUnitTriangular: it is read
/// \param[in]     n     order of A, not negative
/// \param[in]     k     diagonals above (or below) the main one, not negative
/// \param[in]     a     the band of A, n rows: element (i, j) at `a[i * tda + j - i]` if the upper triangle is stored
///                      (the diagonal first in each row), at `a[i * tda + k + j - i]` if the lower is (the diagonal
///                      last); places outside A are not read
/// \param[in]     tda   length of a row of the array: at least k + 1
/// \param[in,out] x     the vector x, overwritten with the product: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `trans`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 3, `diag`: not UnitTriangular or NotUnitTriangular.
/// - 4, `n`: negative.
/// - 5, `k`: negative.
/// - 7, `tda`: less than k + 1.
/// - 9, `incx`: 0.
/// \par Accuracy
/// Backward stable: the result is exact for elements of the matrix that are changed by at most about n times the
/// precision, relative to each.
/// \par Method
/// The standard operation dtbmv (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06pkc() is the inverse operation.
/// \par Example
/// \code{.c}
/// double a[] = {2.0, 1.0, 2.0, 1.0, 2.0, 0.0}, x[] = {2.0, 4.0, 2.0};
/// f06pgc(UpperTriangle, NoTranspose, NotUnitTriangular, 3, 1, a, 2, x, 1);
/// // x = {8, 10, 4}
/// \endcode
void f06pgc(Integer uplo, Integer trans, Integer diag, Integer n, Integer k, const double a[], Integer tda, double x[],
            Integer incx);

/// \brief Product of a real triangular packed matrix and a vector.
///
/// Forms \f$x := \mathrm{op}(A)\, x\f$. Nothing happens if n is 0.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle A is
/// \param[in]     trans NoTranspose: op(A) = A; Transpose or ConjugateTranspose: A'
/// \param[in]     diag  UnitTriangular: the diagonal is taken as 1 and not read; NotUnitTriangular: it is read
/// \param[in]     n     order of A, not negative
/// \param[in]     ap    the triangle of A packed by rows, one after another: n (n + 1) / 2 elements; element (i, j) at
///                      `ap[j + i * (2 * n - i - 1) / 2]` for the upper triangle, at `ap[i * (i + 1) / 2 + j]` for the
///                      lower, from 0
/// \param[in,out] x     the vector x, overwritten with the product: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `trans`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 3, `diag`: not UnitTriangular or NotUnitTriangular.
/// - 4, `n`: negative.
/// - 7, `incx`: 0.
/// \par Accuracy
/// Backward stable: the result is exact for elements of the matrix that are changed by at most about n times the
/// precision, relative to each.
/// \par Method
/// The standard operation dtpmv (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06plc() is the inverse operation.
/// \par Example
/// \code{.c}
/// double ap[] = {2.0, 1.0, 3.0}, x[] = {2.0, 4.0};
/// f06phc(UpperTriangle, NoTranspose, NotUnitTriangular, 2, ap, x, 1);
/// // x = {8, 12}
/// \endcode
void f06phc(Integer uplo, Integer trans, Integer diag, Integer n, const double ap[], double x[], Integer incx);

/// \brief Solves a system with a real triangular matrix.
///
/// Solves \f$\mathrm{op}(A)\, x = b\f$, that is forms \f$x := \mathrm{op}(A)^{-1} x\f$. There is no test for a singular
/// matrix: a zero on the diagonal gives infinities or NaNs. Nothing happens if n is 0.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle A is; the other half of the array is not read
/// \param[in]     trans NoTranspose: op(A) = A; Transpose or ConjugateTranspose: A'
/// \param[in]     diag  UnitTriangular: the diagonal is taken as 1 and not read; NotUnitTriangular: it is read
/// \param[in]     n     order of A, not negative
/// \param[in]     a     the triangle of A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda   length of a row of the array: at least max(1, n)
/// \param[in,out] x     on entry the right-hand side, on return the solution: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `trans`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 3, `diag`: not UnitTriangular or NotUnitTriangular.
/// - 4, `n`: negative.
/// - 6, `tda`: less than max(1, n).
/// - 8, `incx`: 0.
/// \par Accuracy
/// Backward stable: the solution is exact for a matrix whose elements are changed by at most about n times the
/// precision.
/// \par Method
/// The standard operation dtrsv (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06pfc() is the inverse operation.
/// \par Example
/// \code{.c}
/// double a[] = {2.0, 1.0, -9.0, 3.0}, x[] = {2.0, 4.0};
/// f06pjc(UpperTriangle, NoTranspose, NotUnitTriangular, 2, a, 2, x, 1);
/// // x = {0.333333, 1.33333}
/// \endcode
void f06pjc(Integer uplo, Integer trans, Integer diag, Integer n, const double a[], Integer tda, double x[],
            Integer incx);

/// \brief Solves a system with a real triangular band matrix.
///
/// Solves \f$\mathrm{op}(A)\, x = b\f$, that is forms \f$x := \mathrm{op}(A)^{-1} x\f$. There is no test for a singular
/// matrix: a zero on the diagonal gives infinities or NaNs. Nothing happens if n is 0.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle A is; the other half of the array is not read
/// \param[in]     trans NoTranspose: op(A) = A; Transpose or ConjugateTranspose: A'
/// \param[in]     diag  UnitTriangular: the diagonal is taken as 1 and not read; NotUnitTriangular: it is read
/// \param[in]     n     order of A, not negative
/// \param[in]     k     diagonals above (or below) the main one, not negative
/// \param[in]     a     the band of A, n rows: element (i, j) at `a[i * tda + j - i]` if the upper triangle is stored
///                      (the diagonal first in each row), at `a[i * tda + k + j - i]` if the lower is (the diagonal
///                      last); places outside A are not read
/// \param[in]     tda   length of a row of the array: at least k + 1
/// \param[in,out] x     on entry the right-hand side, on return the solution: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `trans`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 3, `diag`: not UnitTriangular or NotUnitTriangular.
/// - 4, `n`: negative.
/// - 5, `k`: negative.
/// - 7, `tda`: less than k + 1.
/// - 9, `incx`: 0.
/// \par Accuracy
/// Backward stable: the solution is exact for a matrix whose elements are changed by at most about n times the
/// precision.
/// \par Method
/// The standard operation dtbsv (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06pgc() is the inverse operation.
/// \par Example
/// \code{.c}
/// double a[] = {2.0, 1.0, 2.0, 1.0, 2.0, 0.0}, x[] = {2.0, 4.0, 2.0};
/// f06pkc(UpperTriangle, NoTranspose, NotUnitTriangular, 3, 1, a, 2, x, 1);
/// // x = {0.25, 1.5, 1}
/// \endcode
void f06pkc(Integer uplo, Integer trans, Integer diag, Integer n, Integer k, const double a[], Integer tda, double x[],
            Integer incx);

/// \brief Solves a system with a real triangular packed matrix.
///
/// Solves \f$\mathrm{op}(A)\, x = b\f$, that is forms \f$x := \mathrm{op}(A)^{-1} x\f$. There is no test for a singular
/// matrix: a zero on the diagonal gives infinities or NaNs. Nothing happens if n is 0.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle A is
/// \param[in]     trans NoTranspose: op(A) = A; Transpose or ConjugateTranspose: A'
/// \param[in]     diag  UnitTriangular: the diagonal is taken as 1 and not read; NotUnitTriangular: it is read
/// \param[in]     n     order of A, not negative
/// \param[in]     ap    the triangle of A packed by rows, one after another: n (n + 1) / 2 elements; element (i, j) at
///                      `ap[j + i * (2 * n - i - 1) / 2]` for the upper triangle, at `ap[i * (i + 1) / 2 + j]` for the
///                      lower, from 0
/// \param[in,out] x     on entry the right-hand side, on return the solution: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `trans`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 3, `diag`: not UnitTriangular or NotUnitTriangular.
/// - 4, `n`: negative.
/// - 7, `incx`: 0.
/// \par Accuracy
/// Backward stable: the solution is exact for a matrix whose elements are changed by at most about n times the
/// precision.
/// \par Method
/// The standard operation dtpsv (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06phc() is the inverse operation.
/// \par Example
/// \code{.c}
/// double ap[] = {2.0, 1.0, 3.0}, x[] = {2.0, 4.0};
/// f06plc(UpperTriangle, NoTranspose, NotUnitTriangular, 2, ap, x, 1);
/// // x = {0.333333, 1.33333}
/// \endcode
void f06plc(Integer uplo, Integer trans, Integer diag, Integer n, const double ap[], double x[], Integer incx);

/// \brief Adds a multiple of the outer product of two real vectors to a matrix.
///
/// Forms \f$A := \alpha x y' + A\f$, A being m by n. Nothing happens if m or n is 0 or alpha is 0.
///
/// \param[in]     m     rows of A, not negative
/// \param[in]     n     columns of A, not negative
/// \param[in]     alpha the factor of the outer product
/// \param[in]     x     the vector x: m elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
/// \param[in]     y     the vector y: n elements, `incy` apart
/// \param[in]     incy  step between its elements, not 0; a negative one walks from the far end
/// \param[in,out] a     the matrix A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda   length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `m`: negative.
/// - 2, `n`: negative.
/// - 5, `incx`: 0.
/// - 7, `incy`: 0.
/// - 9, `tda`: less than max(1, n).
/// \par Accuracy
/// Each element is rounded as the formula says; the processor may fuse its multiplication and addition.
/// \par Method
/// The standard operation dger (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06smc() and f06snc() for complex data.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 2.0, 3.0, 4.0}, x[] = {1.0, -1.0}, y[] = {5.0, 6.0};
/// f06pmc(2, 2, 2.0, x, 1, y, 1, a, 2);
/// // a = {11, 14, -7, -8}
/// \endcode
void f06pmc(Integer m, Integer n, double alpha, const double x[], Integer incx, const double y[], Integer incy,
            double a[], Integer tda);

/// \brief Update of rank 1 of a real symmetric matrix.
///
/// Forms \f$A := \alpha x x' + A\f$, A being symmetric of order n. Only the stored triangle is changed. Nothing happens
/// if n is 0 or alpha is 0.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle is stored; the other is not touched
/// \param[in]     n     order of A, not negative
/// \param[in]     alpha the factor
/// \param[in]     x     the vector x: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
/// \param[in,out] a     the stored triangle of A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda   length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `n`: negative.
/// - 5, `incx`: 0.
/// - 7, `tda`: less than max(1, n).
/// \par Accuracy
/// Each element is rounded as the formula says; the processor may fuse its multiplication and addition.
/// \par Method
/// The standard operation dsyr (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double a[] = {2.0, 1.0, -9.0, 3.0}, x[] = {1.0, -1.0};
/// f06ppc(UpperTriangle, 2, 2.0, x, 1, a, 2);
/// // a = {4, -1, -9, 5}
/// \endcode
void f06ppc(Integer uplo, Integer n, double alpha, const double x[], Integer incx, double a[], Integer tda);

/// \brief Update of rank 1 of a packed real symmetric matrix.
///
/// Forms \f$A := \alpha x x' + A\f$, A being symmetric of order n. Only the packed triangle is changed. Nothing happens
/// if n is 0 or alpha is 0.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle is packed
/// \param[in]     n     order of A, not negative
/// \param[in]     alpha the factor
/// \param[in]     x     the vector x: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
/// \param[in,out] ap    the triangle of A packed by rows, one after another: n (n + 1) / 2 elements; element (i, j) at
///                      `ap[j + i * (2 * n - i - 1) / 2]` for the upper triangle, at `ap[i * (i + 1) / 2 + j]` for the
///                      lower, from 0
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `n`: negative.
/// - 5, `incx`: 0.
/// \par Accuracy
/// Each element is rounded as the formula says; the processor may fuse its multiplication and addition.
/// \par Method
/// The standard operation dspr (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double ap[] = {2.0, 1.0, 3.0}, x[] = {1.0, -1.0};
/// f06pqc(UpperTriangle, 2, 2.0, x, 1, ap);
/// // ap = {4, -1, 5}
/// \endcode
void f06pqc(Integer uplo, Integer n, double alpha, const double x[], Integer incx, double ap[]);

/// \brief Update of rank 2 of a real symmetric matrix.
///
/// Forms \f$A := \alpha x y' + \alpha y x' + A\f$, A being symmetric of order n. Only the stored triangle is changed.
/// Nothing happens if n is 0 or alpha is 0.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle is stored; the other is not touched
/// \param[in]     n     order of A, not negative
/// \param[in]     alpha the factor
/// \param[in]     x     the vector x: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
/// \param[in]     y     the vector y: n elements, `incy` apart
/// \param[in]     incy  step between its elements, not 0; a negative one walks from the far end
/// \param[in,out] a     the stored triangle of A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda   length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `n`: negative.
/// - 5, `incx`: 0.
/// - 7, `incy`: 0.
/// - 9, `tda`: less than max(1, n).
/// \par Accuracy
/// Each element is rounded as the formula says; the processor may fuse its multiplication and addition.
/// \par Method
/// The standard operation dsyr2 (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double a[] = {2.0, 1.0, -9.0, 3.0}, x[] = {1.0, -1.0}, y[] = {5.0, 6.0};
/// f06prc(UpperTriangle, 2, 1.0, x, 1, y, 1, a, 2);
/// // a = {12, 2, -9, -9}
/// \endcode
void f06prc(Integer uplo, Integer n, double alpha, const double x[], Integer incx, const double y[], Integer incy,
            double a[], Integer tda);

/// \brief Update of rank 2 of a packed real symmetric matrix.
///
/// Forms \f$A := \alpha x y' + \alpha y x' + A\f$, A being symmetric of order n. Only the packed triangle is changed.
/// Nothing happens if n is 0 or alpha is 0.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle is packed
/// \param[in]     n     order of A, not negative
/// \param[in]     alpha the factor
/// \param[in]     x     the vector x: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
/// \param[in]     y     the vector y: n elements, `incy` apart
/// \param[in]     incy  step between its elements, not 0; a negative one walks from the far end
/// \param[in,out] ap    the triangle of A packed by rows, one after another: n (n + 1) / 2 elements; element (i, j) at
///                      `ap[j + i * (2 * n - i - 1) / 2]` for the upper triangle, at `ap[i * (i + 1) / 2 + j]` for the
///                      lower, from 0
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `n`: negative.
/// - 5, `incx`: 0.
/// - 7, `incy`: 0.
/// \par Accuracy
/// Each element is rounded as the formula says; the processor may fuse its multiplication and addition.
/// \par Method
/// The standard operation dspr2 (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double ap[] = {2.0, 1.0, 3.0}, x[] = {1.0, -1.0}, y[] = {5.0, 6.0};
/// f06psc(UpperTriangle, 2, 1.0, x, 1, y, 1, ap);
/// // ap = {12, 2, -9}
/// \endcode
void f06psc(Integer uplo, Integer n, double alpha, const double x[], Integer incx, const double y[], Integer incy,
            double ap[]);

/* ---- Real matrices: copies, norms, permutations, sequences of rotations ---- */

/// \brief Copies a real matrix, or a triangle of it.
///
/// Forms \f$B := A\f$, both m by n, in the part that `matrix` names; a triangle of a rectangular matrix is a trapezium.
/// The rest of b is not touched.
///
/// \param[in]  matrix General: all of it; UpperTriangular: the elements on and above the diagonal; LowerTriangular:
///                    those on and below
/// \param[in]  m      rows, not negative
/// \param[in]  n      columns, not negative
/// \param[in]  a      the matrix A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]  tda    length of a row of the array: at least max(1, n)
/// \param[out] b      the copy, row by row
/// \param[in]  tdb    length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `matrix`: not General, UpperTriangular or LowerTriangular.
/// - 2, `m`: negative.
/// - 3, `n`: negative.
/// - 5, `tda`: less than max(1, n).
/// - 7, `tdb`: less than max(1, n).
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06tfc() for complex matrices.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 2.0, 3.0, 4.0}, b[] = {0.0, 0.0, 0.0, 0.0};
/// f06qfc(UpperTriangular, 2, 2, a, 2, b, 2);
/// // b = {1, 2, 0, 4}
/// \endcode
void f06qfc(Integer matrix, Integer m, Integer n, const double a[], Integer tda, double b[], Integer tdb);

/// \brief Norm of a real matrix of a certain type.
///
/// Forms a norm of the m by n matrix A. 0 if m or n is 0; NaN if an element is NaN; no spurious overflow.
///
/// \param[in] norm   OneNorm: greatest sum of |a_ij| down a column; InfinityNorm: along a row; FrobeniusNorm: square
///                   root of the sum of all |a_ij|^2; MaxAbsValue: greatest |a_ij| (not a consistent norm)
/// \param[in] matrix General, UpperTriangular, LowerTriangular, SymmetricUpper or SymmetricLower: which part of the
///                   array is stored and, for a symmetric matrix, stands for the rest; a triangular matrix that is not
///                   square is a trapezium
/// \param[in] m      rows, not negative
/// \param[in] n      columns, not negative; equal to m for a symmetric matrix
/// \param[in] a      the matrix A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in] tda    length of a row of the array: at least max(1, n)
/// \return the norm; 0 after an error
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was and the result 0:
/// - 1, `norm`: not OneNorm, FrobeniusNorm, MaxAbsValue or InfinityNorm.
/// - 2, `matrix`: not one of those named.
/// - 3, `m`: negative.
/// - 4, `n`: negative, or not m for a symmetric matrix.
/// - 6, `tda`: less than max(1, n).
/// \par Accuracy
/// About (number of terms in a sum) times the precision, relative; the Frobenius norm to a few ulp.
/// \par Method
/// Sums row by row; the sums of columns for 128 columns at a time; squares by f06fjc().
/// \par Thread safety
/// Safe.
/// \par See also
/// f06vgc() for complex matrices; f06rac() for general, f06rjc() for trapezoidal ones with or without a unit diagonal.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, -2.0, 3.0, 4.0};
/// double norm = f06qgc(OneNorm, General, 2, 2, a, 2);
/// // norm = 6
/// \endcode
double f06qgc(Integer norm, Integer matrix, Integer m, Integer n, const double a[], Integer tda);

/// \brief Fills a real matrix, or a triangle of it, with one constant on the diagonal and another beside it.
///
/// Sets \f$a_{ii} := \mathit{diag}\f$ and \f$a_{ij} := \mathit{con}\f$ for the other elements of the part that `matrix`
/// names, A being m by n. The rest of a is not touched.
///
/// \param[in]  matrix General: all of it; UpperTriangular: the elements on and above the diagonal; LowerTriangular:
///                    those on and below
/// \param[in]  m      rows, not negative
/// \param[in]  n      columns, not negative
/// \param[in]  con    the constant beside the diagonal
/// \param[in]  diag   the constant on the diagonal
/// \param[out] a      the matrix A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]  tda    length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `matrix`: not General, UpperTriangular or LowerTriangular.
/// - 2, `m`: negative.
/// - 3, `n`: negative.
/// - 7, `tda`: less than max(1, n).
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06thc() for complex matrices.
/// \par Example
/// \code{.c}
/// double a[4];
/// f06qhc(General, 2, 2, 0.0, 1.0, a, 2);   // the unit matrix
/// // a = {1, 0, 0, 1}
/// \endcode
void f06qhc(Integer matrix, Integer m, Integer n, double con, double diag, double a[], Integer tda);

/// \brief Permutes the rows or columns of a real matrix by a sequence of interchanges, given as integers.
///
/// Forms \f$B := P B\f$ or \f$P' B\f$ (left), \f$B := B P\f$ or \f$B P'\f$ (right), with \f$P = P_1 P_2 \cdots P_n\f$
/// and \f$P_i\f$ the interchange of row or column i with that which `perm` names. \f$P'B\f$ and \f$BP\f$ therefore do
/// the interchanges in the order i = 1, 2, ..., n, as a factorisation with pivoting did them; \f$PB\f$ and \f$BP'\f$
/// undo them from the last to the first.
///
/// \param[in]     side  LeftSide: rows are permuted; RightSide: columns
/// \param[in]     trans NoTranspose: P; Transpose or ConjugateTranspose: P'
/// \param[in]     n     number of interchanges, not negative
/// \param[in]     perm  n values: what is interchanged with row or column i, **counted from 0**; a row may lie beyond
///                      the first n
/// \param[in]     k     columns (left) or rows (right) of B, not negative
/// \param[in,out] b     the matrix B, row by row: element (i, j) at `b[i * tdb + j]`, from 0; it has at least n rows
///                      (left) or columns (right)
/// \param[in]     tdb   length of a row of the array: at least max(1, k) (left) or max(1, n) (right)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `side`: not LeftSide or RightSide.
/// - 2, `trans`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 3, `n`: negative.
/// - 4, `perm`: a value less than 0, or a column beyond `tdb`.
/// - 5, `k`: negative.
/// - 7, `tdb`: less than the length of its row.
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06qkc() takes real numbers, f06vkc() permutes a complex matrix.
/// \par Example
/// \code{.c}
/// double b[] = {1.0, 2.0, 3.0};
/// Integer perm[] = {2, 2, 2};
/// f06qjc(LeftSide, Transpose, 3, perm, 1, b, 1);
/// // b = {3, 1, 2}
/// \endcode
void f06qjc(Integer side, Integer trans, Integer n, const Integer perm[], Integer k, double b[], Integer tdb);

/// \brief Permutes the rows or columns of a real matrix by a sequence of interchanges, given as real numbers.
///
/// Forms \f$B := P B\f$ or \f$P' B\f$ (left), \f$B := B P\f$ or \f$B P'\f$ (right), with \f$P = P_1 P_2 \cdots P_n\f$
/// and \f$P_i\f$ the interchange of row or column i with that which `perm` names. \f$P'B\f$ and \f$BP\f$ therefore do
/// the interchanges in the order i = 1, 2, ..., n, as a factorisation with pivoting did them; \f$PB\f$ and \f$BP'\f$
/// undo them from the last to the first.
///
/// \param[in]     side  LeftSide: rows are permuted; RightSide: columns
/// \param[in]     trans NoTranspose: P; Transpose or ConjugateTranspose: P'
/// \param[in]     n     number of interchanges, not negative
/// \param[in]     perm  n values: what is interchanged with row or column i, **counted from 1**; a value that is not
///                      whole is cut to an integer; a row may lie beyond the first n
/// \param[in]     k     columns (left) or rows (right) of B, not negative
/// \param[in,out] b     the matrix B, row by row: element (i, j) at `b[i * tdb + j]`, from 0; it has at least n rows
///                      (left) or columns (right)
/// \param[in]     tdb   length of a row of the array: at least max(1, k) (left) or max(1, n) (right)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `side`: not LeftSide or RightSide.
/// - 2, `trans`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 3, `n`: negative.
/// - 4, `perm`: a value less than 1, or a column beyond `tdb`, or a NaN.
/// - 5, `k`: negative.
/// - 7, `tdb`: less than the length of its row.
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06qjc() takes integers, f06vkc() permutes a complex matrix.
/// \par Example
/// \code{.c}
/// double b[] = {1.0, 2.0, 3.0};
/// double perm[] = {3.0, 3.0, 3.0};
/// f06qkc(LeftSide, Transpose, 3, perm, 1, b, 1);
/// // b = {3, 1, 2}
/// \endcode
void f06qkc(Integer side, Integer trans, Integer n, const double perm[], Integer k, double b[], Integer tdb);

/// \brief Moves a row or column of a real upper triangular matrix to another place, and restores the triangle.
///
/// Rotation k, in the plane of rows or columns k and k+1 unless another is named, k = k1..k2-1 counted from 1, has
/// cosine `c[k-1]` and sine `s[k-1]` and is \f$P_k = \begin{pmatrix} c & s \\ -s & c \end{pmatrix}\f$. The rows (left)
/// or columns (right) k1 to k2 are interchanged cyclically:
/// - LeftSide: row k2 moves before row k1, and rotations of columns restore the triangle: \f$R = \Pi U P'\f$, \f$P =
///   P_{k_1} P_{k_1+1} \cdots P_{k_2-1}\f$.
/// - RightSide: column k1 moves behind column k2, and rotations of rows restore the triangle: \f$R = P U \Pi'\f$, \f$P
///   = P_{k_2-1} \cdots P_{k_1+1} P_{k_1}\f$.
///
/// \param[in]     side LeftSide: rows move; RightSide: columns move
/// \param[in]     n    order of the matrix, not negative
/// \param[in]     k1   first row or column, at least 1
/// \param[in]     k2   last row or column, at most n; if it is not greater than k1 nothing happens
/// \param[out]    c    k2-1 elements: the cosines of P in `c[k1-1]` to `c[k2-2]`
/// \param[out]    s    k2-1 elements: the sines of P in `s[k1-1]` to `s[k2-2]`
/// \param[in,out] a    the upper triangle U, row by row: element (i, j) at `a[i * tda + j]`, from 0; R on return; the
///                     strict lower triangle of the array is not touched
/// \param[in]     tda  length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `side`: not LeftSide or RightSide.
/// - 2, `n`: negative.
/// - 3, `k1`: less than 1.
/// - 4, `k2`: greater than n.
/// - 8, `tda`: less than max(1, n).
/// \par Accuracy
/// Backward stable: the result is exact for a matrix that is changed by at most about (k2 - k1) times the precision
/// times its norm, and the rotations are orthogonal to the precision.
/// \par Method
/// Plane rotations; see P. E. Gill, G. H. Golub, W. Murray and M. A. Saunders, Math. Comp. 28 (1974) 505-535, on
/// modifying factorisations. Rotations of columns are applied row by row.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06qrc() restores a Hessenberg matrix.
/// \par Example
/// \code{.c}
/// double u[] = {2.0, 1.0, 1.0,  0.0, 2.0, 1.0,  0.0, 0.0, 2.0}, c[2], s[2];
/// f06qnc(RightSide, 3, 1, 3, c, s, u, 3);   // drop column 1: it is the last now
/// // u = {2.23607, 1.34164, 0.894427, 0, -2.04939, -0.39036, 0, 0, -1.74574}
/// \endcode
void f06qnc(Integer side, Integer n, Integer k1, Integer k2, double c[], double s[], double a[], Integer tda);

/// \brief Adds a row to a real upper triangular factor: QR factorisation of a triangle above a row.
///
/// Finds the rotations \f$P_k = \begin{pmatrix} c & s \\ -s & c \end{pmatrix}\f$ of rows k and n+1, k = 1..n, with \f$P
/// \begin{pmatrix} U \\ \alpha x' \end{pmatrix} = \begin{pmatrix} R \\ 0 \end{pmatrix}\f$, \f$P = P_n \cdots P_2
/// P_1\f$: R is the triangular factor of the data with one more row. The same rotations, applied by f06qxc() with
/// BottomPivot to a right-hand side above alpha times its new element, keep a least-squares problem up to date.
///
/// \param[in]     n     order of U, not negative
/// \param[in]     alpha the factor of the row: for a weighted observation the square root of its weight; with 0 x
///                      counts as zero, whatever it holds
/// \param[in,out] x     the row: n elements, `incx` apart; on return the tangents of the rotations
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
/// \param[in,out] a     the upper triangle U, row by row: element (i, j) at `a[i * tda + j]`, from 0; R on return; the
///                      strict lower triangle is not touched
/// \param[in]     tda   length of a row of the array: at least max(1, n)
/// \param[out]    c     n cosines, `c[k-1]` of rotation k
/// \param[out]    s     n sines
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `n`: negative.
/// - 4, `incx`: 0.
/// - 6, `tda`: less than max(1, n).
/// \par Accuracy
/// Backward stable: R is exact for data that are changed by at most about n times the precision times their norm.
/// \par Method
/// Rotations after W. Givens, J. SIAM 6 (1958) 26-50, kept by their tangents.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06qxc() applies the rotations to other columns.
/// \par Example
/// \code{.c}
/// double u[] = {3.0, 1.0,  0.0, 2.0}, x[] = {4.0, 1.0}, c[2], s[2];
/// f06qqc(2, 1.0, x, 1, u, 2, c, s);
/// // u = {5, 1.4, 0, 2.00998}
/// \endcode
void f06qqc(Integer n, double alpha, double x[], Integer incx, double a[], Integer tda, double c[], double s[]);

/// \brief Restores a real upper Hessenberg matrix to a triangle by plane rotations.
///
/// Rotation k, in the plane of rows or columns k and k+1 unless another is named, k = k1..k2-1 counted from 1, has
/// cosine `c[k-1]` and sine `s[k-1]` and is \f$P_k = \begin{pmatrix} c & s \\ -s & c \end{pmatrix}\f$. H is upper
/// triangular but for the subdiagonal elements \f$h_{k+1,k}\f$, k = k1..k2-1.
/// - LeftSide: \f$R = P H\f$, \f$P = P_{k_2-1} \cdots P_{k_1+1} P_{k_1}\f$.
/// - RightSide: \f$R = H P'\f$, \f$P = P_{k_1} P_{k_1+1} \cdots P_{k_2-1}\f$.
///
/// \param[in]     side LeftSide: rotations of rows; RightSide: of columns
/// \param[in]     n    order of the matrix, not negative
/// \param[in]     k1   first row or column, at least 1
/// \param[in]     k2   last row or column, at most n; if it is not greater than k1 nothing happens
/// \param[out]    c    k2-1 elements: the cosines of P
/// \param[in,out] s    k2-1 elements: on entry \f$h_{k+1,k}\f$ in `s[k-1]`, on return the sines of P
/// \param[in,out] a    the upper triangle of H, row by row: element (i, j) at `a[i * tda + j]`, from 0; R on return;
///                     the strict lower triangle of the array is not touched
/// \param[in]     tda  length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `side`: not LeftSide or RightSide.
/// - 2, `n`: negative.
/// - 3, `k1`: less than 1.
/// - 4, `k2`: greater than n.
/// - 8, `tda`: less than max(1, n).
/// \par Accuracy
/// Backward stable: the result is exact for a matrix that is changed by at most about (k2 - k1) times the precision
/// times its norm, and the rotations are orthogonal to the precision.
/// \par Method
/// Plane rotations; see P. E. Gill, G. H. Golub, W. Murray and M. A. Saunders, Math. Comp. 28 (1974) 505-535, on
/// modifying factorisations. Rotations of columns are applied row by row.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06qvc() makes a Hessenberg matrix; f06qsc() restores a spiked one.
/// \par Example
/// \code{.c}
/// double u[] = {2.0, 1.0, 1.0,  0.0, 2.0, 1.0,  0.0, 0.0, 2.0}, c[2], s[] = {1.0, 1.0};
/// f06qrc(LeftSide, 3, 1, 3, c, s, u, 3);
/// // u = {2.23607, 1.78885, 1.34164, 0, 1.67332, 1.5538, 0, 0, 1.33631}
/// \endcode
void f06qrc(Integer side, Integer n, Integer k1, Integer k2, double c[], double s[], double a[], Integer tda);

/// \brief Restores a real triangular matrix with a spike to a triangle by plane rotations.
///
/// Rotation k, in the plane of rows or columns k and k+1 unless another is named, k = k1..k2-1 counted from 1, has
/// cosine `c[k-1]` and sine `s[k-1]` and is \f$P_k = \begin{pmatrix} c & s \\ -s & c \end{pmatrix}\f$. S is upper
/// triangular but for a spike.
/// - LeftSide: the spike is in row k2: the elements \f$s_{k_2,k}\f$, k = k1..k2-1. \f$R = P S\f$, \f$P = P_{k_2-1}
///   \cdots P_{k_1+1} P_{k_1}\f$, \f$P_k\f$ in the plane of rows k and k2.
/// - RightSide: the spike is in column k1: the elements \f$s_{k+1,k_1}\f$, k = k1..k2-1. \f$R = S P'\f$, \f$P = P_{k_1}
///   P_{k_1+1} \cdots P_{k_2-1}\f$, \f$P_k\f$ in the plane of columns k1 and k+1.
///
/// \param[in]     side LeftSide: rotations of rows; RightSide: of columns
/// \param[in]     n    order of the matrix, not negative
/// \param[in]     k1   first row or column, at least 1
/// \param[in]     k2   last row or column, at most n; if it is not greater than k1 nothing happens
/// \param[out]    c    k2-1 elements: the cosines of P
/// \param[in,out] s    k2-1 elements: on entry the element of the spike that rotation k removes in `s[k-1]`, on return
///                     the sines of P
/// \param[in,out] a    the upper triangle of S, row by row: element (i, j) at `a[i * tda + j]`, from 0; R on return;
///                     the strict lower triangle of the array is not touched
/// \param[in]     tda  length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `side`: not LeftSide or RightSide.
/// - 2, `n`: negative.
/// - 3, `k1`: less than 1.
/// - 4, `k2`: greater than n.
/// - 8, `tda`: less than max(1, n).
/// \par Accuracy
/// Backward stable: the result is exact for a matrix that is changed by at most about (k2 - k1) times the precision
/// times its norm, and the rotations are orthogonal to the precision.
/// \par Method
/// Plane rotations; see P. E. Gill, G. H. Golub, W. Murray and M. A. Saunders, Math. Comp. 28 (1974) 505-535, on
/// modifying factorisations. Rotations of columns are applied row by row.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06qwc() makes a spike; f06qrc() restores a Hessenberg matrix.
/// \par Example
/// \code{.c}
/// double u[] = {2.0, 1.0, 1.0,  0.0, 2.0, 1.0,  0.0, 0.0, 2.0}, c[2], s[] = {1.0, 1.0};
/// f06qsc(LeftSide, 3, 1, 3, c, s, u, 3);
/// // u = {2.23607, 1.34164, 1.78885, 0, 2.04939, 1.26867, 0, 0, 1.09109}
/// \endcode
void f06qsc(Integer side, Integer n, Integer k1, Integer k2, double c[], double s[], double a[], Integer tda);

/// \brief Applies a sequence of plane rotations to a real upper triangular matrix, and restores the triangle from the
/// other side.
///
/// Rotation k, in the plane of rows or columns k and k+1 unless another is named, k = k1..k2-1 counted from 1, has
/// cosine `c[k-1]` and sine `s[k-1]` and is \f$P_k = \begin{pmatrix} c & s \\ -s & c \end{pmatrix}\f$.
/// - LeftSide: given P, finds Q so that \f$R = P U Q'\f$ is upper triangular; \f$P = P_{k_2-1} \cdots P_{k_1+1}
///   P_{k_1}\f$, and so is Q.
/// - RightSide: given P, finds Q so that \f$R = Q U P'\f$ is upper triangular; \f$P = P_{k_1} P_{k_1+1} \cdots
///   P_{k_2-1}\f$, and so is Q.
///
/// \param[in]     side LeftSide: P acts on rows; RightSide: on columns
/// \param[in]     n    order of the matrix, not negative
/// \param[in]     k1   first row or column, at least 1
/// \param[in]     k2   last row or column, at most n; if it is not greater than k1 nothing happens
/// \param[in,out] c    k2-1 elements: the cosines of P, on return those of Q
/// \param[in,out] s    k2-1 elements: the sines of P, on return those of Q
/// \param[in,out] a    the upper triangle U, row by row: element (i, j) at `a[i * tda + j]`, from 0; R on return; the
///                     strict lower triangle of the array is not touched
/// \param[in]     tda  length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `side`: not LeftSide or RightSide.
/// - 2, `n`: negative.
/// - 3, `k1`: less than 1.
/// - 4, `k2`: greater than n.
/// - 8, `tda`: less than max(1, n).
/// \par Accuracy
/// Backward stable: the result is exact for a matrix that is changed by at most about (k2 - k1) times the precision
/// times its norm, and the rotations are orthogonal to the precision.
/// \par Method
/// Plane rotations; see P. E. Gill, G. H. Golub, W. Murray and M. A. Saunders, Math. Comp. 28 (1974) 505-535, on
/// modifying factorisations. Rotations of columns are applied row by row.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06ttc() for complex matrices.
/// \par Example
/// \code{.c}
/// double u[] = {2.0, 1.0, 1.0,  0.0, 2.0, 1.0,  0.0, 0.0, 2.0}, c[] = {0.6, 0.8}, s[] = {0.8, 0.6};
/// f06qtc(LeftSide, 3, 1, 3, c, s, u, 3);
/// // u = {2.42536, 0.151559, 1.52796, 0, 1.66226, 0.243507, 0, 0, 1.98434}
/// \endcode
void f06qtc(Integer side, Integer n, Integer k1, Integer k2, double c[], double s[], double a[], Integer tda);

/// \brief Applies a sequence of plane rotations to a real upper triangular matrix, which gives an upper Hessenberg one.
///
/// Rotation k, in the plane of rows or columns k and k+1 unless another is named, k = k1..k2-1 counted from 1, has
/// cosine `c[k-1]` and sine `s[k-1]` and is \f$P_k = \begin{pmatrix} c & s \\ -s & c \end{pmatrix}\f$.
/// - LeftSide: \f$H = P U\f$, \f$P = P_{k_1} P_{k_1+1} \cdots P_{k_2-1}\f$.
/// - RightSide: \f$H = U P'\f$, \f$P = P_{k_2-1} \cdots P_{k_1+1} P_{k_1}\f$.
///
/// These are the orders in which only the elements \f$h_{k+1,k}\f$, k = k1..k2-1, are filled.
///
/// \param[in]     side LeftSide: rotations of rows; RightSide: of columns
/// \param[in]     n    order of the matrix, not negative
/// \param[in]     k1   first row or column, at least 1
/// \param[in]     k2   last row or column, at most n; if it is not greater than k1 nothing happens
/// \param[in]     c    k2-1 elements: the cosines of P
/// \param[in,out] s    k2-1 elements: the sines of P, on return \f$h_{k+1,k}\f$ in `s[k-1]`
/// \param[in,out] a    the upper triangle U, row by row: element (i, j) at `a[i * tda + j]`, from 0; that of H on
///                     return; the strict lower triangle of the array is not touched
/// \param[in]     tda  length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `side`: not LeftSide or RightSide.
/// - 2, `n`: negative.
/// - 3, `k1`: less than 1.
/// - 4, `k2`: greater than n.
/// - 8, `tda`: less than max(1, n).
/// \par Accuracy
/// Backward stable: the result is exact for a matrix that is changed by at most about (k2 - k1) times the precision
/// times its norm, and the rotations are orthogonal to the precision.
/// \par Method
/// Plane rotations; see P. E. Gill, G. H. Golub, W. Murray and M. A. Saunders, Math. Comp. 28 (1974) 505-535, on
/// modifying factorisations. Rotations of columns are applied row by row.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06qrc() restores the triangle.
/// \par Example
/// \code{.c}
/// double u[] = {2.0, 1.0, 1.0,  0.0, 2.0, 1.0,  0.0, 0.0, 2.0}, c[] = {0.6, 0.8}, s[] = {0.8, 0.6};
/// f06qvc(LeftSide, 3, 1, 3, c, s, u, 3);
/// // u = {1.2, 1.88, 2.2, 0, 0.16, 0.4, 0, 0, 1}; s = {-1.6, -1.2}
/// \endcode
void f06qvc(Integer side, Integer n, Integer k1, Integer k2, const double c[], double s[], double a[], Integer tda);

/// \brief Applies a sequence of plane rotations to a real upper triangular matrix, which gives one with a spike.
///
/// Rotation k, in the plane of rows or columns k and k+1 unless another is named, k = k1..k2-1 counted from 1, has
/// cosine `c[k-1]` and sine `s[k-1]` and is \f$P_k = \begin{pmatrix} c & s \\ -s & c \end{pmatrix}\f$.
/// - LeftSide: \f$S = P U\f$, \f$P = P_{k_1} P_{k_1+1} \cdots P_{k_2-1}\f$, \f$P_k\f$ in the plane of rows k and k2:
///   the spike is in row k2, elements \f$s_{k_2,k}\f$.
/// - RightSide: \f$S = U P'\f$, \f$P = P_{k_2-1} \cdots P_{k_1+1} P_{k_1}\f$, \f$P_k\f$ in the plane of columns k1 and
///   k+1: the spike is in column k1, elements \f$s_{k+1,k_1}\f$.
///
/// k = k1..k2-1; these are the orders in which only the spike is filled.
///
/// \param[in]     side LeftSide: rotations of rows; RightSide: of columns
/// \param[in]     n    order of the matrix, not negative
/// \param[in]     k1   first row or column, at least 1
/// \param[in]     k2   last row or column, at most n; if it is not greater than k1 nothing happens
/// \param[in]     c    k2-1 elements: the cosines of P
/// \param[in,out] s    k2-1 elements: the sines of P, on return the element of the spike that rotation k made in
///                     `s[k-1]`
/// \param[in,out] a    the upper triangle U, row by row: element (i, j) at `a[i * tda + j]`, from 0; that of S on
///                     return; the strict lower triangle of the array is not touched
/// \param[in]     tda  length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `side`: not LeftSide or RightSide.
/// - 2, `n`: negative.
/// - 3, `k1`: less than 1.
/// - 4, `k2`: greater than n.
/// - 8, `tda`: less than max(1, n).
/// \par Accuracy
/// Backward stable: the result is exact for a matrix that is changed by at most about (k2 - k1) times the precision
/// times its norm, and the rotations are orthogonal to the precision.
/// \par Method
/// Plane rotations; see P. E. Gill, G. H. Golub, W. Murray and M. A. Saunders, Math. Comp. 28 (1974) 505-535, on
/// modifying factorisations. Rotations of columns are applied row by row.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06qsc() restores the triangle.
/// \par Example
/// \code{.c}
/// double u[] = {2.0, 1.0, 1.0,  0.0, 2.0, 1.0,  0.0, 0.0, 2.0}, c[] = {0.6, 0.8}, s[] = {0.8, 0.6};
/// f06qwc(LeftSide, 3, 1, 3, c, s, u, 3);
/// // u = {1.2, -0.36, 1.4, 0, 1.6, 2, 0, 0, -0.2}; s = {-1.6, -1.52}
/// \endcode
void f06qwc(Integer side, Integer n, Integer k1, Integer k2, const double c[], double s[], double a[], Integer tda);

/// \brief Applies a sequence of plane rotations to a real rectangular matrix.
///
/// Forms \f$A := P A\f$ (left) or \f$A := A P'\f$ (right), A being m by n. ForwardSequence: \f$P = P_{k_2-1} \cdots
/// P_{k_1+1} P_{k_1}\f$; BackwardSequence: \f$P = P_{k_1} P_{k_1+1} \cdots P_{k_2-1}\f$. Rotation k, k = k1..k2-1
/// counted from 1, is \f$P_k = \begin{pmatrix} c & s \\ -s & c \end{pmatrix}\f$ with `c[k-1]` and `s[k-1]`, in the
/// plane of rows or columns
/// - (k, k+1) with VariablePivot,
/// - (k1, k+1) with TopPivot,
/// - (k, k2) with BottomPivot.
///
/// On the right that is, for each plane (p, q): \f$a_p := c\,a_p + s\,a_q,\; a_q := c\,a_q - s\,a_p\f$.
///
/// \param[in]     side   LeftSide: rotations of rows; RightSide: of columns
/// \param[in]     pivot  VariablePivot, TopPivot or BottomPivot
/// \param[in]     direct ForwardSequence or BackwardSequence
/// \param[in]     m      rows of A, not negative
/// \param[in]     n      columns of A, not negative
/// \param[in]     k1     first row or column, at least 1
/// \param[in]     k2     last row or column, at most m (left) or n (right); if it is not greater than k1 nothing
///                       happens
/// \param[in]     c      k2-1 elements: the cosines
/// \param[in]     s      k2-1 elements: the sines
/// \param[in,out] a      the matrix A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda    length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `side`: not LeftSide or RightSide.
/// - 2, `pivot`: not VariablePivot, TopPivot or BottomPivot.
/// - 3, `direct`: not ForwardSequence or BackwardSequence.
/// - 4, `m`: negative.
/// - 5, `n`: negative.
/// - 6, `k1`: less than 1.
/// - 7, `k2`: greater than m (left) or n (right).
/// - 11, `tda`: less than max(1, n).
/// \par Accuracy
/// Backward stable: the result is exact for a matrix that is changed by at most about (k2 - k1) times the precision
/// times its norm, and the rotations are orthogonal to the precision.
/// \par Method
/// Rotations after W. Givens, J. SIAM 6 (1958) 26-50, kept by their tangents. Rotations of columns are applied row by
/// row.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06fqc() chooses a sequence; f06vxc() and f06txc() for complex matrices.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 2.0, 3.0}, c[] = {0.6, 0.8}, s[] = {0.8, 0.6};
/// f06qxc(LeftSide, VariablePivot, ForwardSequence, 3, 1, 1, 3, c, s, a, 1);
/// // a = {2.2, 2.12, 2.16}
/// \endcode
void f06qxc(Integer side, Integer pivot, Integer direct, Integer m, Integer n, Integer k1, Integer k2, const double c[],
            const double s[], double a[], Integer tda);

/* ---- Norms of real matrices ---- */

/// \brief Norm of a real rectangular matrix.
///
/// Forms a norm of the m by n matrix A. 0 if m or n is 0; NaN if an element is NaN; no spurious overflow.
///
/// \param[in] norm OneNorm: greatest sum of |a_ij| down a column; InfinityNorm: along a row; FrobeniusNorm: square root
///                 of the sum of all |a_ij|^2; MaxAbsValue: greatest |a_ij| (not a consistent norm)
/// \param[in] m    rows, not negative
/// \param[in] n    columns, not negative
/// \param[in] a    the matrix A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in] tda  length of a row of the array: at least max(1, n)
/// \return the norm; 0 after an error
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was and the result 0:
/// - 1, `norm`: not OneNorm, FrobeniusNorm, MaxAbsValue or InfinityNorm.
/// - 2, `m`: negative.
/// - 3, `n`: negative.
/// - 5, `tda`: less than max(1, n).
/// \par Accuracy
/// About (number of terms in a sum) times the precision, relative; the Frobenius norm to a few ulp.
/// \par Method
/// Sums row by row; the sums of columns for 128 columns at a time; squares by f06fjc().
/// \par Thread safety
/// Safe.
/// \par See also
/// f06qgc() for matrices of other types.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, -2.0, 3.0, 4.0};
/// double norm = f06rac(InfinityNorm, 2, 2, a, 2);
/// // norm = 7
/// \endcode
double f06rac(Integer norm, Integer m, Integer n, const double a[], Integer tda);

/// \brief Norm of a real trapezoidal or triangular matrix.
///
/// Forms a norm of the m by n matrix A, whose elements below (or above) the diagonal are zero, with or without a unit
/// diagonal. 0 if m or n is 0; NaN if an element is NaN; no spurious overflow.
///
/// \param[in] norm OneNorm: greatest sum of |a_ij| down a column; InfinityNorm: along a row; FrobeniusNorm: square root
///                 of the sum of all |a_ij|^2; MaxAbsValue: greatest |a_ij| (not a consistent norm)
/// \param[in] uplo UpperTriangle or LowerTriangle: where A is not zero; the rest of the array is not read
/// \param[in] diag UnitTriangular: the diagonal is taken as 1 and not read; NotUnitTriangular: it is read
/// \param[in] m    rows, not negative
/// \param[in] n    columns, not negative
/// \param[in] a    the matrix A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in] tda  length of a row of the array: at least max(1, n)
/// \return the norm; 0 after an error
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was and the result 0:
/// - 1, `norm`: not OneNorm, FrobeniusNorm, MaxAbsValue or InfinityNorm.
/// - 2, `uplo`: not UpperTriangle or LowerTriangle.
/// - 3, `diag`: not UnitTriangular or NotUnitTriangular.
/// - 4, `m`: negative.
/// - 5, `n`: negative.
/// - 7, `tda`: less than max(1, n).
/// \par Accuracy
/// About (number of terms in a sum) times the precision, relative; the Frobenius norm to a few ulp.
/// \par Method
/// Sums row by row; the sums of columns for 128 columns at a time; squares by f06fjc().
/// \par Thread safety
/// Safe.
/// \par See also
/// f06qgc() for matrices of other types.
/// \par Example
/// \code{.c}
/// double a[] = {2.0, -2.0, 3.0, 4.0};
/// double norm = f06rjc(OneNorm, UpperTriangle, UnitTriangular, 2, 2, a, 2);
/// // norm = 3
/// \endcode
double f06rjc(Integer norm, Integer uplo, Integer diag, Integer m, Integer n, const double a[], Integer tda);

/* ---- Complex matrix and vector: the standard operations ---- */

/// \brief Product of a complex general matrix and a vector.
///
/// Forms \f$y := \alpha\, \mathrm{op}(A)\, x + \beta y\f$, A being m by n. Nothing happens if m or n is 0, or if alpha
/// is 0 and beta 1.
///
/// \param[in]     trans NoTranspose: op(A) = A; Transpose: A'; ConjugateTranspose: conj(A)'
/// \param[in]     m     rows of A, not negative
/// \param[in]     n     columns of A, not negative
/// \param[in]     alpha the factor of the product; with 0 neither A nor x is read
/// \param[in]     a     the matrix A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda   length of a row of the array: at least max(1, n)
/// \param[in]     x     the vector x: n (if transposed m) elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
/// \param[in]     beta  the factor of y; with 0 y need not be set, and a NaN in it does not matter
/// \param[in,out] y     the vector y: m (if transposed n) elements, `incy` apart
/// \param[in]     incy  step between its elements, not 0; a negative one walks from the far end
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `trans`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 2, `m`: negative.
/// - 3, `n`: negative.
/// - 6, `tda`: less than max(1, n).
/// - 8, `incx`: 0.
/// - 11, `incy`: 0.
/// \par Accuracy
/// Backward stable: the result is exact for elements of the matrix that are changed by at most about n times the
/// precision, relative to each.
/// \par Method
/// The standard operation zgemv (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06pac() for real data. f06zac() for several vectors at once.
/// \par Example
/// \code{.c}
/// Complex zero = {0.0, 0.0}, one = {1.0, 0.0}, two = {2.0, 0.0};
/// Complex a[] = {{1.0, 1.0}, {2.0, 0.0}, {3.0, 0.0}, {4.0, -1.0}}, x[] = {{1.0, 0.0}, {0.0, 1.0}}, y[] = {{5.0,
///        0.0}, {0.0, 6.0}};
/// f06sac(NoTranspose, 2, 2, one, a, 2, x, 1, one, y, 1);
/// // y = {(6, 3), (4, 10)}
/// \endcode
void f06sac(Integer trans, Integer m, Integer n, Complex alpha, const Complex a[], Integer tda, const Complex x[],
            Integer incx, Complex beta, Complex y[], Integer incy);

/// \brief Product of a complex band matrix and a vector.
///
/// Forms \f$y := \alpha\, \mathrm{op}(A)\, x + \beta y\f$, A being m by n with kl diagonals below and ku above the main
/// one. Nothing happens if m or n is 0, or if alpha is 0 and beta 1.
///
/// \param[in]     trans NoTranspose: op(A) = A; Transpose: A'; ConjugateTranspose: conj(A)'
/// \param[in]     m     rows of A, not negative
/// \param[in]     n     columns of A, not negative
/// \param[in]     kl    diagonals below the main one, not negative
/// \param[in]     ku    diagonals above the main one, not negative
/// \param[in]     alpha the factor of the product; with 0 neither A nor x is read
/// \param[in]     a     the band of A, m rows: element (i, j) at `a[i * tda + kl + j - i]`, so that a row of the array
///                      holds the elements of a row of A from its lowest to its highest diagonal; places outside A are
///                      not read
/// \param[in]     tda   length of a row of the array: at least kl + ku + 1
/// \param[in]     x     the vector x: n (if transposed m) elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
/// \param[in]     beta  the factor of y; with 0 y need not be set, and a NaN in it does not matter
/// \param[in,out] y     the vector y: m (if transposed n) elements, `incy` apart
/// \param[in]     incy  step between its elements, not 0; a negative one walks from the far end
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `trans`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 2, `m`: negative.
/// - 3, `n`: negative.
/// - 4, `kl`: negative.
/// - 5, `ku`: negative.
/// - 8, `tda`: less than kl + ku + 1.
/// - 10, `incx`: 0.
/// - 13, `incy`: 0.
/// \par Accuracy
/// Backward stable: the result is exact for elements of the matrix that are changed by at most about n times the
/// precision, relative to each.
/// \par Method
/// The standard operation zgbmv (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06pbc() for real data.
/// \par Example
/// \code{.c}
/// Complex zero = {0.0, 0.0}, one = {1.0, 0.0}, two = {2.0, 0.0};
/// // a tridiagonal matrix
/// Complex a[] = {{0.0, 0.0}, {2.0, 0.0}, {0.0, 1.0}, {0.0, -1.0}, {2.0, 0.0}, {0.0, 1.0}, {0.0, -1.0}, {2.0, 0.0},
///        {0.0, 0.0}}, x[] = {{1.0, 0.0}, {2.0, 0.0}, {3.0, 0.0}}, y[3];
/// f06sbc(NoTranspose, 3, 3, 1, 1, one, a, 3, x, 1, zero, y, 1);
/// // y = {(2, 2), (4, 2), (6, -2)}
/// \endcode
void f06sbc(Integer trans, Integer m, Integer n, Integer kl, Integer ku, Complex alpha, const Complex a[], Integer tda,
            const Complex x[], Integer incx, Complex beta, Complex y[], Integer incy);

/// \brief Product of a complex Hermitian matrix and a vector.
///
/// Forms \f$y := \alpha A x + \beta y\f$, A being Hermitian of order n, one triangle of it stored. The imaginary parts
/// of the diagonal of A are taken as 0 and not read. Nothing happens if n is 0, or if alpha is 0 and beta 1.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle is stored; the other is not touched
/// \param[in]     n     order of A, not negative
/// \param[in]     alpha the factor of the product; with 0 neither A nor x is read
/// \param[in]     a     the stored triangle of A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda   length of a row of the array: at least max(1, n)
/// \param[in]     x     the vector x: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
/// \param[in]     beta  the factor of y; with 0 y need not be set, and a NaN in it does not matter
/// \param[in,out] y     the vector y: n elements, `incy` apart
/// \param[in]     incy  step between its elements, not 0; a negative one walks from the far end
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `n`: negative.
/// - 5, `tda`: less than max(1, n).
/// - 7, `incx`: 0.
/// - 10, `incy`: 0.
/// \par Accuracy
/// Backward stable: the result is exact for elements of the matrix that are changed by at most about n times the
/// precision, relative to each.
/// \par Method
/// The standard operation zhemv (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06pcc() for real data.
/// \par Example
/// \code{.c}
/// Complex zero = {0.0, 0.0}, one = {1.0, 0.0}, two = {2.0, 0.0};
/// Complex a[] = {{2.0, 0.0}, {1.0, 1.0}, {-9.0, -9.0}, {3.0, 0.0}}, x[] = {{1.0, 0.0}, {0.0, 1.0}}, y[] = {{5.0,
///        0.0}, {0.0, 6.0}};
/// f06scc(UpperTriangle, 2, one, a, 2, x, 1, one, y, 1);
/// // y = {(6, 1), (1, 8)}
/// \endcode
void f06scc(Integer uplo, Integer n, Complex alpha, const Complex a[], Integer tda, const Complex x[], Integer incx,
            Complex beta, Complex y[], Integer incy);

/// \brief Product of a complex Hermitian band matrix and a vector.
///
/// Forms \f$y := \alpha A x + \beta y\f$, A being Hermitian of order n with k diagonals on either side of the main one,
/// half of the band stored. The imaginary parts of the diagonal of A are taken as 0 and not read. Nothing happens if n
/// is 0, or if alpha is 0 and beta 1.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle is stored; the other is not touched
/// \param[in]     n     order of A, not negative
/// \param[in]     k     diagonals above (or below) the main one, not negative
/// \param[in]     alpha the factor of the product; with 0 neither A nor x is read
/// \param[in]     a     the stored half of the band of A, n rows: element (i, j) at `a[i * tda + j - i]` if the upper
///                      triangle is stored (the diagonal first in each row), at `a[i * tda + k + j - i]` if the lower
///                      is (the diagonal last); places outside A are not read
/// \param[in]     tda   length of a row of the array: at least k + 1
/// \param[in]     x     the vector x: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
/// \param[in]     beta  the factor of y; with 0 y need not be set, and a NaN in it does not matter
/// \param[in,out] y     the vector y: n elements, `incy` apart
/// \param[in]     incy  step between its elements, not 0; a negative one walks from the far end
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `n`: negative.
/// - 3, `k`: negative.
/// - 6, `tda`: less than k + 1.
/// - 8, `incx`: 0.
/// - 11, `incy`: 0.
/// \par Accuracy
/// Backward stable: the result is exact for elements of the matrix that are changed by at most about n times the
/// precision, relative to each.
/// \par Method
/// The standard operation zhbmv (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06pdc() for real data.
/// \par Example
/// \code{.c}
/// Complex zero = {0.0, 0.0}, one = {1.0, 0.0}, two = {2.0, 0.0};
/// // a tridiagonal matrix
/// Complex a[] = {{2.0, 0.0}, {0.0, 1.0}, {2.0, 0.0}, {0.0, 1.0}, {2.0, 0.0}, {0.0, 0.0}}, x[] = {{1.0, 0.0}, {2.0,
///        0.0}, {3.0, 0.0}}, y[3];
/// f06sdc(UpperTriangle, 3, 1, one, a, 2, x, 1, zero, y, 1);
/// // y = {(2, 2), (4, 2), (6, -2)}
/// \endcode
void f06sdc(Integer uplo, Integer n, Integer k, Complex alpha, const Complex a[], Integer tda, const Complex x[],
            Integer incx, Complex beta, Complex y[], Integer incy);

/// \brief Product of a packed complex Hermitian matrix and a vector.
///
/// Forms \f$y := \alpha A x + \beta y\f$, A being Hermitian of order n, one triangle of it packed. The imaginary parts
/// of the diagonal of A are taken as 0 and not read. Nothing happens if n is 0, or if alpha is 0 and beta 1.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle is packed
/// \param[in]     n     order of A, not negative
/// \param[in]     alpha the factor of the product; with 0 neither A nor x is read
/// \param[in]     ap    the triangle of A packed by rows, one after another: n (n + 1) / 2 elements; element (i, j) at
///                      `ap[j + i * (2 * n - i - 1) / 2]` for the upper triangle, at `ap[i * (i + 1) / 2 + j]` for the
///                      lower, from 0
/// \param[in]     x     the vector x: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
/// \param[in]     beta  the factor of y; with 0 y need not be set, and a NaN in it does not matter
/// \param[in,out] y     the vector y: n elements, `incy` apart
/// \param[in]     incy  step between its elements, not 0; a negative one walks from the far end
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `n`: negative.
/// - 6, `incx`: 0.
/// - 9, `incy`: 0.
/// \par Accuracy
/// Backward stable: the result is exact for elements of the matrix that are changed by at most about n times the
/// precision, relative to each.
/// \par Method
/// The standard operation zhpmv (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06pec() for real data.
/// \par Example
/// \code{.c}
/// Complex zero = {0.0, 0.0}, one = {1.0, 0.0}, two = {2.0, 0.0};
/// Complex ap[] = {{2.0, 0.0}, {1.0, 1.0}, {3.0, 0.0}}, x[] = {{1.0, 0.0}, {0.0, 1.0}}, y[] = {{5.0, 0.0}, {0.0,
///        6.0}};
/// f06sec(UpperTriangle, 2, one, ap, x, 1, one, y, 1);
/// // y = {(6, 1), (1, 8)}
/// \endcode
void f06sec(Integer uplo, Integer n, Complex alpha, const Complex ap[], const Complex x[], Integer incx, Complex beta,
            Complex y[], Integer incy);

/// \brief Product of a complex triangular matrix and a vector.
///
/// Forms \f$x := \mathrm{op}(A)\, x\f$. Nothing happens if n is 0.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle A is; the other half of the array is not read
/// \param[in]     trans NoTranspose: op(A) = A; Transpose: A'; ConjugateTranspose: conj(A)'
/// \param[in]     diag  UnitTriangular: the diagonal is taken as 1 and not read; NotUnitTriangular: it is read
/// \param[in]     n     order of A, not negative
/// \param[in]     a     the triangle of A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda   length of a row of the array: at least max(1, n)
/// \param[in,out] x     the vector x, overwritten with the product: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `trans`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 3, `diag`: not UnitTriangular or NotUnitTriangular.
/// - 4, `n`: negative.
/// - 6, `tda`: less than max(1, n).
/// - 8, `incx`: 0.
/// \par Accuracy
/// Backward stable: the result is exact for elements of the matrix that are changed by at most about n times the
/// precision, relative to each.
/// \par Method
/// The standard operation ztrmv (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06sjc() is the inverse operation.
/// \par Example
/// \code{.c}
/// Complex a[] = {{2.0, 0.0}, {1.0, 1.0}, {-9.0, -9.0}, {3.0, 0.0}}, x[] = {{2.0, 0.0}, {0.0, 4.0}};
/// f06sfc(UpperTriangle, NoTranspose, NotUnitTriangular, 2, a, 2, x, 1);
/// // x = {(0, 4), (0, 12)}
/// \endcode
void f06sfc(Integer uplo, Integer trans, Integer diag, Integer n, const Complex a[], Integer tda, Complex x[],
            Integer incx);

/// \brief Product of a complex triangular band matrix and a vector.
///
/// Forms \f$x := \mathrm{op}(A)\, x\f$. Nothing happens if n is 0.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle A is; the other half of the array is not read
/// \param[in]     trans NoTranspose: op(A) = A; Transpose: A'; ConjugateTranspose: conj(A)'
/// \param[in]     diag  UnitTriangular: the diagonal is taken as 1 and not read; NotUnitTriangular: it is read
/// \param[in]     n     order of A, not negative
/// \param[in]     k     diagonals above (or below) the main one, not negative
/// \param[in]     a     the band of A, n rows: element (i, j) at `a[i * tda + j - i]` if the upper triangle is stored
///                      (the diagonal first in each row), at `a[i * tda + k + j - i]` if the lower is (the diagonal
///                      last); places outside A are not read
/// \param[in]     tda   length of a row of the array: at least k + 1
/// \param[in,out] x     the vector x, overwritten with the product: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `trans`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 3, `diag`: not UnitTriangular or NotUnitTriangular.
/// - 4, `n`: negative.
/// - 5, `k`: negative.
/// - 7, `tda`: less than k + 1.
/// - 9, `incx`: 0.
/// \par Accuracy
/// Backward stable: the result is exact for elements of the matrix that are changed by at most about n times the
/// precision, relative to each.
/// \par Method
/// The standard operation ztbmv (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06skc() is the inverse operation.
/// \par Example
/// \code{.c}
/// Complex a[] = {{2.0, 0.0}, {0.0, 1.0}, {2.0, 0.0}, {0.0, 1.0}, {2.0, 0.0}, {0.0, 0.0}}, x[] = {{2.0, 0.0}, {4.0,
///        0.0}, {2.0, 0.0}};
/// f06sgc(UpperTriangle, NoTranspose, NotUnitTriangular, 3, 1, a, 2, x, 1);
/// // x = {(4, 4), (8, 2), (4, 0)}
/// \endcode
void f06sgc(Integer uplo, Integer trans, Integer diag, Integer n, Integer k, const Complex a[], Integer tda,
            Complex x[], Integer incx);

/// \brief Product of a complex triangular packed matrix and a vector.
///
/// Forms \f$x := \mathrm{op}(A)\, x\f$. Nothing happens if n is 0.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle A is
/// \param[in]     trans NoTranspose: op(A) = A; Transpose: A'; ConjugateTranspose: conj(A)'
/// \param[in]     diag  UnitTriangular: the diagonal is taken as 1 and not read; NotUnitTriangular: it is read
/// \param[in]     n     order of A, not negative
/// \param[in]     ap    the triangle of A packed by rows, one after another: n (n + 1) / 2 elements; element (i, j) at
///                      `ap[j + i * (2 * n - i - 1) / 2]` for the upper triangle, at `ap[i * (i + 1) / 2 + j]` for the
///                      lower, from 0
/// \param[in,out] x     the vector x, overwritten with the product: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `trans`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 3, `diag`: not UnitTriangular or NotUnitTriangular.
/// - 4, `n`: negative.
/// - 7, `incx`: 0.
/// \par Accuracy
/// Backward stable: the result is exact for elements of the matrix that are changed by at most about n times the
/// precision, relative to each.
/// \par Method
/// The standard operation ztpmv (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06slc() is the inverse operation.
/// \par Example
/// \code{.c}
/// Complex ap[] = {{2.0, 0.0}, {1.0, 1.0}, {3.0, 0.0}}, x[] = {{2.0, 0.0}, {0.0, 4.0}};
/// f06shc(UpperTriangle, NoTranspose, NotUnitTriangular, 2, ap, x, 1);
/// // x = {(0, 4), (0, 12)}
/// \endcode
void f06shc(Integer uplo, Integer trans, Integer diag, Integer n, const Complex ap[], Complex x[], Integer incx);

/// \brief Solves a system with a complex triangular matrix.
///
/// Solves \f$\mathrm{op}(A)\, x = b\f$, that is forms \f$x := \mathrm{op}(A)^{-1} x\f$. There is no test for a singular
/// matrix: a zero on the diagonal gives infinities or NaNs. Nothing happens if n is 0.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle A is; the other half of the array is not read
/// \param[in]     trans NoTranspose: op(A) = A; Transpose: A'; ConjugateTranspose: conj(A)'
/// \param[in]     diag  UnitTriangular: the diagonal is taken as 1 and not read; NotUnitTriangular: it is read
/// \param[in]     n     order of A, not negative
/// \param[in]     a     the triangle of A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda   length of a row of the array: at least max(1, n)
/// \param[in,out] x     on entry the right-hand side, on return the solution: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `trans`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 3, `diag`: not UnitTriangular or NotUnitTriangular.
/// - 4, `n`: negative.
/// - 6, `tda`: less than max(1, n).
/// - 8, `incx`: 0.
/// \par Accuracy
/// Backward stable: the solution is exact for a matrix whose elements are changed by at most about n times the
/// precision.
/// \par Method
/// The standard operation ztrsv (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06sfc() is the inverse operation.
/// \par Example
/// \code{.c}
/// Complex a[] = {{2.0, 0.0}, {1.0, 1.0}, {-9.0, -9.0}, {3.0, 0.0}}, x[] = {{2.0, 0.0}, {0.0, 4.0}};
/// f06sjc(UpperTriangle, NoTranspose, NotUnitTriangular, 2, a, 2, x, 1);
/// // x = {(1.66667, -0.666667), (0, 1.33333)}
/// \endcode
void f06sjc(Integer uplo, Integer trans, Integer diag, Integer n, const Complex a[], Integer tda, Complex x[],
            Integer incx);

/// \brief Solves a system with a complex triangular band matrix.
///
/// Solves \f$\mathrm{op}(A)\, x = b\f$, that is forms \f$x := \mathrm{op}(A)^{-1} x\f$. There is no test for a singular
/// matrix: a zero on the diagonal gives infinities or NaNs. Nothing happens if n is 0.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle A is; the other half of the array is not read
/// \param[in]     trans NoTranspose: op(A) = A; Transpose: A'; ConjugateTranspose: conj(A)'
/// \param[in]     diag  UnitTriangular: the diagonal is taken as 1 and not read; NotUnitTriangular: it is read
/// \param[in]     n     order of A, not negative
/// \param[in]     k     diagonals above (or below) the main one, not negative
/// \param[in]     a     the band of A, n rows: element (i, j) at `a[i * tda + j - i]` if the upper triangle is stored
///                      (the diagonal first in each row), at `a[i * tda + k + j - i]` if the lower is (the diagonal
///                      last); places outside A are not read
/// \param[in]     tda   length of a row of the array: at least k + 1
/// \param[in,out] x     on entry the right-hand side, on return the solution: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `trans`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 3, `diag`: not UnitTriangular or NotUnitTriangular.
/// - 4, `n`: negative.
/// - 5, `k`: negative.
/// - 7, `tda`: less than k + 1.
/// - 9, `incx`: 0.
/// \par Accuracy
/// Backward stable: the solution is exact for a matrix whose elements are changed by at most about n times the
/// precision.
/// \par Method
/// The standard operation ztbsv (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06sgc() is the inverse operation.
/// \par Example
/// \code{.c}
/// Complex a[] = {{2.0, 0.0}, {0.0, 1.0}, {2.0, 0.0}, {0.0, 1.0}, {2.0, 0.0}, {0.0, 0.0}}, x[] = {{2.0, 0.0}, {4.0,
///        0.0}, {2.0, 0.0}};
/// f06skc(UpperTriangle, NoTranspose, NotUnitTriangular, 3, 1, a, 2, x, 1);
/// // x = {(0.75, -1), (2, -0.5), (1, 0)}
/// \endcode
void f06skc(Integer uplo, Integer trans, Integer diag, Integer n, Integer k, const Complex a[], Integer tda,
            Complex x[], Integer incx);

/// \brief Solves a system with a complex triangular packed matrix.
///
/// Solves \f$\mathrm{op}(A)\, x = b\f$, that is forms \f$x := \mathrm{op}(A)^{-1} x\f$. There is no test for a singular
/// matrix: a zero on the diagonal gives infinities or NaNs. Nothing happens if n is 0.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle A is
/// \param[in]     trans NoTranspose: op(A) = A; Transpose: A'; ConjugateTranspose: conj(A)'
/// \param[in]     diag  UnitTriangular: the diagonal is taken as 1 and not read; NotUnitTriangular: it is read
/// \param[in]     n     order of A, not negative
/// \param[in]     ap    the triangle of A packed by rows, one after another: n (n + 1) / 2 elements; element (i, j) at
///                      `ap[j + i * (2 * n - i - 1) / 2]` for the upper triangle, at `ap[i * (i + 1) / 2 + j]` for the
///                      lower, from 0
/// \param[in,out] x     on entry the right-hand side, on return the solution: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `trans`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 3, `diag`: not UnitTriangular or NotUnitTriangular.
/// - 4, `n`: negative.
/// - 7, `incx`: 0.
/// \par Accuracy
/// Backward stable: the solution is exact for a matrix whose elements are changed by at most about n times the
/// precision.
/// \par Method
/// The standard operation ztpsv (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06shc() is the inverse operation.
/// \par Example
/// \code{.c}
/// Complex ap[] = {{2.0, 0.0}, {1.0, 1.0}, {3.0, 0.0}}, x[] = {{2.0, 0.0}, {0.0, 4.0}};
/// f06slc(UpperTriangle, NoTranspose, NotUnitTriangular, 2, ap, x, 1);
/// // x = {(1.66667, -0.666667), (0, 1.33333)}
/// \endcode
void f06slc(Integer uplo, Integer trans, Integer diag, Integer n, const Complex ap[], Complex x[], Integer incx);

/// \brief Adds a multiple of the outer product of two complex vectors, the second not conjugated, to a matrix.
///
/// Forms \f$A := \alpha x y' + A\f$, A being m by n. Nothing happens if m or n is 0 or alpha is 0.
///
/// \param[in]     m     rows of A, not negative
/// \param[in]     n     columns of A, not negative
/// \param[in]     alpha the factor of the outer product
/// \param[in]     x     the vector x: m elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
/// \param[in]     y     the vector y: n elements, `incy` apart
/// \param[in]     incy  step between its elements, not 0; a negative one walks from the far end
/// \param[in,out] a     the matrix A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda   length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `m`: negative.
/// - 2, `n`: negative.
/// - 5, `incx`: 0.
/// - 7, `incy`: 0.
/// - 9, `tda`: less than max(1, n).
/// \par Accuracy
/// Each element is rounded as the formula says; the processor may fuse its multiplication and addition.
/// \par Method
/// The standard operation zgeru (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06snc() conjugates y; f06pmc() for real data.
/// \par Example
/// \code{.c}
/// Complex zero = {0.0, 0.0}, one = {1.0, 0.0}, two = {2.0, 0.0};
/// Complex a[] = {{1.0, 1.0}, {2.0, 0.0}, {3.0, 0.0}, {4.0, -1.0}}, x[] = {{1.0, 0.0}, {0.0, 1.0}}, y[] = {{5.0,
///        0.0}, {0.0, 6.0}};
/// f06smc(2, 2, one, x, 1, y, 1, a, 2);
/// // a = {(6, 1), (2, 6), (3, 5), (-2, -1)}
/// \endcode
void f06smc(Integer m, Integer n, Complex alpha, const Complex x[], Integer incx, const Complex y[], Integer incy,
            Complex a[], Integer tda);

/// \brief Adds a multiple of the outer product of two complex vectors, the second conjugated, to a matrix.
///
/// Forms \f$A := \alpha x y^H + A\f$, A being m by n. Nothing happens if m or n is 0 or alpha is 0.
///
/// \param[in]     m     rows of A, not negative
/// \param[in]     n     columns of A, not negative
/// \param[in]     alpha the factor of the outer product
/// \param[in]     x     the vector x: m elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
/// \param[in]     y     the vector y: n elements, `incy` apart
/// \param[in]     incy  step between its elements, not 0; a negative one walks from the far end
/// \param[in,out] a     the matrix A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda   length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `m`: negative.
/// - 2, `n`: negative.
/// - 5, `incx`: 0.
/// - 7, `incy`: 0.
/// - 9, `tda`: less than max(1, n).
/// \par Accuracy
/// Each element is rounded as the formula says; the processor may fuse its multiplication and addition.
/// \par Method
/// The standard operation zgerc (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06smc() does not conjugate; f06pmc() for real data.
/// \par Example
/// \code{.c}
/// Complex zero = {0.0, 0.0}, one = {1.0, 0.0}, two = {2.0, 0.0};
/// Complex a[] = {{1.0, 1.0}, {2.0, 0.0}, {3.0, 0.0}, {4.0, -1.0}}, x[] = {{1.0, 0.0}, {0.0, 1.0}}, y[] = {{5.0,
///        0.0}, {0.0, 6.0}};
/// f06snc(2, 2, one, x, 1, y, 1, a, 2);
/// // a = {(6, 1), (2, -6), (3, 5), (10, -1)}
/// \endcode
void f06snc(Integer m, Integer n, Complex alpha, const Complex x[], Integer incx, const Complex y[], Integer incy,
            Complex a[], Integer tda);

/// \brief Update of rank 1 of a complex Hermitian matrix.
///
/// Forms \f$A := \alpha x x^H + A\f$, A being Hermitian of order n. Only the stored triangle is changed. Nothing
/// happens if n is 0 or alpha is 0. The imaginary parts of the diagonal are taken as 0, and are 0 on return.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle is stored; the other is not touched
/// \param[in]     n     order of A, not negative
/// \param[in]     alpha the factor, real
/// \param[in]     x     the vector x: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
/// \param[in,out] a     the stored triangle of A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda   length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `n`: negative.
/// - 5, `incx`: 0.
/// - 7, `tda`: less than max(1, n).
/// \par Accuracy
/// Each element is rounded as the formula says; the processor may fuse its multiplication and addition.
/// \par Method
/// The standard operation zher (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex a[] = {{2.0, 0.0}, {1.0, 1.0}, {-9.0, -9.0}, {3.0, 0.0}}, x[] = {{1.0, 0.0}, {0.0, 1.0}};
/// f06spc(UpperTriangle, 2, 2.0, x, 1, a, 2);
/// // a = {(4, 0), (1, -1), (-9, -9), (5, 0)}
/// \endcode
void f06spc(Integer uplo, Integer n, double alpha, const Complex x[], Integer incx, Complex a[], Integer tda);

/// \brief Update of rank 1 of a packed complex Hermitian matrix.
///
/// Forms \f$A := \alpha x x^H + A\f$, A being Hermitian of order n. Only the packed triangle is changed. Nothing
/// happens if n is 0 or alpha is 0. The imaginary parts of the diagonal are taken as 0, and are 0 on return.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle is packed
/// \param[in]     n     order of A, not negative
/// \param[in]     alpha the factor, real
/// \param[in]     x     the vector x: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
/// \param[in,out] ap    the triangle of A packed by rows, one after another: n (n + 1) / 2 elements; element (i, j) at
///                      `ap[j + i * (2 * n - i - 1) / 2]` for the upper triangle, at `ap[i * (i + 1) / 2 + j]` for the
///                      lower, from 0
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `n`: negative.
/// - 5, `incx`: 0.
/// \par Accuracy
/// Each element is rounded as the formula says; the processor may fuse its multiplication and addition.
/// \par Method
/// The standard operation zhpr (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex ap[] = {{2.0, 0.0}, {1.0, 1.0}, {3.0, 0.0}}, x[] = {{1.0, 0.0}, {0.0, 1.0}};
/// f06sqc(UpperTriangle, 2, 2.0, x, 1, ap);
/// // ap = {(4, 0), (1, -1), (5, 0)}
/// \endcode
void f06sqc(Integer uplo, Integer n, double alpha, const Complex x[], Integer incx, Complex ap[]);

/// \brief Update of rank 2 of a complex Hermitian matrix.
///
/// Forms \f$A := \alpha x y^H + \bar\alpha y x^H + A\f$, A being Hermitian of order n. Only the stored triangle is
/// changed. Nothing happens if n is 0 or alpha is 0. The imaginary parts of the diagonal are taken as 0, and are 0 on
/// return.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle is stored; the other is not touched
/// \param[in]     n     order of A, not negative
/// \param[in]     alpha the factor
/// \param[in]     x     the vector x: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
/// \param[in]     y     the vector y: n elements, `incy` apart
/// \param[in]     incy  step between its elements, not 0; a negative one walks from the far end
/// \param[in,out] a     the stored triangle of A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda   length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `n`: negative.
/// - 5, `incx`: 0.
/// - 7, `incy`: 0.
/// - 9, `tda`: less than max(1, n).
/// \par Accuracy
/// Each element is rounded as the formula says; the processor may fuse its multiplication and addition.
/// \par Method
/// The standard operation zher2 (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex zero = {0.0, 0.0}, one = {1.0, 0.0}, two = {2.0, 0.0};
/// Complex a[] = {{2.0, 0.0}, {1.0, 1.0}, {-9.0, -9.0}, {3.0, 0.0}}, x[] = {{1.0, 0.0}, {0.0, 1.0}}, y[] = {{5.0,
///        0.0}, {0.0, 6.0}};
/// f06src(UpperTriangle, 2, one, x, 1, y, 1, a, 2);
/// // a = {(12, 0), (1, -10), (-9, -9), (15, 0)}
/// \endcode
void f06src(Integer uplo, Integer n, Complex alpha, const Complex x[], Integer incx, const Complex y[], Integer incy,
            Complex a[], Integer tda);

/// \brief Update of rank 2 of a packed complex Hermitian matrix.
///
/// Forms \f$A := \alpha x y^H + \bar\alpha y x^H + A\f$, A being Hermitian of order n. Only the packed triangle is
/// changed. Nothing happens if n is 0 or alpha is 0. The imaginary parts of the diagonal are taken as 0, and are 0 on
/// return.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle is packed
/// \param[in]     n     order of A, not negative
/// \param[in]     alpha the factor
/// \param[in]     x     the vector x: n elements, `incx` apart
/// \param[in]     incx  step between its elements, not 0; a negative one walks from the far end
/// \param[in]     y     the vector y: n elements, `incy` apart
/// \param[in]     incy  step between its elements, not 0; a negative one walks from the far end
/// \param[in,out] ap    the triangle of A packed by rows, one after another: n (n + 1) / 2 elements; element (i, j) at
///                      `ap[j + i * (2 * n - i - 1) / 2]` for the upper triangle, at `ap[i * (i + 1) / 2 + j]` for the
///                      lower, from 0
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `n`: negative.
/// - 5, `incx`: 0.
/// - 7, `incy`: 0.
/// \par Accuracy
/// Each element is rounded as the formula says; the processor may fuse its multiplication and addition.
/// \par Method
/// The standard operation zhpr2 (J. J. Dongarra et al., ACM Trans. Math. Softw. 14 (1988) 1-17), in row-major order,
/// from the BLAS library that is linked; the smallest sizes by loops in place.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex zero = {0.0, 0.0}, one = {1.0, 0.0}, two = {2.0, 0.0};
/// Complex ap[] = {{2.0, 0.0}, {1.0, 1.0}, {3.0, 0.0}}, x[] = {{1.0, 0.0}, {0.0, 1.0}}, y[] = {{5.0, 0.0}, {0.0,
///        6.0}};
/// f06ssc(UpperTriangle, 2, one, x, 1, y, 1, ap);
/// // ap = {(12, 0), (1, -10), (15, 0)}
/// \endcode
void f06ssc(Integer uplo, Integer n, Complex alpha, const Complex x[], Integer incx, const Complex y[], Integer incy,
            Complex ap[]);

/* ---- Complex matrices: copies, sequences of rotations ---- */

/// \brief Copies a complex matrix, or a triangle of it.
///
/// Forms \f$B := A\f$, both m by n, in the part that `matrix` names; a triangle of a rectangular matrix is a trapezium.
/// The rest of b is not touched.
///
/// \param[in]  matrix General: all of it; UpperTriangular: the elements on and above the diagonal; LowerTriangular:
///                    those on and below
/// \param[in]  m      rows, not negative
/// \param[in]  n      columns, not negative
/// \param[in]  a      the matrix A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]  tda    length of a row of the array: at least max(1, n)
/// \param[out] b      the copy, row by row
/// \param[in]  tdb    length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `matrix`: not General, UpperTriangular or LowerTriangular.
/// - 2, `m`: negative.
/// - 3, `n`: negative.
/// - 5, `tda`: less than max(1, n).
/// - 7, `tdb`: less than max(1, n).
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06qfc() for real matrices.
/// \par Example
/// \code{.c}
/// Complex a[] = {{1.0, 0.0}, {2.0, 0.0}, {3.0, 0.0}, {4.0, 0.0}}, b[4] = {{0.0, 0.0}};
/// f06tfc(UpperTriangular, 2, 2, a, 2, b, 2);
/// // b = {(1, 0), (2, 0), (0, 0), (4, 0)}
/// \endcode
void f06tfc(Integer matrix, Integer m, Integer n, const Complex a[], Integer tda, Complex b[], Integer tdb);

/// \brief Fills a complex matrix, or a triangle of it, with one constant on the diagonal and another beside it.
///
/// Sets \f$a_{ii} := \mathit{diag}\f$ and \f$a_{ij} := \mathit{con}\f$ for the other elements of the part that `matrix`
/// names, A being m by n. The rest of a is not touched.
///
/// \param[in]  matrix General: all of it; UpperTriangular: the elements on and above the diagonal; LowerTriangular:
///                    those on and below
/// \param[in]  m      rows, not negative
/// \param[in]  n      columns, not negative
/// \param[in]  con    the constant beside the diagonal
/// \param[in]  diag   the constant on the diagonal
/// \param[out] a      the matrix A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]  tda    length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `matrix`: not General, UpperTriangular or LowerTriangular.
/// - 2, `m`: negative.
/// - 3, `n`: negative.
/// - 7, `tda`: less than max(1, n).
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06qhc() for real matrices.
/// \par Example
/// \code{.c}
/// Complex zero = {0.0, 0.0}, one = {1.0, 0.0}, a[4];
/// f06thc(General, 2, 2, zero, one, a, 2);   // the unit matrix
/// // a = {(1, 0), (0, 0), (0, 0), (1, 0)}
/// \endcode
void f06thc(Integer matrix, Integer m, Integer n, Complex con, Complex diag, Complex a[], Integer tda);

/// \brief Applies a sequence of plane rotations to a complex upper triangular matrix, and restores the triangle from
/// the other side.
///
/// Rotation k, in the plane of rows or columns k and k+1, k = k1..k2-1 counted from 1, has real cosine `c[k-1]` and
/// complex sine `s[k-1]` and is \f$P_k = \begin{pmatrix} c & \bar s \\ -s & c \end{pmatrix}\f$.
/// - LeftSide: given P, finds Q so that \f$R = P U Q^H\f$ is upper triangular; \f$P = P_{k_2-1} \cdots P_{k_1+1}
///   P_{k_1}\f$, and so is Q.
/// - RightSide: given P, finds Q so that \f$R = Q U P^H\f$ is upper triangular; \f$P = P_{k_1} P_{k_1+1} \cdots
///   P_{k_2-1}\f$, and so is Q.
///
/// \param[in]     side LeftSide: P acts on rows; RightSide: on columns
/// \param[in]     n    order of the matrix, not negative
/// \param[in]     k1   first row or column, at least 1
/// \param[in]     k2   last row or column, at most n; if it is not greater than k1 nothing happens
/// \param[in,out] c    k2-1 elements: the cosines of P, on return those of Q
/// \param[in,out] s    k2-1 elements: the sines of P, on return those of Q
/// \param[in,out] a    the upper triangle U, row by row: element (i, j) at `a[i * tda + j]`, from 0; R on return; the
///                     strict lower triangle of the array is not touched
/// \param[in]     tda  length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `side`: not LeftSide or RightSide.
/// - 2, `n`: negative.
/// - 3, `k1`: less than 1.
/// - 4, `k2`: greater than n.
/// - 8, `tda`: less than max(1, n).
/// \par Accuracy
/// Backward stable: the result is exact for a matrix that is changed by at most about (k2 - k1) times the precision
/// times its norm, and the rotations are orthogonal to the precision.
/// \par Method
/// Plane rotations; see P. E. Gill, G. H. Golub, W. Murray and M. A. Saunders, Math. Comp. 28 (1974) 505-535, on
/// modifying factorisations. Rotations of columns are applied row by row.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06qtc() for real matrices.
/// \par Example
/// \code{.c}
/// Complex u[] = {{2.0, 0.0}, {0.0, 1.0}, {0.0, 0.0}, {2.0, 0.0}}, s[] = {{0.0, 0.8}};
/// double c[] = {0.6};
/// f06ttc(LeftSide, 2, 1, 2, c, s, u, 2);
/// // u = {(1.56174, 0), (0, -0.0312348), (0, 0), (2.56125, 0)}
/// \endcode
void f06ttc(Integer side, Integer n, Integer k1, Integer k2, double c[], Complex s[], Complex a[], Integer tda);

/// \brief Applies a sequence of plane rotations with complex sines to a complex rectangular matrix.
///
/// Forms \f$A := P A\f$ (left) or \f$A := A P^H\f$ (right), A being m by n. ForwardSequence: \f$P = P_{k_2-1} \cdots
/// P_{k_1+1} P_{k_1}\f$; BackwardSequence: \f$P = P_{k_1} P_{k_1+1} \cdots P_{k_2-1}\f$. Rotation k, k = k1..k2-1
/// counted from 1, is \f$P_k = \begin{pmatrix} c & \bar s \\ -s & c \end{pmatrix}\f$ with `c[k-1]` and `s[k-1]`, in the
/// plane of rows or columns
/// - (k, k+1) with VariablePivot,
/// - (k1, k+1) with TopPivot,
/// - (k, k2) with BottomPivot.
///
/// On the right that is, for each plane (p, q): \f$a_p := c\,a_p + s\,a_q,\; a_q := c\,a_q - \bar s\,a_p\f$.
///
/// \param[in]     side   LeftSide: rotations of rows; RightSide: of columns
/// \param[in]     pivot  VariablePivot, TopPivot or BottomPivot
/// \param[in]     direct ForwardSequence or BackwardSequence
/// \param[in]     m      rows of A, not negative
/// \param[in]     n      columns of A, not negative
/// \param[in]     k1     first row or column, at least 1
/// \param[in]     k2     last row or column, at most m (left) or n (right); if it is not greater than k1 nothing
///                       happens
/// \param[in]     c      k2-1 elements: the cosines
/// \param[in]     s      k2-1 elements: the sines
/// \param[in,out] a      the matrix A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda    length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `side`: not LeftSide or RightSide.
/// - 2, `pivot`: not VariablePivot, TopPivot or BottomPivot.
/// - 3, `direct`: not ForwardSequence or BackwardSequence.
/// - 4, `m`: negative.
/// - 5, `n`: negative.
/// - 6, `k1`: less than 1.
/// - 7, `k2`: greater than m (left) or n (right).
/// - 11, `tda`: less than max(1, n).
/// \par Accuracy
/// Backward stable: the result is exact for a matrix that is changed by at most about (k2 - k1) times the precision
/// times its norm, and the rotations are orthogonal to the precision.
/// \par Method
/// Rotations after W. Givens, J. SIAM 6 (1958) 26-50, kept by their tangents. Rotations of columns are applied row by
/// row.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06hqc() chooses a sequence; f06vxc() for real rotations.
/// \par Example
/// \code{.c}
/// Complex a[] = {{1.0, 0.0}, {2.0, 0.0}, {3.0, 0.0}}, s[] = {{0.0, 0.8}, {0.6, 0.0}};
/// double c[] = {0.6, 0.8};
/// f06txc(LeftSide, VariablePivot, ForwardSequence, 3, 1, 1, 3, c, s, a, 1);
/// // a = {(0.6, -1.6), (2.76, -0.64), (1.68, 0.48)}
/// \endcode
void f06txc(Integer side, Integer pivot, Integer direct, Integer m, Integer n, Integer k1, Integer k2, const double c[],
            const Complex s[], Complex a[], Integer tda);

/* ---- Complex matrices: norms, permutations, sequences of real rotations ---- */

/// \brief Norm of a complex matrix of a certain type.
///
/// Forms a norm of the m by n matrix A. 0 if m or n is 0; NaN if an element is NaN; no spurious overflow. The imaginary
/// parts of the diagonal of a Hermitian matrix are taken as 0 and not read.
///
/// \param[in] norm   OneNorm: greatest sum of |a_ij| down a column; InfinityNorm: along a row; FrobeniusNorm: square
///                   root of the sum of all |a_ij|^2; MaxAbsValue: greatest |a_ij| (not a consistent norm)
/// \param[in] matrix General, UpperTriangular, LowerTriangular, SymmetricUpper, SymmetricLower, HermitianUpper or
///                   HermitianLower: which part of the array is stored and, for a symmetric or Hermitian matrix, stands
///                   for the rest; a triangular matrix that is not square is a trapezium
/// \param[in] m      rows, not negative
/// \param[in] n      columns, not negative; equal to m for a symmetric or Hermitian matrix
/// \param[in] a      the matrix A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in] tda    length of a row of the array: at least max(1, n)
/// \return the norm; 0 after an error
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was and the result 0:
/// - 1, `norm`: not OneNorm, FrobeniusNorm, MaxAbsValue or InfinityNorm.
/// - 2, `matrix`: not one of those named.
/// - 3, `m`: negative.
/// - 4, `n`: negative, or not m for a symmetric or Hermitian matrix.
/// - 6, `tda`: less than max(1, n).
/// \par Accuracy
/// About (number of terms in a sum) times the precision, relative; the Frobenius norm to a few ulp.
/// \par Method
/// Sums row by row; the sums of columns for 128 columns at a time; squares by f06fjc().
/// \par Thread safety
/// Safe.
/// \par See also
/// f06qgc() for real matrices.
/// \par Example
/// \code{.c}
/// Complex a[] = {{3.0, 4.0}, {0.0, 0.0}, {0.0, 0.0}, {1.0, 0.0}};
/// double norm = f06vgc(OneNorm, General, 2, 2, a, 2);
/// // norm = 5
/// \endcode
double f06vgc(Integer norm, Integer matrix, Integer m, Integer n, const Complex a[], Integer tda);

/// \brief Permutes the rows or columns of a complex matrix by a sequence of interchanges, given as real numbers.
///
/// Forms \f$B := P B\f$ or \f$P' B\f$ (left), \f$B := B P\f$ or \f$B P'\f$ (right), with \f$P = P_1 P_2 \cdots P_n\f$
/// and \f$P_i\f$ the interchange of row or column i with that which `perm` names. \f$P'B\f$ and \f$BP\f$ therefore do
/// the interchanges in the order i = 1, 2, ..., n, as a factorisation with pivoting did them; \f$PB\f$ and \f$BP'\f$
/// undo them from the last to the first.
///
/// \param[in]     side  LeftSide: rows are permuted; RightSide: columns
/// \param[in]     trans NoTranspose: P; Transpose or ConjugateTranspose: P'
/// \param[in]     n     number of interchanges, not negative
/// \param[in]     perm  n values: what is interchanged with row or column i, **counted from 1**; a value that is not
///                      whole is cut to an integer; a row may lie beyond the first n
/// \param[in]     k     columns (left) or rows (right) of B, not negative
/// \param[in,out] b     the matrix B, row by row: element (i, j) at `b[i * tdb + j]`, from 0; it has at least n rows
///                      (left) or columns (right)
/// \param[in]     tdb   length of a row of the array: at least max(1, k) (left) or max(1, n) (right)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `side`: not LeftSide or RightSide.
/// - 2, `trans`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 3, `n`: negative.
/// - 4, `perm`: a value less than 1, or a column beyond `tdb`, or a NaN.
/// - 5, `k`: negative.
/// - 7, `tdb`: less than the length of its row.
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06qkc() for real matrices.
/// \par Example
/// \code{.c}
/// Complex b[] = {{1.0, 0.0}, {2.0, 0.0}, {3.0, 0.0}};
/// double perm[] = {3.0, 3.0, 3.0};
/// f06vkc(LeftSide, Transpose, 3, perm, 1, b, 1);
/// // b = {(3, 0), (1, 0), (2, 0)}
/// \endcode
void f06vkc(Integer side, Integer trans, Integer n, const double perm[], Integer k, Complex b[], Integer tdb);

/// \brief Applies a sequence of plane rotations to a complex rectangular matrix.
///
/// Forms \f$A := P A\f$ (left) or \f$A := A P'\f$ (right), A being m by n. ForwardSequence: \f$P = P_{k_2-1} \cdots
/// P_{k_1+1} P_{k_1}\f$; BackwardSequence: \f$P = P_{k_1} P_{k_1+1} \cdots P_{k_2-1}\f$. Rotation k, k = k1..k2-1
/// counted from 1, is \f$P_k = \begin{pmatrix} c & s \\ -s & c \end{pmatrix}\f$ with `c[k-1]` and `s[k-1]`, in the
/// plane of rows or columns
/// - (k, k+1) with VariablePivot,
/// - (k1, k+1) with TopPivot,
/// - (k, k2) with BottomPivot.
///
/// On the right that is, for each plane (p, q): \f$a_p := c\,a_p + s\,a_q,\; a_q := c\,a_q - s\,a_p\f$.
///
/// \param[in]     side   LeftSide: rotations of rows; RightSide: of columns
/// \param[in]     pivot  VariablePivot, TopPivot or BottomPivot
/// \param[in]     direct ForwardSequence or BackwardSequence
/// \param[in]     m      rows of A, not negative
/// \param[in]     n      columns of A, not negative
/// \param[in]     k1     first row or column, at least 1
/// \param[in]     k2     last row or column, at most m (left) or n (right); if it is not greater than k1 nothing
///                       happens
/// \param[in]     c      k2-1 elements: the cosines
/// \param[in]     s      k2-1 elements: the sines
/// \param[in,out] a      the matrix A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda    length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `side`: not LeftSide or RightSide.
/// - 2, `pivot`: not VariablePivot, TopPivot or BottomPivot.
/// - 3, `direct`: not ForwardSequence or BackwardSequence.
/// - 4, `m`: negative.
/// - 5, `n`: negative.
/// - 6, `k1`: less than 1.
/// - 7, `k2`: greater than m (left) or n (right).
/// - 11, `tda`: less than max(1, n).
/// \par Accuracy
/// Backward stable: the result is exact for a matrix that is changed by at most about (k2 - k1) times the precision
/// times its norm, and the rotations are orthogonal to the precision.
/// \par Method
/// Rotations after W. Givens, J. SIAM 6 (1958) 26-50, kept by their tangents. Rotations of columns are applied row by
/// row.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06txc() for complex rotations; f06qxc() for real matrices.
/// \par Example
/// \code{.c}
/// Complex a[] = {{1.0, 0.0}, {2.0, 0.0}, {3.0, 0.0}};
/// double c[] = {0.6, 0.8}, s[] = {0.8, 0.6};
/// f06vxc(LeftSide, VariablePivot, ForwardSequence, 3, 1, 1, 3, c, s, a, 1);
/// // a = {(2.2, 0), (2.12, 0), (2.16, 0)}
/// \endcode
void f06vxc(Integer side, Integer pivot, Integer direct, Integer m, Integer n, Integer k1, Integer k2, const double c[],
            const double s[], Complex a[], Integer tda);

/* ---- Real matrices: the standard operations ---- */

/// \brief Product of two real general matrices.
///
/// Forms \f$C := \alpha\, \mathrm{op}(A)\, \mathrm{op}(B) + \beta C\f$, op(A) being m by k, op(B) k by n and C m by n.
/// Nothing happens if m or n is 0, or if alpha or k is 0 and beta 1.
///
/// \param[in]     transa NoTranspose: op(A) = A; Transpose or ConjugateTranspose: A'
/// \param[in]     transb NoTranspose: op(B) = B; Transpose or ConjugateTranspose: B'
/// \param[in]     m      rows of op(A) and C, not negative
/// \param[in]     n      columns of op(B) and C, not negative
/// \param[in]     k      columns of op(A), rows of op(B), not negative; with 0 the product is 0
/// \param[in]     alpha  the factor of the product; with 0 neither A nor B is read
/// \param[in]     a      the matrix A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda    length of a row of the array: at least max(1, k), if A is transposed max(1, m)
/// \param[in]     b      the matrix B, row by row: element (i, j) at `b[i * tdb + j]`, from 0
/// \param[in]     tdb    length of a row of the array: at least max(1, n), if B is transposed max(1, k)
/// \param[in]     beta   the factor of C; with 0 C need not be set, and a NaN in it does not matter
/// \param[in,out] c      the matrix C, row by row: element (i, j) at `c[i * tdc + j]`, from 0
/// \param[in]     tdc    length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `transa`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 2, `transb`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 3, `m`: negative.
/// - 4, `n`: negative.
/// - 5, `k`: negative.
/// - 8, `tda`: less than the length of its row.
/// - 10, `tdb`: less than the length of its row.
/// - 13, `tdc`: less than max(1, n).
/// \par Accuracy
/// The error of an element is at most about (inner dimension) times the precision times the same product formed of the
/// moduli.
/// \par Method
/// The standard operation dgemm (J. J. Dongarra et al., ACM Trans. Math. Softw. 16 (1990) 1-17), in row-major order,
/// from the BLAS library that is linked.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06zac() for complex data.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 2.0, 3.0, 4.0}, b[] = {1.0, 0.0, 2.0, 1.0}, c[] = {9.0, 9.0, 9.0, 9.0};
/// f06yac(NoTranspose, NoTranspose, 2, 2, 2, 1.0, a, 2, b, 2, 0.0, c, 2);
/// // c = {5, 2, 11, 4}
/// \endcode
void f06yac(Integer transa, Integer transb, Integer m, Integer n, Integer k, double alpha, const double a[],
            Integer tda, const double b[], Integer tdb, double beta, double c[], Integer tdc);

/// \brief Product of a real symmetric and a general matrix.
///
/// Forms \f$C := \alpha A B + \beta C\f$ or \f$C := \alpha B A + \beta C\f$, A being symmetric, one triangle of it
/// stored, B and C m by n. Nothing happens if m or n is 0, or if alpha is 0 and beta 1.
///
/// \param[in]     side  LeftSide: A stands on the left of B; RightSide: on its right
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle is stored; the other is not touched
/// \param[in]     m     rows of B and C, not negative
/// \param[in]     n     columns of B and C, not negative
/// \param[in]     alpha the factor of the product; with 0 neither A nor B is read
/// \param[in]     a     the stored triangle of A, of order m on the left, n on the right, row by row: element (i, j) at
///                      `a[i * tda + j]`, from 0
/// \param[in]     tda   length of a row of the array: at least max(1, order of A)
/// \param[in]     b     the matrix B, row by row: element (i, j) at `b[i * tdb + j]`, from 0
/// \param[in]     tdb   length of a row of the array: at least max(1, n)
/// \param[in]     beta  the factor of C; with 0 C need not be set, and a NaN in it does not matter
/// \param[in,out] c     the matrix C, row by row: element (i, j) at `c[i * tdc + j]`, from 0
/// \param[in]     tdc   length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `side`: not LeftSide or RightSide.
/// - 2, `uplo`: not UpperTriangle or LowerTriangle.
/// - 3, `m`: negative.
/// - 4, `n`: negative.
/// - 7, `tda`: less than max(1, order of A).
/// - 9, `tdb`: less than max(1, n).
/// - 12, `tdc`: less than max(1, n).
/// \par Accuracy
/// The error of an element is at most about (inner dimension) times the precision times the same product formed of the
/// moduli.
/// \par Method
/// The standard operation dsymm (J. J. Dongarra et al., ACM Trans. Math. Softw. 16 (1990) 1-17), in row-major order,
/// from the BLAS library that is linked.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double a[] = {2.0, 1.0, -9.0, 3.0}, b[] = {1.0, 0.0, 2.0, 1.0}, c[] = {9.0, 9.0, 9.0, 9.0};
/// f06ycc(LeftSide, UpperTriangle, 2, 2, 1.0, a, 2, b, 2, 0.0, c, 2);
/// // c = {4, 1, 7, 3}
/// \endcode
void f06ycc(Integer side, Integer uplo, Integer m, Integer n, double alpha, const double a[], Integer tda,
            const double b[], Integer tdb, double beta, double c[], Integer tdc);

/// \brief Product of a real triangular and a general matrix.
///
/// Forms \f$B := \alpha\, \mathrm{op}(A) B\f$ or \f$B := \alpha B\, \mathrm{op}(A)\f$, B being m by n. Nothing happens
/// if m or n is 0.
///
/// \param[in]     side   LeftSide: op(A) stands on the left; RightSide: on the right
/// \param[in]     uplo   UpperTriangle or LowerTriangle: which triangle A is; the other half of the array is not read
/// \param[in]     transa NoTranspose: op(A) = A; Transpose or ConjugateTranspose: A'
/// \param[in]     diag   UnitTriangular: the diagonal is taken as 1 and not read; NotUnitTriangular: it is read
/// \param[in]     m      rows of B, not negative
/// \param[in]     n      columns of B, not negative
/// \param[in]     alpha  the factor of B; with 0 neither A nor B is read, and B is cleared
/// \param[in]     a      the triangle of A, of order m on the left, n on the right, row by row: element (i, j) at `a[i
///                       * tda + j]`, from 0
/// \param[in]     tda    length of a row of the array: at least max(1, order of A)
/// \param[in,out] b      the matrix B, overwritten with the result, row by row: element (i, j) at `b[i * tdb + j]`,
///                       from 0
/// \param[in]     tdb    length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `side`: not LeftSide or RightSide.
/// - 2, `uplo`: not UpperTriangle or LowerTriangle.
/// - 3, `transa`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 4, `diag`: not UnitTriangular or NotUnitTriangular.
/// - 5, `m`: negative.
/// - 6, `n`: negative.
/// - 9, `tda`: less than max(1, order of A).
/// - 11, `tdb`: less than max(1, n).
/// \par Accuracy
/// The error of an element is at most about (inner dimension) times the precision times the same product formed of the
/// moduli.
/// \par Method
/// The standard operation dtrmm (J. J. Dongarra et al., ACM Trans. Math. Softw. 16 (1990) 1-17), in row-major order,
/// from the BLAS library that is linked.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double a[] = {2.0, 1.0, -9.0, 4.0}, b[] = {1.0, 0.0, 2.0, 1.0};
/// f06yfc(LeftSide, UpperTriangle, NoTranspose, NotUnitTriangular, 2, 2, 1.0, a, 2, b, 2);
/// // b = {4, 1, 8, 4}
/// \endcode
void f06yfc(Integer side, Integer uplo, Integer transa, Integer diag, Integer m, Integer n, double alpha,
            const double a[], Integer tda, double b[], Integer tdb);

/// \brief Solves systems with a real triangular matrix for several right-hand sides.
///
/// Solves \f$\mathrm{op}(A) X = \alpha B\f$ or \f$X\, \mathrm{op}(A) = \alpha B\f$, B being m by n, and puts X in its
/// place. There is no test for a singular matrix: a zero on the diagonal gives infinities or NaNs. Nothing happens if m
/// or n is 0.
///
/// \param[in]     side   LeftSide: op(A) stands on the left; RightSide: on the right
/// \param[in]     uplo   UpperTriangle or LowerTriangle: which triangle A is; the other half of the array is not read
/// \param[in]     transa NoTranspose: op(A) = A; Transpose or ConjugateTranspose: A'
/// \param[in]     diag   UnitTriangular: the diagonal is taken as 1 and not read; NotUnitTriangular: it is read
/// \param[in]     m      rows of B, not negative
/// \param[in]     n      columns of B, not negative
/// \param[in]     alpha  the factor of B; with 0 neither A nor B is read, and B is cleared
/// \param[in]     a      the triangle of A, of order m on the left, n on the right, row by row: element (i, j) at `a[i
///                       * tda + j]`, from 0
/// \param[in]     tda    length of a row of the array: at least max(1, order of A)
/// \param[in,out] b      the matrix B, overwritten with the result, row by row: element (i, j) at `b[i * tdb + j]`,
///                       from 0
/// \param[in]     tdb    length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `side`: not LeftSide or RightSide.
/// - 2, `uplo`: not UpperTriangle or LowerTriangle.
/// - 3, `transa`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 4, `diag`: not UnitTriangular or NotUnitTriangular.
/// - 5, `m`: negative.
/// - 6, `n`: negative.
/// - 9, `tda`: less than max(1, order of A).
/// - 11, `tdb`: less than max(1, n).
/// \par Accuracy
/// Backward stable for each right-hand side: exact for a matrix whose elements are changed by at most about (order)
/// times the precision.
/// \par Method
/// The standard operation dtrsm (J. J. Dongarra et al., ACM Trans. Math. Softw. 16 (1990) 1-17), in row-major order,
/// from the BLAS library that is linked.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double a[] = {2.0, 1.0, -9.0, 4.0}, b[] = {1.0, 0.0, 2.0, 1.0};
/// f06yjc(LeftSide, UpperTriangle, NoTranspose, NotUnitTriangular, 2, 2, 1.0, a, 2, b, 2);
/// // b = {0.25, -0.125, 0.5, 0.25}
/// \endcode
void f06yjc(Integer side, Integer uplo, Integer transa, Integer diag, Integer m, Integer n, double alpha,
            const double a[], Integer tda, double b[], Integer tdb);

/// \brief Update of rank k of a real symmetric matrix.
///
/// Forms \f$C := \alpha A A' + \beta C\f$ or \f$C := \alpha A' A + \beta C\f$, C being symmetric of order n. Only the
/// stored triangle is changed. Nothing happens if n is 0, or if alpha or k is 0 and beta 1.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle is stored; the other is not touched
/// \param[in]     trans NoTranspose: A is n by k, the first form; Transpose or ConjugateTranspose: A is k by n, the
///                      second
/// \param[in]     n     order of C, not negative
/// \param[in]     k     inner dimension, not negative; with 0 the product is 0
/// \param[in]     alpha the factor of the product; with 0 A is not read
/// \param[in]     a     the matrix A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda   length of a row of the array: at least max(1, k), if transposed max(1, n)
/// \param[in]     beta  the factor of C; with 0 C need not be set, and a NaN in it does not matter
/// \param[in,out] c     the stored triangle of C, row by row: element (i, j) at `c[i * tdc + j]`, from 0
/// \param[in]     tdc   length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `trans`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 3, `n`: negative.
/// - 4, `k`: negative.
/// - 7, `tda`: less than the length of its row.
/// - 10, `tdc`: less than max(1, n).
/// \par Accuracy
/// The error of an element is at most about (inner dimension) times the precision times the same product formed of the
/// moduli.
/// \par Method
/// The standard operation dsyrk (J. J. Dongarra et al., ACM Trans. Math. Softw. 16 (1990) 1-17), in row-major order,
/// from the BLAS library that is linked.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 2.0, 3.0, 4.0}, c[] = {0.0, 0.0, 0.0, 0.0};
/// f06ypc(UpperTriangle, NoTranspose, 2, 2, 1.0, a, 2, 0.0, c, 2);
/// // c = {5, 11, 0, 25}
/// \endcode
void f06ypc(Integer uplo, Integer trans, Integer n, Integer k, double alpha, const double a[], Integer tda, double beta,
            double c[], Integer tdc);

/// \brief Update of rank 2k of a real symmetric matrix.
///
/// Forms \f$C := \alpha A B' + \alpha B A' + \beta C\f$ or \f$C := \alpha A' B + \alpha B' A + \beta C\f$, C being
/// symmetric of order n. Only the stored triangle is changed. Nothing happens if n is 0, or if alpha or k is 0 and beta
/// 1.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle is stored; the other is not touched
/// \param[in]     trans NoTranspose: A is n by k, the first form; Transpose or ConjugateTranspose: A is k by n, the
///                      second
/// \param[in]     n     order of C, not negative
/// \param[in]     k     inner dimension, not negative; with 0 the product is 0
/// \param[in]     alpha the factor of the product; with 0 A and B are not read
/// \param[in]     a     the matrix A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda   length of a row of the array: at least max(1, k), if transposed max(1, n)
/// \param[in]     b     the matrix B, of the shape of A, row by row: element (i, j) at `b[i * tdb + j]`, from 0
/// \param[in]     tdb   length of a row of the array: at least max(1, k), if transposed max(1, n)
/// \param[in]     beta  the factor of C; with 0 C need not be set, and a NaN in it does not matter
/// \param[in,out] c     the stored triangle of C, row by row: element (i, j) at `c[i * tdc + j]`, from 0
/// \param[in]     tdc   length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `trans`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 3, `n`: negative.
/// - 4, `k`: negative.
/// - 7, `tda`: less than the length of its row.
/// - 9, `tdb`: less than the length of its row.
/// - 12, `tdc`: less than max(1, n).
/// \par Accuracy
/// The error of an element is at most about (inner dimension) times the precision times the same product formed of the
/// moduli.
/// \par Method
/// The standard operation dsyr2k (J. J. Dongarra et al., ACM Trans. Math. Softw. 16 (1990) 1-17), in row-major order,
/// from the BLAS library that is linked.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double a[] = {1.0, 2.0, 3.0, 4.0}, b[] = {1.0, 0.0, 2.0, 1.0}, c[] = {0.0, 0.0, 0.0, 0.0};
/// f06yrc(UpperTriangle, NoTranspose, 2, 2, 1.0, a, 2, b, 2, 0.0, c, 2);
/// // c = {2, 7, 0, 20}
/// \endcode
void f06yrc(Integer uplo, Integer trans, Integer n, Integer k, double alpha, const double a[], Integer tda,
            const double b[], Integer tdb, double beta, double c[], Integer tdc);

/* ---- Complex matrices: the standard operations ---- */

/// \brief Product of two complex general matrices.
///
/// Forms \f$C := \alpha\, \mathrm{op}(A)\, \mathrm{op}(B) + \beta C\f$, op(A) being m by k, op(B) k by n and C m by n.
/// Nothing happens if m or n is 0, or if alpha or k is 0 and beta 1.
///
/// \param[in]     transa NoTranspose: op(A) = A; Transpose: A'; ConjugateTranspose: conj(A)'
/// \param[in]     transb NoTranspose: op(B) = B; Transpose: B'; ConjugateTranspose: conj(B)'
/// \param[in]     m      rows of op(A) and C, not negative
/// \param[in]     n      columns of op(B) and C, not negative
/// \param[in]     k      columns of op(A), rows of op(B), not negative; with 0 the product is 0
/// \param[in]     alpha  the factor of the product; with 0 neither A nor B is read
/// \param[in]     a      the matrix A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda    length of a row of the array: at least max(1, k), if A is transposed max(1, m)
/// \param[in]     b      the matrix B, row by row: element (i, j) at `b[i * tdb + j]`, from 0
/// \param[in]     tdb    length of a row of the array: at least max(1, n), if B is transposed max(1, k)
/// \param[in]     beta   the factor of C; with 0 C need not be set, and a NaN in it does not matter
/// \param[in,out] c      the matrix C, row by row: element (i, j) at `c[i * tdc + j]`, from 0
/// \param[in]     tdc    length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `transa`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 2, `transb`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 3, `m`: negative.
/// - 4, `n`: negative.
/// - 5, `k`: negative.
/// - 8, `tda`: less than the length of its row.
/// - 10, `tdb`: less than the length of its row.
/// - 13, `tdc`: less than max(1, n).
/// \par Accuracy
/// The error of an element is at most about (inner dimension) times the precision times the same product formed of the
/// moduli.
/// \par Method
/// The standard operation zgemm (J. J. Dongarra et al., ACM Trans. Math. Softw. 16 (1990) 1-17), in row-major order,
/// from the BLAS library that is linked.
/// \par Thread safety
/// Safe.
/// \par See also
/// f06yac() for real data.
/// \par Example
/// \code{.c}
/// Complex zero = {0.0, 0.0}, one = {1.0, 0.0}, two = {2.0, 0.0};
/// Complex a[] = {{1.0, 1.0}, {2.0, 0.0}, {3.0, 0.0}, {4.0, -1.0}}, b[] = {{1.0, 0.0}, {0.0, 0.0}, {2.0, 0.0},
///        {0.0, 1.0}}, c[4] = {{0.0, 0.0}};
/// f06zac(NoTranspose, NoTranspose, 2, 2, 2, one, a, 2, b, 2, zero, c, 2);
/// // c = {(5, 1), (0, 2), (11, -2), (1, 4)}
/// \endcode
void f06zac(Integer transa, Integer transb, Integer m, Integer n, Integer k, Complex alpha, const Complex a[],
            Integer tda, const Complex b[], Integer tdb, Complex beta, Complex c[], Integer tdc);

/// \brief Product of a complex Hermitian and a general matrix.
///
/// Forms \f$C := \alpha A B + \beta C\f$ or \f$C := \alpha B A + \beta C\f$, A being Hermitian, one triangle of it
/// stored, B and C m by n. The imaginary parts of the diagonal of A are taken as 0 and not read. Nothing happens if m
/// or n is 0, or if alpha is 0 and beta 1.
///
/// \param[in]     side  LeftSide: A stands on the left of B; RightSide: on its right
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle is stored; the other is not touched
/// \param[in]     m     rows of B and C, not negative
/// \param[in]     n     columns of B and C, not negative
/// \param[in]     alpha the factor of the product; with 0 neither A nor B is read
/// \param[in]     a     the stored triangle of A, of order m on the left, n on the right, row by row: element (i, j) at
///                      `a[i * tda + j]`, from 0
/// \param[in]     tda   length of a row of the array: at least max(1, order of A)
/// \param[in]     b     the matrix B, row by row: element (i, j) at `b[i * tdb + j]`, from 0
/// \param[in]     tdb   length of a row of the array: at least max(1, n)
/// \param[in]     beta  the factor of C; with 0 C need not be set, and a NaN in it does not matter
/// \param[in,out] c     the matrix C, row by row: element (i, j) at `c[i * tdc + j]`, from 0
/// \param[in]     tdc   length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `side`: not LeftSide or RightSide.
/// - 2, `uplo`: not UpperTriangle or LowerTriangle.
/// - 3, `m`: negative.
/// - 4, `n`: negative.
/// - 7, `tda`: less than max(1, order of A).
/// - 9, `tdb`: less than max(1, n).
/// - 12, `tdc`: less than max(1, n).
/// \par Accuracy
/// The error of an element is at most about (inner dimension) times the precision times the same product formed of the
/// moduli.
/// \par Method
/// The standard operation zhemm (J. J. Dongarra et al., ACM Trans. Math. Softw. 16 (1990) 1-17), in row-major order,
/// from the BLAS library that is linked.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex zero = {0.0, 0.0}, one = {1.0, 0.0}, two = {2.0, 0.0};
/// Complex a[] = {{2.0, 0.0}, {1.0, 1.0}, {-9.0, -9.0}, {3.0, 0.0}}, b[] = {{1.0, 0.0}, {0.0, 0.0}, {2.0, 0.0},
///        {0.0, 1.0}}, c[4] = {{0.0, 0.0}};
/// f06zcc(LeftSide, UpperTriangle, 2, 2, one, a, 2, b, 2, zero, c, 2);
/// // c = {(4, 2), (-1, 1), (7, -1), (0, 3)}
/// \endcode
void f06zcc(Integer side, Integer uplo, Integer m, Integer n, Complex alpha, const Complex a[], Integer tda,
            const Complex b[], Integer tdb, Complex beta, Complex c[], Integer tdc);

/// \brief Product of a complex triangular and a general matrix.
///
/// Forms \f$B := \alpha\, \mathrm{op}(A) B\f$ or \f$B := \alpha B\, \mathrm{op}(A)\f$, B being m by n. Nothing happens
/// if m or n is 0.
///
/// \param[in]     side   LeftSide: op(A) stands on the left; RightSide: on the right
/// \param[in]     uplo   UpperTriangle or LowerTriangle: which triangle A is; the other half of the array is not read
/// \param[in]     transa NoTranspose: op(A) = A; Transpose: A'; ConjugateTranspose: conj(A)'
/// \param[in]     diag   UnitTriangular: the diagonal is taken as 1 and not read; NotUnitTriangular: it is read
/// \param[in]     m      rows of B, not negative
/// \param[in]     n      columns of B, not negative
/// \param[in]     alpha  the factor of B; with 0 neither A nor B is read, and B is cleared
/// \param[in]     a      the triangle of A, of order m on the left, n on the right, row by row: element (i, j) at `a[i
///                       * tda + j]`, from 0
/// \param[in]     tda    length of a row of the array: at least max(1, order of A)
/// \param[in,out] b      the matrix B, overwritten with the result, row by row: element (i, j) at `b[i * tdb + j]`,
///                       from 0
/// \param[in]     tdb    length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `side`: not LeftSide or RightSide.
/// - 2, `uplo`: not UpperTriangle or LowerTriangle.
/// - 3, `transa`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 4, `diag`: not UnitTriangular or NotUnitTriangular.
/// - 5, `m`: negative.
/// - 6, `n`: negative.
/// - 9, `tda`: less than max(1, order of A).
/// - 11, `tdb`: less than max(1, n).
/// \par Accuracy
/// The error of an element is at most about (inner dimension) times the precision times the same product formed of the
/// moduli.
/// \par Method
/// The standard operation ztrmm (J. J. Dongarra et al., ACM Trans. Math. Softw. 16 (1990) 1-17), in row-major order,
/// from the BLAS library that is linked.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex zero = {0.0, 0.0}, one = {1.0, 0.0}, two = {2.0, 0.0};
/// Complex a[] = {{2.0, 0.0}, {1.0, 1.0}, {-9.0, -9.0}, {4.0, 0.0}}, b[] = {{1.0, 0.0}, {0.0, 0.0}, {2.0, 0.0},
///        {0.0, 1.0}};
/// f06zfc(LeftSide, UpperTriangle, NoTranspose, NotUnitTriangular, 2, 2, one, a, 2, b, 2);
/// // b = {(4, 2), (-1, 1), (8, 0), (0, 4)}
/// \endcode
void f06zfc(Integer side, Integer uplo, Integer transa, Integer diag, Integer m, Integer n, Complex alpha,
            const Complex a[], Integer tda, Complex b[], Integer tdb);

/// \brief Solves systems with a complex triangular matrix for several right-hand sides.
///
/// Solves \f$\mathrm{op}(A) X = \alpha B\f$ or \f$X\, \mathrm{op}(A) = \alpha B\f$, B being m by n, and puts X in its
/// place. There is no test for a singular matrix: a zero on the diagonal gives infinities or NaNs. Nothing happens if m
/// or n is 0.
///
/// \param[in]     side   LeftSide: op(A) stands on the left; RightSide: on the right
/// \param[in]     uplo   UpperTriangle or LowerTriangle: which triangle A is; the other half of the array is not read
/// \param[in]     transa NoTranspose: op(A) = A; Transpose: A'; ConjugateTranspose: conj(A)'
/// \param[in]     diag   UnitTriangular: the diagonal is taken as 1 and not read; NotUnitTriangular: it is read
/// \param[in]     m      rows of B, not negative
/// \param[in]     n      columns of B, not negative
/// \param[in]     alpha  the factor of B; with 0 neither A nor B is read, and B is cleared
/// \param[in]     a      the triangle of A, of order m on the left, n on the right, row by row: element (i, j) at `a[i
///                       * tda + j]`, from 0
/// \param[in]     tda    length of a row of the array: at least max(1, order of A)
/// \param[in,out] b      the matrix B, overwritten with the result, row by row: element (i, j) at `b[i * tdb + j]`,
///                       from 0
/// \param[in]     tdb    length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `side`: not LeftSide or RightSide.
/// - 2, `uplo`: not UpperTriangle or LowerTriangle.
/// - 3, `transa`: not one of NoTranspose, Transpose, ConjugateTranspose.
/// - 4, `diag`: not UnitTriangular or NotUnitTriangular.
/// - 5, `m`: negative.
/// - 6, `n`: negative.
/// - 9, `tda`: less than max(1, order of A).
/// - 11, `tdb`: less than max(1, n).
/// \par Accuracy
/// Backward stable for each right-hand side: exact for a matrix whose elements are changed by at most about (order)
/// times the precision.
/// \par Method
/// The standard operation ztrsm (J. J. Dongarra et al., ACM Trans. Math. Softw. 16 (1990) 1-17), in row-major order,
/// from the BLAS library that is linked.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex zero = {0.0, 0.0}, one = {1.0, 0.0}, two = {2.0, 0.0};
/// Complex a[] = {{2.0, 0.0}, {1.0, 1.0}, {-9.0, -9.0}, {4.0, 0.0}}, b[] = {{1.0, 0.0}, {0.0, 0.0}, {2.0, 0.0},
///        {0.0, 1.0}};
/// f06zjc(LeftSide, UpperTriangle, NoTranspose, NotUnitTriangular, 2, 2, one, a, 2, b, 2);
/// // b = {(0.25, -0.25), (0.125, -0.125), (0.5, 0), (0, 0.25)}
/// \endcode
void f06zjc(Integer side, Integer uplo, Integer transa, Integer diag, Integer m, Integer n, Complex alpha,
            const Complex a[], Integer tda, Complex b[], Integer tdb);

/// \brief Update of rank k of a complex Hermitian matrix.
///
/// Forms \f$C := \alpha A A^H + \beta C\f$ or \f$C := \alpha A^H A + \beta C\f$, C being Hermitian of order n. Only the
/// stored triangle is changed. The imaginary parts of the diagonal of C are taken as 0, and are 0 on return unless
/// nothing is to be done (alpha or k 0, beta 1). Nothing happens if n is 0, or if alpha or k is 0 and beta 1.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle is stored; the other is not touched
/// \param[in]     trans NoTranspose: A is n by k, the first form; ConjugateTranspose: A is k by n, the second
/// \param[in]     n     order of C, not negative
/// \param[in]     k     inner dimension, not negative; with 0 the product is 0
/// \param[in]     alpha the factor of the product, real; with 0 A is not read
/// \param[in]     a     the matrix A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda   length of a row of the array: at least max(1, k), if transposed max(1, n)
/// \param[in]     beta  the factor of C; with 0 C need not be set, and a NaN in it does not matter; real
/// \param[in,out] c     the stored triangle of C, row by row: element (i, j) at `c[i * tdc + j]`, from 0
/// \param[in]     tdc   length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `trans`: not NoTranspose or ConjugateTranspose.
/// - 3, `n`: negative.
/// - 4, `k`: negative.
/// - 7, `tda`: less than the length of its row.
/// - 10, `tdc`: less than max(1, n).
/// \par Accuracy
/// The error of an element is at most about (inner dimension) times the precision times the same product formed of the
/// moduli.
/// \par Method
/// The standard operation zherk (J. J. Dongarra et al., ACM Trans. Math. Softw. 16 (1990) 1-17), in row-major order,
/// from the BLAS library that is linked.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex a[] = {{1.0, 1.0}, {2.0, 0.0}, {3.0, 0.0}, {4.0, -1.0}}, c[4] = {{0.0, 0.0}};
/// f06zpc(UpperTriangle, NoTranspose, 2, 2, 1.0, a, 2, 0.0, c, 2);
/// // c = {(6, 0), (11, 5), (0, 0), (26, 0)}
/// \endcode
void f06zpc(Integer uplo, Integer trans, Integer n, Integer k, double alpha, const Complex a[], Integer tda,
            double beta, Complex c[], Integer tdc);

/// \brief Update of rank 2k of a complex Hermitian matrix.
///
/// Forms \f$C := \alpha A B^H + \bar\alpha B A^H + \beta C\f$ or \f$C := \alpha A^H B + \bar\alpha B^H A + \beta C\f$,
/// C being Hermitian of order n. Only the stored triangle is changed. The imaginary parts of the diagonal of C are
/// taken as 0, and are 0 on return unless nothing is to be done (alpha or k 0, beta 1). Nothing happens if n is 0, or
/// if alpha or k is 0 and beta 1.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle is stored; the other is not touched
/// \param[in]     trans NoTranspose: A is n by k, the first form; ConjugateTranspose: A is k by n, the second
/// \param[in]     n     order of C, not negative
/// \param[in]     k     inner dimension, not negative; with 0 the product is 0
/// \param[in]     alpha the factor of the product; with 0 A and B are not read
/// \param[in]     a     the matrix A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda   length of a row of the array: at least max(1, k), if transposed max(1, n)
/// \param[in]     b     the matrix B, of the shape of A, row by row: element (i, j) at `b[i * tdb + j]`, from 0
/// \param[in]     tdb   length of a row of the array: at least max(1, k), if transposed max(1, n)
/// \param[in]     beta  the factor of C; with 0 C need not be set, and a NaN in it does not matter; real
/// \param[in,out] c     the stored triangle of C, row by row: element (i, j) at `c[i * tdc + j]`, from 0
/// \param[in]     tdc   length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `trans`: not NoTranspose or ConjugateTranspose.
/// - 3, `n`: negative.
/// - 4, `k`: negative.
/// - 7, `tda`: less than the length of its row.
/// - 9, `tdb`: less than the length of its row.
/// - 12, `tdc`: less than max(1, n).
/// \par Accuracy
/// The error of an element is at most about (inner dimension) times the precision times the same product formed of the
/// moduli.
/// \par Method
/// The standard operation zher2k (J. J. Dongarra et al., ACM Trans. Math. Softw. 16 (1990) 1-17), in row-major order,
/// from the BLAS library that is linked.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex zero = {0.0, 0.0}, one = {1.0, 0.0}, two = {2.0, 0.0};
/// Complex a[] = {{1.0, 1.0}, {2.0, 0.0}, {3.0, 0.0}, {4.0, -1.0}}, b[] = {{1.0, 0.0}, {0.0, 0.0}, {2.0, 0.0},
///        {0.0, 1.0}}, c[4] = {{0.0, 0.0}};
/// f06zrc(UpperTriangle, NoTranspose, 2, 2, one, a, 2, b, 2, 0.0, c, 2);
/// // c = {(2, 0), (5, 0), (0, 0), (10, 0)}
/// \endcode
void f06zrc(Integer uplo, Integer trans, Integer n, Integer k, Complex alpha, const Complex a[], Integer tda,
            const Complex b[], Integer tdb, double beta, Complex c[], Integer tdc);

/// \brief Product of a complex symmetric and a general matrix.
///
/// Forms \f$C := \alpha A B + \beta C\f$ or \f$C := \alpha B A + \beta C\f$, A being symmetric, one triangle of it
/// stored, B and C m by n. Nothing happens if m or n is 0, or if alpha is 0 and beta 1.
///
/// \param[in]     side  LeftSide: A stands on the left of B; RightSide: on its right
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle is stored; the other is not touched
/// \param[in]     m     rows of B and C, not negative
/// \param[in]     n     columns of B and C, not negative
/// \param[in]     alpha the factor of the product; with 0 neither A nor B is read
/// \param[in]     a     the stored triangle of A, of order m on the left, n on the right, row by row: element (i, j) at
///                      `a[i * tda + j]`, from 0
/// \param[in]     tda   length of a row of the array: at least max(1, order of A)
/// \param[in]     b     the matrix B, row by row: element (i, j) at `b[i * tdb + j]`, from 0
/// \param[in]     tdb   length of a row of the array: at least max(1, n)
/// \param[in]     beta  the factor of C; with 0 C need not be set, and a NaN in it does not matter
/// \param[in,out] c     the matrix C, row by row: element (i, j) at `c[i * tdc + j]`, from 0
/// \param[in]     tdc   length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `side`: not LeftSide or RightSide.
/// - 2, `uplo`: not UpperTriangle or LowerTriangle.
/// - 3, `m`: negative.
/// - 4, `n`: negative.
/// - 7, `tda`: less than max(1, order of A).
/// - 9, `tdb`: less than max(1, n).
/// - 12, `tdc`: less than max(1, n).
/// \par Accuracy
/// The error of an element is at most about (inner dimension) times the precision times the same product formed of the
/// moduli.
/// \par Method
/// The standard operation zsymm (J. J. Dongarra et al., ACM Trans. Math. Softw. 16 (1990) 1-17), in row-major order,
/// from the BLAS library that is linked.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex zero = {0.0, 0.0}, one = {1.0, 0.0}, two = {2.0, 0.0};
/// Complex a[] = {{2.0, 0.0}, {1.0, 1.0}, {-9.0, -9.0}, {3.0, 0.0}}, b[] = {{1.0, 0.0}, {0.0, 0.0}, {2.0, 0.0},
///        {0.0, 1.0}}, c[4] = {{0.0, 0.0}};
/// f06ztc(LeftSide, UpperTriangle, 2, 2, one, a, 2, b, 2, zero, c, 2);
/// // c = {(4, 2), (-1, 1), (7, 1), (0, 3)}
/// \endcode
void f06ztc(Integer side, Integer uplo, Integer m, Integer n, Complex alpha, const Complex a[], Integer tda,
            const Complex b[], Integer tdb, Complex beta, Complex c[], Integer tdc);

/// \brief Update of rank k of a complex symmetric matrix.
///
/// Forms \f$C := \alpha A A' + \beta C\f$ or \f$C := \alpha A' A + \beta C\f$, C being symmetric of order n. Only the
/// stored triangle is changed. Nothing happens if n is 0, or if alpha or k is 0 and beta 1.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle is stored; the other is not touched
/// \param[in]     trans NoTranspose: A is n by k, the first form; Transpose: A is k by n, the second
/// \param[in]     n     order of C, not negative
/// \param[in]     k     inner dimension, not negative; with 0 the product is 0
/// \param[in]     alpha the factor of the product; with 0 A is not read
/// \param[in]     a     the matrix A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda   length of a row of the array: at least max(1, k), if transposed max(1, n)
/// \param[in]     beta  the factor of C; with 0 C need not be set, and a NaN in it does not matter
/// \param[in,out] c     the stored triangle of C, row by row: element (i, j) at `c[i * tdc + j]`, from 0
/// \param[in]     tdc   length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `trans`: not NoTranspose or Transpose.
/// - 3, `n`: negative.
/// - 4, `k`: negative.
/// - 7, `tda`: less than the length of its row.
/// - 10, `tdc`: less than max(1, n).
/// \par Accuracy
/// The error of an element is at most about (inner dimension) times the precision times the same product formed of the
/// moduli.
/// \par Method
/// The standard operation zsyrk (J. J. Dongarra et al., ACM Trans. Math. Softw. 16 (1990) 1-17), in row-major order,
/// from the BLAS library that is linked.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex zero = {0.0, 0.0}, one = {1.0, 0.0}, two = {2.0, 0.0};
/// Complex a[] = {{1.0, 1.0}, {2.0, 0.0}, {3.0, 0.0}, {4.0, -1.0}}, c[4] = {{0.0, 0.0}};
/// f06zuc(UpperTriangle, NoTranspose, 2, 2, one, a, 2, zero, c, 2);
/// // c = {(4, 2), (11, 1), (0, 0), (24, -8)}
/// \endcode
void f06zuc(Integer uplo, Integer trans, Integer n, Integer k, Complex alpha, const Complex a[], Integer tda,
            Complex beta, Complex c[], Integer tdc);

/// \brief Update of rank 2k of a complex symmetric matrix.
///
/// Forms \f$C := \alpha A B' + \alpha B A' + \beta C\f$ or \f$C := \alpha A' B + \alpha B' A + \beta C\f$, C being
/// symmetric of order n. Only the stored triangle is changed. Nothing happens if n is 0, or if alpha or k is 0 and beta
/// 1.
///
/// \param[in]     uplo  UpperTriangle or LowerTriangle: which triangle is stored; the other is not touched
/// \param[in]     trans NoTranspose: A is n by k, the first form; Transpose: A is k by n, the second
/// \param[in]     n     order of C, not negative
/// \param[in]     k     inner dimension, not negative; with 0 the product is 0
/// \param[in]     alpha the factor of the product; with 0 A and B are not read
/// \param[in]     a     the matrix A, row by row: element (i, j) at `a[i * tda + j]`, from 0
/// \param[in]     tda   length of a row of the array: at least max(1, k), if transposed max(1, n)
/// \param[in]     b     the matrix B, of the shape of A, row by row: element (i, j) at `b[i * tdb + j]`, from 0
/// \param[in]     tdb   length of a row of the array: at least max(1, k), if transposed max(1, n)
/// \param[in]     beta  the factor of C; with 0 C need not be set, and a NaN in it does not matter
/// \param[in,out] c     the stored triangle of C, row by row: element (i, j) at `c[i * tdc + j]`, from 0
/// \param[in]     tdc   length of a row of the array: at least max(1, n)
///
/// \par Errors
/// There is no error record. An illegal argument is told on the standard error stream, as NE_F06_BAD_PARAM with its
/// number in the list, and the routine returns with every array and number as it was:
/// - 1, `uplo`: not UpperTriangle or LowerTriangle.
/// - 2, `trans`: not NoTranspose or Transpose.
/// - 3, `n`: negative.
/// - 4, `k`: negative.
/// - 7, `tda`: less than the length of its row.
/// - 9, `tdb`: less than the length of its row.
/// - 12, `tdc`: less than max(1, n).
/// \par Accuracy
/// The error of an element is at most about (inner dimension) times the precision times the same product formed of the
/// moduli.
/// \par Method
/// The standard operation zsyr2k (J. J. Dongarra et al., ACM Trans. Math. Softw. 16 (1990) 1-17), in row-major order,
/// from the BLAS library that is linked.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex zero = {0.0, 0.0}, one = {1.0, 0.0}, two = {2.0, 0.0};
/// Complex a[] = {{1.0, 1.0}, {2.0, 0.0}, {3.0, 0.0}, {4.0, -1.0}}, b[] = {{1.0, 0.0}, {0.0, 0.0}, {2.0, 0.0},
///        {0.0, 1.0}}, c[4] = {{0.0, 0.0}};
/// f06zwc(UpperTriangle, NoTranspose, 2, 2, one, a, 2, b, 2, zero, c, 2);
/// // c = {(2, 2), (5, 4), (0, 0), (14, 8)}
/// \endcode
void f06zwc(Integer uplo, Integer trans, Integer n, Integer k, Complex alpha, const Complex a[], Integer tda,
            const Complex b[], Integer tdb, Complex beta, Complex c[], Integer tdc);

KOR_END_DECLS

#endif
