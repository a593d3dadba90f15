/// \file s21.h
/// Chapter s21: elliptic integrals and functions.
#ifndef KOR_S21_H
#define KOR_S21_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief Carlson's degenerate elliptic integral RC.
///
/// RC(x, y) = 1/2 times the integral of 1/(sqrt(t + x) (t + y)) from 0 to infinity; for y < 0 the principal value.
///
/// \param[in] x    at least 0
/// \param[in] y    not 0
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return RC; 0 after an error
///
/// \par Errors
/// - NE_REAL_ARG_LT: `x` is negative, or x + |y| is too small.
/// - NE_REAL_ARG_EQ: `y` is 0.
/// - NE_REAL_ARG_GT: `x` or |y| is too large.
///
/// The limits are 5 times the smallest normal and a fifth of the largest double.
/// \par Accuracy
/// At most 2 ulp.
/// \par Method
/// Carlson's duplication theorem and a series (B. C. Carlson, Numer. Math. 33 (1979) 1-16).
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s21bac(0.0, 0.25, &fail);   // pi
/// \endcode
double s21bac(double x, double y, KorError *fail);

/// \brief Carlson's elliptic integral of the first kind, RF.
///
/// RF(x, y, z) = 1/2 times the integral of 1/sqrt((t + x)(t + y)(t + z)) from 0 to infinity.
///
/// \param[in] x    at least 0
/// \param[in] y    at least 0
/// \param[in] z    at least 0; at most one of the three is 0
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return RF; 0 after an error
///
/// \par Errors
/// - NE_REAL_ARG_LT: an argument, or the sum of two, is too small.
/// - NE_REAL_ARG_EQ: two of the arguments are 0.
/// - NE_REAL_ARG_GT: an argument is too large.
/// \par Accuracy
/// At most 2 ulp.
/// \par Method
/// Carlson's duplication theorem and a series (B. C. Carlson, Numer. Math. 33 (1979) 1-16).
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s21bbc(0.0, 0.5, 1.0, &fail);   // 1.8540746773, the complete integral K(1/2)
/// \endcode
double s21bbc(double x, double y, double z, KorError *fail);

/// \brief Carlson's elliptic integral of the second kind, RD.
///
/// RD(x, y, z) = 3/2 times the integral of 1/(sqrt((t + x)(t + y)) (t + z)^(3/2)) from 0 to infinity.
///
/// \param[in] x    at least 0
/// \param[in] y    at least 0; not both x and y are 0
/// \param[in] z    greater than 0
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return RD; 0 after an error
///
/// \par Errors
/// - NE_REAL_ARG_LT: an argument, or the sum of two, is too small.
/// - NE_REAL_ARG_EQ: two of the arguments are 0.
/// - NE_REAL_ARG_GT: an argument is too large.
/// - NE_REAL_ARG_LE: `z` is not greater than 0.
/// \par Accuracy
/// At most 2 ulp.
/// \par Method
/// Carlson's duplication theorem and a series (B. C. Carlson, Numer. Math. 33 (1979) 1-16).
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s21bcc(0.0, 2.0, 1.0, &fail);   // 1.7972103521
/// \endcode
double s21bcc(double x, double y, double z, KorError *fail);

/// \brief Carlson's elliptic integral of the third kind, RJ.
///
/// RJ(x, y, z, r) = 3/2 times the integral of 1/(sqrt((t + x)(t + y)(t + z)) (t + r)) from 0 to infinity; for r < 0 the principal value.
///
/// \param[in] x    at least 0
/// \param[in] y    at least 0
/// \param[in] z    at least 0; at most one of the three is 0
/// \param[in] r    not 0
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return RJ; 0 after an error
///
/// \par Errors
/// - NE_REAL_ARG_LT: an argument, or the sum of two, is too small.
/// - NE_REAL_ARG_EQ: two of the arguments are 0.
/// - NE_REAL_ARG_GT: an argument is too large.
///
/// `r` = 0 gives NE_REAL_ARG_EQ as well.
/// \par Accuracy
/// At most 2 ulp. Less where the principal value is near one of its zeros.
/// \par Method
/// Carlson's duplication theorem and a series (B. C. Carlson, Numer. Math. 33 (1979) 1-16).
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s21bdc(0.0, 1.0, 2.0, 3.0, &fail);   // 0.7768862377
/// \endcode
double s21bdc(double x, double y, double z, double r, KorError *fail);

/// \brief Jacobi's elliptic functions sn, cn, dn of a complex argument.
///
/// \param[in] z    the argument; both parts at most 1/sqrt(x02amc()) in modulus
/// \param[in] ak2  the parameter k^2, 0 to 1
/// \param[out] sn   sn(z | k^2)
/// \param[out] cn   cn(z | k^2)
/// \param[out] dn   dn(z | k^2)
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_COMPLEX: a part of `z` is too large.
/// - NE_REAL: `ak2` is not in 0 to 1.
///
/// The outputs are then untouched.
/// \par Accuracy
/// A few units of 2^-53 of the largest of the three moduli, away from the poles.
/// \par Method
/// The arithmetic-geometric mean, and addition theorems for the imaginary part.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex sn, cn, dn;
/// const Complex z = {0.5, 0.25};
/// s21cbc(z, 0.3, &sn, &cn, &dn, &fail);
/// \endcode
void s21cbc(Complex z, double ak2, Complex *sn, Complex *cn, Complex *dn, KorError *fail);

/// \brief Jacobi's theta functions, of period 1 or 2.
///
/// theta_k(x, q) for k = 0 to 4, in the form whose terms are q^(n^2) cos(2 n pi x) and their like; theta_0 is theta_4.
///
/// \param[in] k    which function, 0 to 4
/// \param[in] x    the argument
/// \param[in] q    the nome, 0 to 1
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return theta_k(x, q); after NE_INFINITE the largest double, 0 after other errors
///
/// \par Errors
/// - NE_INT: `k` is not in 0 to 4.
/// - NE_REAL: `q` is not in 0 to 1; or q = 1, and x - 0.5 is an integer with k = 1, or x with k = 2.
/// - NE_INFINITE: q = 1, and the value is infinite.
/// \par Accuracy
/// A few ulp; relative to the largest value where the function has zeros.
/// \par Method
/// The Fourier series, or after Jacobi's transformation the series of Gaussians: whichever converges faster.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s21ccc(3, 0.3, 0.2, &fail);
/// \endcode
double s21ccc(Integer k, double x, double q, KorError *fail);

/// \brief The elliptic integral of the second kind of a complex argument.
///
/// The integral of (1 + akp^2 t^2)/sqrt((1 + t^2)^3 (1 + akp^2 t^2)), or (1 + akp^2 t^2)^(1/2) (1 + t^2)^(-3/2), from 0 to z.
///
/// \param[in] z    the upper limit, in the right half plane; both parts at most (1/x02amc())^(1/6)
/// \param[in] akp  the complementary modulus, at most (1/x02amc())^(1/6) in modulus
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return the integral; 0 after an error
///
/// \par Errors
/// - NE_COMPLEX: `z` lies in the left half plane, or a part of it is too large.
/// - NE_REAL: `akp` is too large.
/// - NE_S21_CONV: the iteration failed.
/// \par Accuracy
/// A few units of 2^-53 of the modulus, away from the branch points.
/// \par Method
/// Carlson's duplication theorem and a series (B. C. Carlson, Numer. Math. 33 (1979) 1-16).
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// const Complex z = {1.0, 0.5};
/// Complex y = s21dac(z, 0.7, &fail);
/// \endcode
Complex s21dac(Complex z, double akp, KorError *fail);

KOR_END_DECLS

#endif
