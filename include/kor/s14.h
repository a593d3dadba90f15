/// \file s14.h
/// Chapter s14: gamma function and relatives.
#ifndef KOR_S14_H
#define KOR_S14_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief The gamma function.
///
/// Gamma(x) is the integral of t^(x-1) exp(-t) over t >= 0 for x > 0, and goes on to x < 0 by Gamma(x + 1) = x
/// Gamma(x); poles at 0, -1, -2, ...
///
/// \param[in]     x    the argument, |x| <= 170, not zero nor a negative integer
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return Gamma(x); a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_LT: `x` is less than -170; the result is 0.
/// - NE_REAL_ARG_GT: `x` is greater than 170; the result is 4.3e304.
/// - NE_REAL_ARG_TOO_SMALL: |x| is less than 2.23e-308; the result is 4.4843049327354256e307 with the sign of `x`,
///   positive for 0.
/// - NE_REAL_ARG_NEG_INT: `x` is a negative integer; the result is 4.3e304.
///
/// \par Accuracy
/// Within 0.91 ulp.
/// \par Method
/// Polynomials on pieces of [1/2, 12); beyond, Stirling's formula with logarithm and exponential in two doubles;
/// Gamma(1 + x) / x next to 0, and reflection for x < -1/2.
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s14abc() for its logarithm, which does not overflow.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s14aac(1.25, &fail);   // 0.906402477055477
/// \endcode
double s14aac(double x, KorError *fail);

/// \brief The logarithm of the gamma function.
///
/// ln Gamma(x) for x > 0.
///
/// \param[in]     x    the argument, 0 < x <= 2.55e305
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return ln Gamma(x); a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_LE: `x` is not greater than 0; the result is 0.
/// - NE_REAL_ARG_GT: `x` is greater than 2.55e305; the result is 1.79e308.
///
/// \par Accuracy
/// Within 0.91 ulp, next to the zeros at 1 and 2 too.
/// \par Method
/// Below 3 a polynomial times the two zeros, which are exact factors; up to 16 polynomials on pieces; beyond,
/// Stirling's formula in numbers of two doubles.
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s14abc(100.0, &fail);   // 359.134205369575
/// \endcode
double s14abc(double x, KorError *fail);

/// \brief Derivatives of ln Gamma(x): digamma, trigamma and the next ones.
///
/// psi^(k)(x), the (k+1)-st derivative of ln Gamma(x): k = 0 is the digamma function psi(x) = Gamma'(x) / Gamma(x).
/// Poles at 0, -1, -2, ...
///
/// \param[in]     x    the argument, not zero nor a negative integer
/// \param[in]     k    which derivative of digamma, 0 <= k <= 6
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return psi^(k)(x); 0 after an error; a NaN for a NaN, without any report.
/// \par Errors
/// - NE_INT: `k` is out of range.
/// - NE_REAL: `x` is zero or a negative integer. (All doubles of modulus 2^52 or more are integers.)
/// - NE_UNDERFLOW_LIKELY: `x` is so large that the value, about (k-1)! / x^k, is below the smallest normal number.
/// - NE_OVERFLOW_LIKELY: |x| is so small that the value, about k! / x^(k+1), overflows.
///
/// \par Accuracy
/// k = 0: 0.6 ulp for x > 0, next to the zero at 1.4616 too. k > 0: 2 ulp for x > 0. For x < 0 within 2 ulp of the
/// greater of the value and its size between the zeros.
/// \par Method
/// Digamma, with its zero as a factor, and trigamma have polynomials on pieces of [1/2, 64), and the asymptotic series
/// beyond; for the others the recurrence raises the argument to 16, where it begins. Reflection for x < 0. D. E. Amos,
/// ACM Trans. Math. Softw. 9 (1983) 494-502.
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s14afc() for complex argument.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s14aec(0.5, 1, &fail);   // 4.93480220054468 = pi^2 / 2
/// \endcode
double s14aec(double x, Integer k, KorError *fail);

/// \brief Derivatives of ln Gamma(z) for complex z: digamma, trigamma and the next ones.
///
/// psi^(k)(z), the (k+1)-st derivative of ln Gamma(z). Poles at 0, -1, -2, ...
///
/// \param[in]     z    the argument, not zero nor a negative integer
/// \param[in]     k    which derivative of digamma, 0 <= k <= 4
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return psi^(k)(z); 0 after an error; NaNs for a NaN, without any report.
/// \par Errors
/// - NE_INT: `k` is out of range.
/// - NE_COMPLEX: `z` is zero or a negative integer.
/// - NE_OVERFLOW_LIKELY: |z| is so small that the value, about k! / z^(k+1), overflows.
///
/// \par Accuracy
/// A few eps relative to |psi^(k)(z)| (measured: 5 for k <= 2, 10 for k = 4) away from its zeros. On the real axis
/// that of s14aec().
/// \par Method
/// As s14aec(), the argument being raised to modulus 20.
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s14aec() for real argument.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// Complex z = {1.0, 1.0};
/// Complex y = s14afc(z, 0, &fail);   // 0.0946503206224770 + 1.07667404746858 i
/// \endcode
Complex s14afc(Complex z, Integer k, KorError *fail);

/// \brief The incomplete gamma functions P and Q.
///
/// P(a, x) = 1/Gamma(a) times the integral of t^(a-1) exp(-t) over t from 0 to x, and Q(a, x) = 1 - P(a, x), the same
/// from x to infinity. P is the distribution function of a gamma variate of shape a; Q(k, x) is the probability of
/// fewer than k events where x are expected.
///
/// \param[in]     a    the shape, a > 0
/// \param[in]     x    the end of the integral, x >= 0
/// \param[in]     tol  relative accuracy at which series and continued fractions may stop; a value below machine
///                     precision or above 1 stands for machine precision
/// \param[out]    p    P(a, x); untouched after NE_REAL_ARG_LE and NE_REAL_ARG_LT
/// \param[out]    q    Q(a, x), likewise; where it is small it is not 1 - P but accurate by itself
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_REAL_ARG_LE: `a` is not greater than 0.
/// - NE_REAL_ARG_LT: `x` is less than 0.
/// - NE_ALG_NOT_CONV: `tol` has not been reached in 600 terms; `p` and `q` hold what has been reached.
///
/// \par Accuracy
/// With tol = 0 a few ulp of both results, in the tails down to 1e-300 and for a up to 1e8 (measured: 5 ulp for a >=
/// 16, 2 from 1000 on, 8 for a >= 1, 16 for small a and x next to 1).
/// \par Method
/// Power series for x < a, Legendre's continued fraction beyond, Temme's uniform expansion for a >= 16 unless x is
/// far from a; the common factor x^a exp(-x) / Gamma(a) in numbers of two doubles. W. Gautschi, ACM Trans. Math.
/// Softw. 5 (1979) 466-481; N. M. Temme, SIAM J. Math. Anal. 10 (1979) 757-766.
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double p, q;
/// s14bac(2.0, 3.0, 0.0, &p, &q, &fail);   // p = 0.800851726528544, q = 0.199148273471456
/// \endcode
void s14bac(double a, double x, double tol, double *p, double *q, KorError *fail);

KOR_END_DECLS

#endif
