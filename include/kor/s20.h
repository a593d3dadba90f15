/// \file s20.h
/// Chapter s20: Fresnel integrals.
#ifndef KOR_S20_H
#define KOR_S20_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief The Fresnel sine integral.
///
/// S(x) = integral of sin(pi t^2/2) from 0 to x.
///
/// \param[in] x    any
/// \return S(x), 0.5 with the sign of x for large x
///
/// \par Errors
/// None.
/// \par Accuracy
/// At most 2 ulp.
/// \par Method
/// Piecewise polynomials; for large x the two auxiliary functions, with the phase reduced exactly.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s20acc(1.0);   // 0.4382591473903548
/// \endcode
double s20acc(double x);

/// \brief The Fresnel cosine integral.
///
/// C(x) = integral of cos(pi t^2/2) from 0 to x.
///
/// \param[in] x    any
/// \return C(x), 0.5 with the sign of x for large x
///
/// \par Errors
/// None.
/// \par Accuracy
/// At most 2 ulp.
/// \par Method
/// As s20acc().
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s20adc(1.0);   // 0.7798934003768228
/// \endcode
double s20adc(double x);

KOR_END_DECLS

#endif
