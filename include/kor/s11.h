/// \file s11.h
/// Chapter s11: inverse hyperbolic functions.
#ifndef KOR_S11_H
#define KOR_S11_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief The inverse hyperbolic tangent.
///
/// arctanh x = ln((1 + x) / (1 - x)) / 2.
///
/// \param[in]     x    the argument, |x| < 1
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return arctanh x; a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_GE: |x| is 1 or more; the result is 0.
///
/// \par Accuracy
/// Within 0.6 ulp.
/// \par Method
/// An odd series below 1/4, beyond it the logarithm of the quotient in numbers of two doubles.
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s10aac() for the inverse.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s11aac(0.5, &fail);   // 0.549306144334055
/// \endcode
double s11aac(double x, KorError *fail);

/// \brief The inverse hyperbolic sine.
///
/// arcsinh x = ln(x + sqrt(x^2 + 1)); beyond 1e9, ln(2 |x|) with the sign of x.
///
/// \param[in] x the argument, any
///
/// \return arcsinh x; a NaN for a NaN.
/// \par Accuracy
/// Within 0.6 ulp.
/// \par Method
/// An odd series below 1/4, beyond it the logarithm in numbers of two doubles.
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s10abc() for the inverse.
/// \par Example
/// \code{.c}
/// double y = s11abc(0.5);   // 0.481211825059603
/// \endcode
double s11abc(double x);

/// \brief The inverse hyperbolic cosine.
///
/// arccosh x = ln(x + sqrt(x^2 - 1)), not negative; beyond 1e9, ln(2 x).
///
/// \param[in]     x    the argument, x >= 1
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return arccosh x; a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_LT: `x` is less than 1; the result is 0.
///
/// \par Accuracy
/// Within 0.51 ulp, next to 1 too.
/// \par Method
/// The logarithm in numbers of two doubles, below 2 of 1 + (d + sqrt(d (d + 2))) with d = x - 1.
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s10acc() for the inverse.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s11acc(1.5, &fail);   // 0.962423650119207
/// \endcode
double s11acc(double x, KorError *fail);

KOR_END_DECLS

#endif
