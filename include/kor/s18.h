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
/// The solution of x^2 y'' + x y' - (x^2 + 1) y = 0 that decays, like sqrt(pi / (2 x)) exp(-x), and behaves like 1/x at
/// 0; the derivative of -K0.
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

/// \brief The scaled modified Bessel function exp(-x) I of order nu/4.
///
/// exp(-x) I_(nu/4)(x); I_m(x) is the solution of x^2 y'' + x y' - (x^2 + m^2) y = 0 that behaves like (x/2)^m /
/// Gamma(m + 1) at 0.
///
/// \param[in]     x    the argument, x >= 0 for positive `nu`, x > 0 for negative
/// \param[in]     nu   four times the order: one of 1, 2, 3, -1, -2, -3
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return exp(-x) I_(nu/4)(x); a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_INT: `x` is not greater than 0 while `nu` is negative, or `x` is less than 0 while `nu` is positive.
/// - NE_INT: `nu` is not one of the six values.
///
/// The result is then 0.
/// \par Accuracy
/// Within 0.6 ulp (computed in extended precision and rounded once).
/// \par Method
/// Power series for x <= 3, Hankel's expansion for large x, between them recurrence downwards with the Wronskian (J. C.
/// P. Miller; F. W. J. Olver, D. J. Sookne, Math. Comp. 26 (1972) 941-947); negative orders by reflection.
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s18eec() without the factor, s18ejc() for other orders.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s18ecc(0.5, 1, &fail);   // 0.497158604401734
/// \endcode
double s18ecc(double x, Integer nu, KorError *fail);

/// \brief The modified Bessel function I of order nu/4.
///
/// I_(nu/4)(x), the solution of x^2 y'' + x y' - (x^2 + (nu/4)^2) y = 0 that behaves like (x/2)^(nu/4) / Gamma(1 +
/// nu/4) at 0.
///
/// \param[in]     x    the argument, x >= 0 for positive `nu`, x > 0 for negative
/// \param[in]     nu   four times the order: one of 1, 2, 3, -1, -2, -3
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return I_(nu/4)(x); a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_INT: `x` is not greater than 0 while `nu` is negative, or `x` is less than 0 while `nu` is positive.
/// - NE_INT: `nu` is not one of the six values.
/// - NE_OVERFLOW_LIKELY: `x` is so large, above 713, that the value overflows; the result is the largest number.
///
/// The result of the first two is 0.
/// \par Accuracy
/// Within 0.6 ulp (computed in extended precision and rounded once).
/// \par Method
/// Power series for x <= 3, Hankel's expansion for large x, between them recurrence downwards with the Wronskian (J. C.
/// P. Miller; F. W. J. Olver, D. J. Sookne, Math. Comp. 26 (1972) 941-947); negative orders by reflection.
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s18ecc(), which does not overflow.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s18eec(0.5, 1, &fail);   // 0.819675965988729
/// \endcode
double s18eec(double x, Integer nu, KorError *fail);

/// \brief The scaled modified Bessel function exp(x) K of order nu/4.
///
/// exp(x) K_(nu/4)(x); K_m(x) is the solution of x^2 y'' + x y' - (x^2 + m^2) y = 0 that decays like sqrt(pi / (2 x))
/// exp(-x). K_(-m) is K_m.
///
/// \param[in]     x    the argument, x > 0
/// \param[in]     nu   four times the order: one of 1, 2, 3, -1, -2, -3
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return exp(x) K_(nu/4)(x); a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL: `x` is not greater than 0; the result is 0.
/// - NE_INT: `nu` is not one of the six values; the result is 0.
/// \par Accuracy
/// Within 0.6 ulp (computed in extended precision and rounded once).
/// \par Method
/// Series for x <= 3, continued fraction up to 37, then Hankel's expansion (N. M. Temme, J. Comput. Phys. 19 (1975)
/// 324-337).
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s18efc() without the factor, s18ehc() for sequences of orders.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s18edc(0.5, 1, &fail);   // 1.58329395151578
/// \endcode
double s18edc(double x, Integer nu, KorError *fail);

