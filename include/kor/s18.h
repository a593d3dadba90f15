/// \file s18.h
/// Chapter s18: modified Bessel functions I and K of orders 0 and 1, of fractional orders, and sequences of orders.
#ifndef KOR_S18_H
#define KOR_S18_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief The modified Bessel function K0(x), of the second kind and order 0.
///
/// The solution of x^2 y'' + x y' - x^2 y = 0 that decays, like sqrt(pi / (2 x)) exp(-x), and behaves like -ln x at 0.
///
/// \param[in]     x    the argument, x > 0; beyond 705.1 the result is 0
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return K0(x); a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_LE: `x` is not greater than 0; the result is 0.
///
/// \par Accuracy
/// Within 1 ulp.
/// \par Method
/// Below 1/4 the power series with its logarithm; up to 16 polynomials on pieces; beyond, an exponential times a series
/// in 1/x.
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s18ccc() for exp(x) K0(x), which does not underflow.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s18acc(0.5, &fail);   // 0.924419071227666
/// \endcode
double s18acc(double x, KorError *fail);

/// \brief The modified Bessel function K1(x), of the second kind and order 1.
///
/// The solution of x^2 y'' + x y' - (x^2 + 1) y = 0 that decays, like sqrt(pi / (2 x)) exp(-x), and behaves like 1/x at 0;
/// the derivative of -K0.
///
/// \param[in]     x    the argument, x >= 2.23e-308; beyond 705.1 the result is 0
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return K1(x); a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_LE: `x` is not greater than 0; the result is 0.
/// - NE_REAL_ARG_TOO_SMALL: `x` is less than 2.23e-308, next to the pole; the result is 4.4843049327354256e307.
///
/// \par Accuracy
/// Within 1 ulp.
/// \par Method
/// As s18acc().
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s18cdc() for exp(x) K1(x), which does not underflow.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s18adc(0.5, &fail);   // 1.65644112000331
/// \endcode
double s18adc(double x, KorError *fail);

/// \brief The modified Bessel function I0(x), of the first kind and order 0.
///
/// The solution of x^2 y'' + x y' - x^2 y = 0 with the value 1 at 0; an even function that grows like
/// exp(x) / sqrt(2 pi x).
///
/// \param[in]     x    the argument, |x| <= 711.6
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return I0(x); a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_GT: |x| is greater than 711.6, next to overflow; the result is 1.7e307.
///
/// \par Accuracy
/// Within 1 ulp.
/// \par Method
/// Up to 16 polynomials on pieces; beyond, an exponential times a series in 1/x.
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s18cec() for exp(-|x|) I0(x), which does not overflow.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s18aec(0.5, &fail);   // 1.06348337074132
/// \endcode
double s18aec(double x, KorError *fail);

/// \brief The modified Bessel function I1(x), of the first kind and order 1.
///
/// The solution of x^2 y'' + x y' - (x^2 + 1) y = 0 that behaves like x/2 at 0; an odd function, the derivative of I0.
///
/// \param[in]     x    the argument, |x| <= 711.6
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return I1(x); a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_GT: |x| is greater than 711.6, next to overflow; the result is 1.7e307 with the sign of `x`.
///
/// \par Accuracy
/// Within 1 ulp.
/// \par Method
/// As s18aec().
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s18cfc() for exp(-|x|) I1(x), which does not overflow.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s18afc(0.5, &fail);   // 0.257894305390896
/// \endcode
double s18afc(double x, KorError *fail);

/// \brief The scaled modified Bessel function exp(x) K0(x).
///
/// \param[in]     x    the argument, x > 0
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return exp(x) K0(x), about sqrt(pi / (2 x)) for large `x`; a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_LE: `x` is not greater than 0; the result is 0.
///
/// \par Accuracy
/// Within 1 ulp.
/// \par Method
/// As s18acc(), without the exponential.
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s18ccc(1000.0, &fail);   // 0.0396283216007542
/// \endcode
double s18ccc(double x, KorError *fail);

/// \brief The scaled modified Bessel function exp(x) K1(x).
///
/// \param[in]     x    the argument, x >= 2.23e-308
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return exp(x) K1(x), about sqrt(pi / (2 x)) for large `x`; a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_LE: `x` is not greater than 0; the result is 0.
/// - NE_REAL_ARG_TOO_SMALL: `x` is less than 2.23e-308, next to the pole; the result is 4.4843049327354256e307.
///
/// \par Accuracy
/// Within 1 ulp.
/// \par Method
/// As s18acc(), without the exponential.
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s18cdc(1000.0, &fail);   // 0.0396481308129602
/// \endcode
double s18cdc(double x, KorError *fail);

/// \brief The scaled modified Bessel function exp(-|x|) I0(x).
///
/// \param[in]     x    the argument, of any size
/// \param[in,out] fail the error record; may be null
///
/// \return exp(-|x|) I0(x), about 1 / sqrt(2 pi |x|) for large |x|; a NaN for a NaN, without any report.
/// \par Errors
/// None.
/// \par Accuracy
/// Within 1 ulp.
/// \par Method
/// As s18aec(), without the exponential.
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s18cec(1000.0, &fail);   // 0.0126172404558913
/// \endcode
double s18cec(double x, KorError *fail);

/// \brief The scaled modified Bessel function exp(-|x|) I1(x).
///
/// \param[in]     x    the argument, of any size
/// \param[in,out] fail the error record; may be null
///
/// \return exp(-|x|) I1(x), with the sign of `x`; a NaN for a NaN, without any report.
/// \par Errors
/// None.
/// \par Accuracy
/// Within 1 ulp.
/// \par Method
/// As s18aec(), without the exponential.
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s18cfc(1000.0, &fail);   // 0.0126109302569286
/// \endcode
double s18cfc(double x, KorError *fail);

KOR_END_DECLS

#endif
