/// \file s10.h
/// Chapter s10: hyperbolic functions.
#ifndef KOR_S10_H
#define KOR_S10_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief The hyperbolic tangent.
///
/// tanh x = (exp x - exp(-x)) / (exp x + exp(-x)). Beyond 18.5 the result is 1 with the sign of x.
///
/// \param[in] x the argument, any
///
/// \return tanh x; a NaN for a NaN.
/// \par Accuracy
/// Within 0.9 ulp for |x| <= 18.5. Just beyond, 1 is 1.6 ulp from tanh x, counted in the ulp below 1.
/// \par Method
/// An odd series below 1/2, polynomials on pieces up to 4, and 1 - 2 / (exp(2x) + 1).
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s11aac() for the inverse.
/// \par Example
/// \code{.c}
/// double y = s10aac(0.5);   // 0.46211715726001
/// \endcode
double s10aac(double x);

/// \brief The hyperbolic sine.
///
/// sinh x = (exp x - exp(-x)) / 2.
///
/// \param[in]     x    the argument, |x| <= 708
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return sinh x; a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_GT: |x| is greater than 708; the result is sinh 708 with the sign of `x`.
///
/// \par Accuracy
/// Within 0.8 ulp.
/// \par Method
/// An odd series below 1, beyond it the exponential with a low part.
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s11abc() for the inverse.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s10abc(0.5, &fail);   // 0.521095305493747
/// \endcode
double s10abc(double x, KorError *fail);

/// \brief The hyperbolic cosine.
///
/// cosh x = (exp x + exp(-x)) / 2.
///
/// \param[in]     x    the argument, |x| <= 708
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return cosh x; a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_GT: |x| is greater than 708; the result is cosh 708.
///
/// \par Accuracy
/// Within 0.8 ulp.
/// \par Method
/// An even series below 1/2, beyond it the exponential with a low part.
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s11acc() for the inverse.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s10acc(0.5, &fail);   // 1.12762596520638
/// \endcode
double s10acc(double x, KorError *fail);

KOR_END_DECLS

#endif
