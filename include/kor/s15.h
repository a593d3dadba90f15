/// \file s15.h
/// Chapter s15: error function and normal distribution.
#ifndef KOR_S15_H
#define KOR_S15_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief The normal distribution function.
///
/// The integral of the normal density from minus infinity to x.
///
/// \param[in] x    any
/// \return the probability
///
/// \par Errors
/// None.
/// \par Accuracy
/// At most 1 ulp, over the whole range. In the lower tail relative to the tail itself.
/// \par Method
/// erfc of x/sqrt(2), with the rounding error of that quotient.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s15abc(1.96);   // 0.9750021048517795
/// \endcode
double s15abc(double x);

/// \brief The complement of the normal distribution function.
///
/// The integral of the normal density from x to infinity.
///
/// \param[in] x    any
/// \return the probability
///
/// \par Errors
/// None.
/// \par Accuracy
/// At most 1 ulp, over the whole range. In the upper tail relative to the tail itself.
/// \par Method
/// As s15abc().
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s15acc(1.96);   // 0.024997895148220435
/// \endcode
double s15acc(double x);

/// \brief The complement of the error function.
///
/// erfc(x) = 2/sqrt(pi) times the integral of exp(-t^2) from x to infinity.
///
/// \param[in] x    any
/// \return erfc x; 0 from 26.6 on, 2 up to -6.25
///
/// \par Errors
/// None.
/// \par Accuracy
/// At most 1 ulp, over the whole range.
/// \par Method
/// exp(-x^2), with x^2 in two doubles, times piecewise polynomials.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s15adc(1.0);   // 0.15729920705028513
/// \endcode
double s15adc(double x);

/// \brief The error function.
///
/// erf(x) = 2/sqrt(pi) times the integral of exp(-t^2) from 0 to x.
///
/// \param[in] x    any
/// \return erf x
///
/// \par Errors
/// None.
/// \par Accuracy
/// At most 1 ulp, over the whole range.
/// \par Method
/// Piecewise polynomials in two doubles.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s15aec(1.0);   // 0.8427007929497149
/// \endcode
double s15aec(double x);

KOR_END_DECLS

#endif
