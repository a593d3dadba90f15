/// \file s20.h
/// Chapter s20: Fresnel integrals.
#ifndef KOR_S20_H
#define KOR_S20_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief The Fresnel sine integral S(x).
///
/// The integral of sin(pi t^2 / 2) over t from 0 to x; an odd function with the limit 1/2.
///
/// \param[in] x the argument, any
///
/// \return S(x); a NaN for a NaN.
/// \par Accuracy
/// Within 1.1 ulp.
/// \par Method
/// Below 1/2 a series, up to 4 polynomials on pieces; beyond, auxiliary functions with sine and cosine of pi x^2 / 2,
/// where x^2 is reduced without error (Abramowitz and Stegun, Handbook of Mathematical Functions, 1964, 7.3).
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s20adc().
/// \par Example
/// \code{.c}
/// double y = s20acc(1.5);   // 0.697504960082093
/// \endcode
double s20acc(double x);

/// \brief The Fresnel cosine integral C(x).
///
/// The integral of cos(pi t^2 / 2) over t from 0 to x; an odd function with the limit 1/2.
///
/// \param[in] x the argument, any
///
/// \return C(x); a NaN for a NaN.
/// \par Accuracy
/// Within 0.9 ulp.
/// \par Method
/// Below 1/2 a series, up to 4 polynomials on pieces; beyond, auxiliary functions with sine and cosine of pi x^2 / 2,
/// where x^2 is reduced without error (Abramowitz and Stegun, Handbook of Mathematical Functions, 1964, 7.3).
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s20acc().
/// \par Example
/// \code{.c}
/// double y = s20adc(1.5);   // 0.445261176039822
/// \endcode
double s20adc(double x);

KOR_END_DECLS

#endif
