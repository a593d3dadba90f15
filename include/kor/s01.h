/// \file s01.h
/// Chapter s01: ln(1 + x).
#ifndef KOR_S01_H
#define KOR_S01_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief The logarithm of 1 + x, without the rounding of 1 + x.
///
/// \param[in] x    greater than -1
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return ln(1 + x); 0 after an error
///
/// \par Errors
/// - NE_REAL_ARG_LE: `x` is not greater than -1.
/// \par Accuracy
/// At most 1 ulp, over the whole range.
/// \par Method
/// 1 + x as two doubles, and the logarithm of both.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = s01bac(1e-10, &fail);   // 9.9999999995e-11
/// \endcode
double s01bac(double x, KorError *fail);

KOR_END_DECLS

#endif
