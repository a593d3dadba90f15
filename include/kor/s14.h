/// \file s14.h
/// Chapter s14: gamma function and relatives.
#ifndef KOR_S14_H
#define KOR_S14_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief The gamma function.
///
/// \param[in] x    from -170 to 170, not too close to 0 and no negative integer
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return gamma(x); after errors see there
///
/// \par Errors
/// - NE_REAL_ARG_LT: `x` is less than -170; the result is 0.
/// - NE_REAL_ARG_GT: `x` is greater than 170; the result is 4.3e304.
/// - NE_REAL_ARG_TOO_SMALL: |x| is less than 2.23e-308; the result is 4.48e307 with the sign of x.
/// - NE_REAL_ARG_NEG_INT: `x` is a negative integer; the result is 4.3e304.
/// \par Accuracy
/// At most 1 ulp, over the whole range.
/// \par Method
/// Piecewise polynomials and products in two doubles; reflection for negative x.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s14aac(0.5, &fail);   // 1.772453850905516
/// \endcode
double s14aac(double x, KorError *fail);

/// \brief The logarithm of the gamma function.
///
/// \param[in] x    greater than 0, at most 2.55e305
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return ln gamma(x); 0 after NE_REAL_ARG_LE, 1.79e308 after NE_REAL_ARG_GT
///
/// \par Errors
/// - NE_REAL_ARG_LE: `x` is not greater than 0.
/// - NE_REAL_ARG_GT: `x` is greater than 2.55e305.
/// \par Accuracy
/// At most 1 ulp, over the whole range. Near the zeros at 1 and 2 as well.
/// \par Method
/// Expansions about the zeros; Stirling's series in two doubles.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s14abc(10.0, &fail);   // 12.801827480081469
/// \endcode
double s14abc(double x, KorError *fail);

/// \brief Derivatives of ln gamma: digamma and polygamma functions of a real argument.
///
/// The function of order k is the (k+1)-th derivative of ln gamma(x): k = 0 is psi, k = 1 is psi'.
///
/// \param[in] x    the argument, not too close to 0 or to a negative integer
/// \param[in] k    the order, 0 to 6
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return the value; 0 after an error
///
/// \par Errors
/// - NE_INT: `k` is not in 0 to 6.
/// - NE_REAL: `x` is too close to a pole.
/// - NE_UNDERFLOW_LIKELY, NE_OVERFLOW_LIKELY: the value is no double.
///
/// `fail->errnum` holds the kernel's status.
/// \par Accuracy
/// At most 1 ulp for k = 0, about 2 ulp for the others.
/// \par Method
/// Recurrence upwards, then the asymptotic series; reflection for negative x.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s14aec(1.0, 0, &fail);   // -0.5772156649015329
/// \endcode
double s14aec(double x, Integer k, KorError *fail);

/// \brief Derivatives of ln gamma: digamma and polygamma functions of a complex argument.
///
/// The function of order k is the (k+1)-th derivative of ln gamma(z).
///
/// \param[in] z    the argument, not too close to a pole
/// \param[in] k    the order, 0 to 4
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return the value; 0 after an error
///
/// \par Errors
/// - NE_INT: `k` is not in 0 to 4.
/// - NE_COMPLEX: `z` is real and too close to 0 or to a negative integer.
/// - NE_OVERFLOW_LIKELY: the value is no double.
///
/// `fail->errnum` holds the kernel's status.
/// \par Accuracy
/// A few units of 2^-53 of the modulus.
/// \par Method
/// As s14aec().
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// const Complex z = {1.0, 1.0};
/// Complex y = s14afc(z, 0, &fail);   // (0.0946503206, 1.0766740474)
/// \endcode
Complex s14afc(Complex z, Integer k, KorError *fail);

/// \brief The incomplete gamma functions P and Q.
///
/// P(a, x) = 1/gamma(a) times the integral of t^(a-1) exp(-t) from 0 to x, and Q = 1 - P. Each is computed as such, so that small
/// values of either are accurate.
///
/// \param[in] a    the parameter, greater than 0
/// \param[in] x    the argument, at least 0
/// \param[in] tol  relative accuracy wanted; values below the machine precision, and above 1, ask for full accuracy
/// \param[out] p    P(a, x)
/// \param[out] q    Q(a, x)
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_REAL_ARG_LE: `a` is not greater than 0; the outputs are untouched.
/// - NE_REAL_ARG_LT: `x` is less than 0; the outputs are untouched.
/// - NE_ALG_NOT_CONV: the series did not converge in 600 steps; the outputs hold what it had reached.
/// \par Accuracy
/// About 1e-15 relative for both, down to their underflow.
/// \par Method
/// Series, continued fraction, and for large a Temme's uniform expansion (N. M. Temme, SIAM J. Math. Anal. 10 (1979) 757-766).
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double p, q;
/// s14bac(2.0, 3.0, 0.0, &p, &q, &fail);   // 0.8008517265, 0.1991482735
/// \endcode
void s14bac(double a, double x, double tol, double *p, double *q, KorError *fail);

KOR_END_DECLS

#endif