/// \brief The modified Bessel function K of order nu/4.
///
/// K_(nu/4)(x), the solution of x^2 y'' + x y' - (x^2 + (nu/4)^2) y = 0 that decays like sqrt(pi / (2 x)) exp(-x).
/// K_(-m) is K_m.
///
/// \param[in]     x    the argument, x > 0; from about 742 on the result is 0
/// \param[in]     nu   four times the order: one of 1, 2, 3, -1, -2, -3
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return K_(nu/4)(x); a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL: `x` is not greater than 0; the result is 0.
/// - NE_INT: `nu` is not one of the six values; the result is 0.
/// \par Accuracy
/// Within 0.6 ulp (computed in extended precision and rounded once).
/// \par Method
/// Series for x <= 3, continued fraction up to 37, then Hankel's expansion (N. M. Temme, J. Comput. Phys. 19 (1975)
/// 324-337).
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s18edc(), which does not underflow.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s18efc(0.5, 1, &fail);   // 0.960316324931886
/// \endcode
double s18efc(double x, Integer nu, KorError *fail);

/// \brief The modified Bessel function K at a sequence of orders.
///
/// b[k] = K_(ia/ja + k)(x), k = 0, ..., nl.
///
/// \param[in]     x    the argument, x > 0
/// \param[in]     ia   numerator of the first order
/// \param[in]     ja   denominator of the first order; ia/ja is 0 (with any positive `ja`), 1/4, 1/3, 1/2, 2/3 or 3/4,
///                     in lowest terms
/// \param[in]     nl   0 <= nl <= 100: one less than the number of orders
/// \param[out]    b    nl + 1 elements: the values at orders ia/ja, ia/ja + 1, ..., ia/ja + nl
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_REAL: `x` is not greater than 0 (or not a number); `b` is not set.
/// - NE_INT_2: `ia` and `ja` are not one of the pairs above; `b` is not set.
/// - NE_INT: `nl` is not from 0 to 100; `b` is not set.
/// - NE_OVERFLOW_LIKELY: values overflow, which they do first at high orders; these elements of `b` hold the largest
///   number, the others are right.
///
/// \par Accuracy
/// Within 0.6 ulp (computed in extended precision and rounded once).
/// \par Method
/// The first two orders as s18edc(), then the recurrence upwards.
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s18ehc(), which does not underflow.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double b[3];
/// s18egc(0.5, 1, 3, 2, b, &fail);   // 0.989031074247, 2.52463856372, 14.4537700807
/// \endcode
void s18egc(double x, Integer ia, Integer ja, Integer nl, double b[], KorError *fail);

/// \brief The scaled modified Bessel function exp(x) K at a sequence of orders.
///
/// b[k] = exp(x) K_(ia/ja + k)(x), k = 0, ..., nl.
///
/// \param[in]     x    the argument, x > 0
/// \param[in]     ia   numerator of the first order
/// \param[in]     ja   denominator of the first order; ia/ja is 0 (with any positive `ja`), 1/4, 1/3, 1/2, 2/3 or 3/4,
///                     in lowest terms
/// \param[in]     nl   0 <= nl <= 100: one less than the number of orders
/// \param[out]    b    nl + 1 elements: the values at orders ia/ja, ia/ja + 1, ..., ia/ja + nl
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_REAL: `x` is not greater than 0 (or not a number); `b` is not set.
/// - NE_INT_2: `ia` and `ja` are not one of the pairs above; `b` is not set.
/// - NE_INT: `nl` is not from 0 to 100; `b` is not set.
/// - NE_OVERFLOW_LIKELY: values overflow, which they do first at high orders; these elements of `b` hold the largest
///   number, the others are right.
///
/// \par Accuracy
/// Within 0.6 ulp (computed in extended precision and rounded once).
/// \par Method
/// The first two orders as s18edc(), then the recurrence upwards.
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s18egc() without the factor.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double b[3];
/// s18ehc(0.5, 1, 3, 2, b, &fail);   // 1.63063656949, 4.16242530083, 23.8302381739
/// \endcode
void s18ehc(double x, Integer ia, Integer ja, Integer nl, double b[], KorError *fail);

