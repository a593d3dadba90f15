/// \file s13.h
/// Chapter s13: exponential, cosine and sine integrals.
#ifndef KOR_S13_H
#define KOR_S13_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief The exponential integral E1.
///
/// E1(x) is the integral of exp(-t)/t from x to infinity.
///
/// \param[in] x    greater than 0
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return E1(x); 0 after an error, and for x greater than 708.3, where the value is nearly the smallest double
///
/// \par Errors
/// - NE_REAL_ARG_LE: `x` is not greater than 0.
/// \par Accuracy
/// At most 1 ulp, over the whole range.
/// \par Method
/// ln x and a series for small x; else exp(-x) times piecewise polynomials in two doubles.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s13aac(1.0, &fail);   // 0.21938393439552029
/// \endcode
double s13aac(double x, KorError *fail);

/// \brief The cosine integral.
///
/// Ci(x) = gamma + ln x + integral of (cos t - 1)/t from 0 to x.
///
/// \param[in] x    greater than 0
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return Ci(x); 0 after an error
///
/// \par Errors
/// - NE_REAL_ARG_LE: `x` is not greater than 0.
/// \par Accuracy
/// At most 1 ulp, near the zeros as well (these are stored to 32 digits); 1.5 ulp for x beyond 1e16.
/// \par Method
/// Distance from the nearest zero times a factor without zeros; for large x the two auxiliary functions.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s13acc(1.0, &fail);   // 0.3374039229009681
/// \endcode
double s13acc(double x, KorError *fail);

/// \brief The sine integral.
///
/// Si(x) = integral of (sin t)/t from 0 to x.
///
/// \param[in] x    any
/// \return Si(x)
///
/// \par Errors
/// None.
/// \par Accuracy
/// At most 1 ulp, over the whole range.
/// \par Method
/// Piecewise polynomials; for large x the two auxiliary functions.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s13adc(1.0);   // 0.946083070367183
/// \endcode
double s13adc(double x);

KOR_END_DECLS

#endif
