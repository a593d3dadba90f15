/// \file s01.h
/// Chapter s01: logarithm of a number near 1.
#ifndef KOR_S01_H
#define KOR_S01_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief ln(1 + x), accurate also for small x.
///
/// Where x is small, 1 + x loses the digits of x before the logarithm sees them; this routine keeps them all.
///
/// \param[in]     x    the argument, x > -1; plus infinity is allowed
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return ln(1 + x); a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_LE: `x` is not greater than -1; the result is 0.
///
/// \par Accuracy
/// Within 0.51 ulp everywhere.
/// \par Method
/// A factor from a table, with its logarithm, brings 1 + x near 1, the two terms being multiplied without error; a short
/// series does the rest.
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s11aac(), s11abc(), s11acc() for other logarithms.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s01bac(1e-10, &fail);   // 9.9999999995e-11
/// \endcode
double s01bac(double x, KorError *fail);

KOR_END_DECLS

#endif
