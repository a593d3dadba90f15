/// \file s17.h
/// Chapter s17: Bessel functions J and Y of orders 0 and 1, Airy functions and their derivatives, zeros of Bessel
/// functions.
#ifndef KOR_S17_H
#define KOR_S17_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief The Bessel function Y0(x), of the second kind and order 0.
///
/// The solution of x^2 y'' + x y' + x^2 y = 0 that behaves like (2/pi) ln x at 0.
///
/// \param[in]     x    the argument, 0 < x <= 1e16
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return Y0(x); a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_LE: `x` is not greater than 0; the result is 0.
/// - NE_REAL_ARG_GT: `x` is greater than 1e16, where the phase is lost; the result is the amplitude sqrt(2 / (pi x)).
///
/// \par Accuracy
/// Within 1 ulp for x < 66, next to the zeros there too (the first 20 of them, and one or two more); beyond, within 1
/// ulp of the amplitude.
/// \par Method
/// Below 1/4 the power series with its logarithm; up to 66 polynomials on pieces, those at zeros being centred there;
/// beyond, modulus and phase (Watson, A Treatise on the Theory of Bessel Functions, 1944, 13.75), the phase in numbers
/// of two doubles.
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s17aec() for J0, s17adc() for Y1, s17alc() for zeros.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s17acc(0.5, &fail);   // -0.444518733506707
/// \endcode
double s17acc(double x, KorError *fail);

/// \brief The Bessel function Y1(x), of the second kind and order 1.
///
/// The solution of x^2 y'' + x y' + (x^2 - 1) y = 0 that behaves like -2 / (pi x) at 0; the derivative of -Y0.
///
/// \param[in]     x    the argument, 2.23e-308 <= x <= 1e16
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return Y1(x); a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_LE: `x` is not greater than 0; the result is 0.
/// - NE_REAL_ARG_GT: `x` is greater than 1e16, where the phase is lost; the result is the amplitude sqrt(2 / (pi x)).
/// - NE_REAL_ARG_TOO_SMALL: `x` is less than 2.23e-308, next to the pole; the result is -2 / (pi 2.23e-308).
///
/// \par Accuracy
/// As s17acc().
/// \par Method
/// As s17acc().
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s17adc(0.5, &fail);   // -1.47147239267024
/// \endcode
double s17adc(double x, KorError *fail);

/// \brief The Bessel function J0(x), of the first kind and order 0.
///
/// The solution of x^2 y'' + x y' + x^2 y = 0 with the value 1 at 0; an even function.
///
/// \param[in]     x    the argument, |x| <= 1e16
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return J0(x); a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_GT: |x| is greater than 1e16, where the phase is lost; the result is the amplitude sqrt(2 / (pi |x|)).
///
/// \par Accuracy
/// Within 1 ulp for |x| < 66, next to the zeros there too (the first 20 of them, and one or two more); beyond, within 1
/// ulp of the amplitude.
/// \par Method
/// Up to 66 polynomials on pieces, those at zeros being centred there; beyond, modulus and phase (Watson, A Treatise on
/// the Theory of Bessel Functions, 1944, 13.75), the phase in numbers of two doubles.
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s17afc() for J1, s18ekc() for sequences of other orders, s17alc() for zeros.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s17aec(0.5, &fail);   // 0.938469807240813
/// \endcode
double s17aec(double x, KorError *fail);

/// \brief The Bessel function J1(x), of the first kind and order 1.
///
/// The solution of x^2 y'' + x y' + (x^2 - 1) y = 0 that behaves like x/2 at 0; an odd function, the derivative of -J0.
///
/// \param[in]     x    the argument, |x| <= 1e16
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return J1(x); a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_GT: |x| is greater than 1e16, where the phase is lost; the result is the amplitude sqrt(2 / (pi |x|)),
///   whatever the sign of `x`.
///
/// \par Accuracy
/// As s17aec().
/// \par Method
/// As s17aec().
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s17afc(0.5, &fail);   // 0.242268457674874
/// \endcode
double s17afc(double x, KorError *fail);

