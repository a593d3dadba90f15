/// \file s11.h
/// Chapter s11: inverse hyperbolic functions.
#ifndef KOR_S11_H
#define KOR_S11_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief The inverse hyperbolic tangent.
///
/// \param[in] x    less than 1 in modulus
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return artanh x; 0 after an error
///
/// \par Errors
/// - NE_REAL_ARG_GE: |x| is not less than 1.
/// \par Accuracy
/// At most 1 ulp, over the whole range.
/// \par Method
/// A series for small x; else a logarithm of a quotient in two doubles.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s11aac(0.5, &fail);   // 0.5493061443340548
/// \endcode
double s11aac(double x, KorError *fail);

/// \brief The inverse hyperbolic sine.
///
/// \param[in] x    any
/// \return arsinh x
///
/// \par Errors
/// None.
/// \par Accuracy
/// At most 1 ulp, over the whole range.
/// \par Method
/// A series for small x; else a logarithm in two doubles; from 1e9 on ln(2x).
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s11abc(1.0);   // 0.881373587019543
/// \endcode
double s11abc(double x);

/// \brief The inverse hyperbolic cosine.
///
/// \param[in] x    at least 1
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return arcosh x, not negative; 0 after an error
///
/// \par Errors
/// - NE_REAL_ARG_LT: `x` is less than 1.
/// \par Accuracy
/// At most 1 ulp, over the whole range.
/// \par Method
/// A logarithm in two doubles; from 1e9 on ln(2x).
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s11acc(2.0, &fail);   // 1.3169578969248166
/// \endcode
double s11acc(double x, KorError *fail);

KOR_END_DECLS

#endif
