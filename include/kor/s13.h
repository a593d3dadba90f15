/// \file s13.h
/// Chapter s13: exponential, cosine and sine integrals.
#ifndef KOR_S13_H
#define KOR_S13_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief The exponential integral E1(x).
///
/// The integral of exp(-t) / t over t from x to infinity.
///
/// \param[in]     x    the argument, x > 0
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return E1(x), 0 for x > 708.3; a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_LE: `x` is not greater than 0; the result is 0.
///
/// \par Accuracy
/// Within 0.8 ulp, 1 ulp where the result is subnormal (x > 701.8).
/// \par Method
/// Below 1/16, E1(x) + ln x as a polynomial; up to 1, E1(x) as polynomials on pieces; beyond, exp(x) E1(x) likewise;
/// exponential and logarithm with low parts.
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s13aac(2.0, &fail);   // 0.0489005107080611
/// \endcode
double s13aac(double x, KorError *fail);

/// \brief The cosine integral Ci(x).
///
/// Ci(x) = euler + ln x + the integral of (cos t - 1) / t over t from 0 to x, with Euler's constant 0.5772...
///
/// \param[in]     x    the argument, x > 0; any size
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return Ci(x); a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_LE: `x` is not greater than 0; the result is 0.
///
/// \par Accuracy
/// Within 1 ulp for x < 16, next to the zeros there too; beyond, within 1 ulp of the amplitude 1/x, and 1.5 ulp of it
/// beyond 1e16.
/// \par Method
/// Below 1/2 the logarithm and a polynomial; up to 16 the distance from the nearest zero times a polynomial on
/// pieces; beyond, f sin x - g cos x with the auxiliary functions f and g as polynomials in 1/x^2 (Abramowitz and
/// Stegun, Handbook of Mathematical Functions, 1964, 5.2), and sin x / x beyond 1e16.
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s13acc(2.0, &fail);   // 0.422980828774865
/// \endcode
double s13acc(double x, KorError *fail);

/// \brief The sine integral Si(x).
///
/// The integral of sin t / t over t from 0 to x; an odd function with the limit pi/2 at infinity.
///
/// \param[in] x the argument, any
///
/// \return Si(x); a NaN for a NaN.
/// \par Accuracy
/// Within 0.8 ulp.
/// \par Method
/// Up to 16 polynomials on pieces; beyond, pi/2 - f cos x - g sin x with the auxiliary functions of s13acc().
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// double y = s13adc(2.0);   // 1.60541297680269
/// \endcode
double s13adc(double x);

KOR_END_DECLS

#endif