/// \brief The modified Bessel function I at a sequence of orders, rising or falling.
///
/// b[k] = I_(a + k)(x), or I_(a - k)(x) for a negative `nl`, k = 0, ..., |nl|. The values are complex since the
/// function of a negative argument is, unless its order is an integer: it is the limit from above the negative axis,
/// exp(i pi (a +- k)) times the value at |x|.
///
/// \param[in]     x    the argument; not 0 when `nl` is negative
/// \param[in]     a    the first order, 0 <= a < 1
/// \param[in]     nl   |nl| <= 101: one less than the number of orders; with a negative `nl` the orders fall
/// \param[out]    b    |nl| + 1 elements: the values at orders a, a + 1, ..., a + nl, or a, a - 1, ..., a - |nl|
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_REAL_INT: `x` is 0 and `nl` is negative; `b` is not set.
/// - NE_REAL: `a` is not in [0, 1); `b` is not set.
/// - NE_INT: |nl| is greater than 101; `b` is not set.
/// - NE_OVERFLOW_LIKELY: values overflow; these elements of `b` hold the largest number with the sign of the value, the
///   others are right.
///
/// With an `x` that is not a number, neither are the values, and nothing is reported.
/// \par Accuracy
/// Within 0.6 ulp (computed in extended precision and rounded once).
/// \par Method
/// Recurrence downwards from a high order, normalised by the Wronskian or at the lowest order; orders below 0 by
/// reflection, I_(-m) = I_m + (2/pi) sin(m pi) K_m.
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s18ekc() for J.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// Complex b[3];
/// s18ejc(0.5, 0.25, 2, b, &fail);   // real parts 0.819675965989, 0.160400803655, 0.0176719477115
/// \endcode
void s18ejc(double x, double a, Integer nl, Complex b[], KorError *fail);

/// \brief The Bessel function J at a sequence of orders, rising or falling.
///
/// b[k] = J_(a + k)(x), or J_(a - k)(x) for a negative `nl`, k = 0, ..., |nl|. The values are complex since the
/// function of a negative argument is, unless its order is an integer: it is the limit from above the negative axis,
/// exp(i pi (a +- k)) times the value at |x|.
///
/// \param[in]     x    the argument; not 0 when `nl` is negative
/// \param[in]     a    the first order, 0 <= a < 1
/// \param[in]     nl   |nl| <= 101: one less than the number of orders; with a negative `nl` the orders fall
/// \param[out]    b    |nl| + 1 elements: the values at orders a, a + 1, ..., a + nl, or a, a - 1, ..., a - |nl|
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_REAL_INT: `x` is 0 and `nl` is negative; `b` is not set.
/// - NE_REAL: `a` is not in [0, 1); `b` is not set.
/// - NE_INT: |nl| is greater than 101; `b` is not set.
/// - NE_OVERFLOW_LIKELY: values overflow; these elements of `b` hold the largest number with the sign of the value, the
///   others are right.
/// - NW_SOME_PRECISION_LOSS: |x| is greater than 9.5e7: the values are right for `x` as it stands, but a rounding error
///   of `x` costs more than half of their digits.
/// - NE_TOTAL_PRECISION_LOSS: |x| is greater than 1e16, where the phase is lost; `b` is 0.
///
/// With an `x` that is not a number, neither are the values, and nothing is reported.
/// \par Accuracy
/// Within 0.6 ulp, next to zeros of the function within 1 ulp of its amplitude.
/// \par Method
/// By J_m(x) = exp(i pi m / 2) I_m(-i x), and I at imaginary arguments as s18ejc(); orders below 0 by reflection,
/// J_(-m) = cos(m pi) J_m - sin(m pi) Y_m.
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s17aec(), s17afc() for orders 0 and 1, s18ejc() for I, s17alc() for zeros.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// Complex b[3];
/// s18ekc(0.5, 0.25, 2, b, &fail);   // real parts 0.741656570157, 0.151732345067, 0.0170051551773
/// \endcode
void s18ekc(double x, double a, Integer nl, Complex b[], KorError *fail);

KOR_END_DECLS

#endif
