/// \file s07.h
/// Chapter s07: the tangent.
#ifndef KOR_S07_H
#define KOR_S07_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief The tangent of an angle in radians.
///
/// The ratio sin x / cos x.
///
/// \param[in]     x    the angle in radians, |x| <= 1e10
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return tan x; a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_GT: |x| is greater than 1e10 (the report calls it fl1); the result is 0.
/// - NE_FUN_INF: `x` is nearer to a pole than 1e-14 |x|; the result is what the tangent is at that distance, 1 /
///   (1e-14 |x|), with the sign of the tangent at `x`.
///
/// \par Accuracy
/// Within 0.51 ulp wherever the routine answers.
/// \par Method
/// The angle is reduced modulo pi/2 with pi to 180 bits; sine and cosine of the rest come from a table and short
/// series in numbers of two doubles, and are divided as such.
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s07aac(0.5, &fail);   // 0.546302489843791
/// \endcode
double s07aac(double x, KorError *fail);

KOR_END_DECLS

#endif
