/// \file s22.h
/// Chapter s22: Legendre functions.
#ifndef KOR_S22_H
#define KOR_S22_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief Legendre and associated Legendre functions of the first kind, for a sequence of degrees.
///
/// P_l^m(x), l = 0, ..., nl, without the factor (-1)^m; for negative m the factor (l-|m|)!/(l+|m|)!. Normalised, the integral of the square
/// over (-1, 1) is 1.
///
/// \param[in] mode 1: as they are; 2: normalised
/// \param[in] x    at most 1 in modulus
/// \param[in] m    the order, at most 27 in modulus
/// \param[in] nl   the largest degree, at least 0: at most 100 for m = 0, else at most 55 - |m|
/// \param[out] p    nl + 1 values, the degree being the index
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT: `mode`, `m` or `nl` is out of range.
/// - NE_REAL: |x| is greater than 1.
///
/// `p` is then untouched.
/// \par Accuracy
/// A few ulp of the largest neighbour.
/// \par Method
/// The three-term recurrence in the degree, stable for |x| <= 1.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double p[4];
/// s22aac(1, 0.5, 0, 3, p, &fail);   // 1, 0.5, -0.125, -0.4375
/// \endcode
void s22aac(Integer mode, double x, Integer m, Integer nl, double p[], KorError *fail);

KOR_END_DECLS

#endif
