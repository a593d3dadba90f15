/// \file s10.h
/// Chapter s10: hyperbolic functions.
#ifndef KOR_S10_H
#define KOR_S10_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief The hyperbolic tangent.
///
/// \param[in] x    any
/// \return tanh x
///
/// \par Errors
/// None.
/// \par Accuracy
/// At most 1 ulp, over the whole range.
/// \par Method
/// Piecewise polynomials with an exactly split argument, computed in two doubles where the last bit asks for it.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s10aac(0.5);   // 0.46211715726000976
/// \endcode
double s10aac(double x);

/// \brief The hyperbolic sine.
///
/// \param[in] x    at most 708 in modulus
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return sinh x; sinh 708 with the sign of x after an error
///
/// \par Errors
/// - NE_REAL_ARG_GT: |x| is greater than 708.
/// \par Accuracy
/// At most 1 ulp, over the whole range.
/// \par Method
/// A series for small x; else exponentials in two doubles.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s10abc(1.0, &fail);   // 1.1752011936438014
/// \endcode
double s10abc(double x, KorError *fail);

/// \brief The hyperbolic cosine.
///
/// \param[in] x    at most 708 in modulus
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return cosh x; cosh 708 after an error
///
/// \par Errors
/// - NE_REAL_ARG_GT: |x| is greater than 708.
/// \par Accuracy
/// At most 1 ulp, over the whole range.
/// \par Method
/// Exponentials in two doubles.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s10acc(1.0, &fail);   // 1.5430806348152437
/// \endcode
double s10acc(double x, KorError *fail);

KOR_END_DECLS

#endif
