/// \file s07.h
/// Chapter s07: the tangent.
#ifndef KOR_S07_H
#define KOR_S07_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief The tangent.
///
/// \param[in] x    in radians, at most 1e10 in modulus
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return tan x; 0 after NE_REAL_ARG_GT, a huge number of the right sign after NE_FUN_INF
///
/// \par Errors
/// - NE_REAL_ARG_GT: |x| is greater than 1e10.
/// - NE_FUN_INF: `x` is so close to a pole that no digit could be trusted.
/// \par Accuracy
/// At most 1 ulp, over the whole range.
/// \par Method
/// Reduction to |r| <= pi/4 with a low part; the quotient of sine and cosine in two doubles.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s07aac(1.0, &fail);   // 1.5574077246549023
/// \endcode
double s07aac(double x, KorError *fail);

KOR_END_DECLS

#endif