/// \brief The Airy function Ai(x).
///
/// The solution of y'' = x y that decays for x > 0, like exp(-zeta) / (2 sqrt(pi) x^(1/4)) with zeta = 2/3 x^(3/2);
/// it oscillates for x < 0.
///
/// \param[in]     x    the argument, x >= -5.6e10; beyond about 108 the result underflows to 0
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return Ai(x); a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_GT: `x` is less than -5.6e10 (the message speaks of -x), where the phase is lost; the result is 0.
///
/// \par Accuracy
/// Within 1 ulp for x >= -20.6, next to the zeros there too (the first 20); for more negative arguments within 1 ulp of
/// the amplitude |x|^(-1/4) / sqrt(pi).
/// \par Method
/// On [-20.7, 8] polynomials on pieces, those at zeros being centred there; beyond, exponential or modulus and phase
/// times series in 1 / zeta (F. W. J. Olver, Asymptotics and Special Functions, 1974, chapter 11), zeta in numbers of
/// two doubles.
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s17agc(1.0, &fail);   // 0.135292416312881
/// \endcode
double s17agc(double x, KorError *fail);

/// \brief The Airy function Bi(x).
///
/// The solution of y'' = x y that grows for x > 0, like exp(zeta) / (sqrt(pi) x^(1/4)) with zeta = 2/3 x^(3/2), and
/// lags a quarter turn behind Ai for x < 0.
///
/// \param[in]     x    the argument, -5.6e10 <= x <= 104.1
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return Bi(x); a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_GT: `x` is less than -5.6e10 (the message speaks of -x), where the phase is lost: the result is 0; or
///   `x` is greater than 104.1, next to overflow: the result is Bi(104.1).
///
/// \par Accuracy
/// As s17agc().
/// \par Method
/// As s17agc().
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s17ahc(1.0, &fail);   // 1.20742359495287
/// \endcode
double s17ahc(double x, KorError *fail);

/// \brief The derivative Ai'(x) of the Airy function Ai.
///
/// \param[in]     x    the argument, x >= -1.8e9; beyond about 108 the result underflows to 0
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return Ai'(x); a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_GT: `x` is less than -1.8e9 (the message speaks of -x), where the phase is lost; the result is 0.
///
/// \par Accuracy
/// As s17agc(), the amplitude being |x|^(1/4) / sqrt(pi).
/// \par Method
/// As s17agc().
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s17ajc(1.0, &fail);   // -0.159147441296793
/// \endcode
double s17ajc(double x, KorError *fail);

/// \brief The derivative Bi'(x) of the Airy function Bi.
///
/// \param[in]     x    the argument, -1.8e9 <= x <= 104.1
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return Bi'(x); a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_GT: `x` is less than -1.8e9 (the message speaks of -x), where the phase is lost: the result is 0; or
///   `x` is greater than 104.1, next to overflow: the result is Bi'(104.1).
///
/// \par Accuracy
/// As s17ajc().
/// \par Method
/// As s17agc().
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s17akc(1.0, &fail);   // 0.932435933392776
/// \endcode
double s17akc(double x, KorError *fail);

/// \brief The first positive zeros of a Bessel function of real order, or of its derivative.
///
/// Zeros of J_a(x) (`mode` 1), Y_a(x) (2), J'_a(x) (3) or Y'_a(x) (4), in ascending order. The derivative of J0 counts
/// x = 0 as its first zero, as tables do.
///
/// \param[in]     a    the order of the Bessel function, 0 <= a <= 100000
/// \param[in]     n    how many zeros are wanted, at least 1
/// \param[in]     mode which function, 1 to 4
/// \param[in]     rel  relative accuracy wanted, greater than 0; full accuracy is given whatever its value
/// \param[out]    x    `n` elements: the zeros
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_REAL: `a` is less than 0, greater than 100000, or not a number; or `rel` is not greater than 0. `x` is not set.
/// - NE_INT: `n` is less than 1, or `mode` is not from 1 to 4. `x` is not set.
/// - NE_TERMINATION_FAILURE: a search did not end. Not known to happen; `x` may be set in part.
///
/// \par Accuracy
/// Within 0.51 ulp. The first zero of Y and Y' takes a time in proportion to the order, some milliseconds for the
/// largest; each further zero takes about a microsecond.
/// \par Method
/// Newton's method for the first, on quotients of neighbouring orders; from zero to zero the Taylor series of the
/// solution of Bessel's equation (A. Glaser, X. Liu, V. Rokhlin, SIAM J. Sci. Comput. 29 (2007) 1420-1438). In extended
/// precision.
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double x[3];
/// s17alc(0.0, 3, 1, 1e-15, x, &fail);   // 2.40482555769577, 5.52007811028631, 8.65372791291101
/// \endcode
void s17alc(double a, Integer n, Integer mode, double rel, double x[], KorError *fail);

KOR_END_DECLS

#endif
