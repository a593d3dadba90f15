/// \file s22.h
/// Chapter s22: Legendre functions.
#ifndef KOR_S22_H
#define KOR_S22_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief Legendre functions and associated Legendre functions of the first kind, a sequence of degrees.
///
/// The functions P_l^m(x), without the factor (-1)^m that some texts have: P_1^1 = sqrt(1 - x^2). With m = 0 they are
/// the Legendre polynomials. A negative order is (l-|m|)! / (l+|m|)! times the positive one. Normalised functions are
/// multiplied by sqrt((l + 1/2) (l-m)! / (l+m)!), which makes their squares integrate to 1 over [-1, 1].
///
/// \param[in]     mode 1 for unnormalised functions, 2 for normalised ones
/// \param[in]     x    the argument, |x| <= 1
/// \param[in]     m    the order, |m| <= 27
/// \param[in]     nl   the greatest degree, nl >= 0; at most 100 when m = 0, else at most 55 - |m|
/// \param[out]    p    p[l] holds degree l for l = 0, ..., `nl`; 0 below |m|; untouched after an error
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT: `mode`, `m` or `nl` is out of range.
/// - NE_REAL: |x| is greater than 1.
///
/// \par Accuracy
/// A few eps of the size that the function has between its zeros, also for x next to 1 and -1. A NaN gives NaNs,
/// without a report of success.
/// \par Method
/// The recurrence in the degree, for the functions without their factor (1 - x^2)^(m/2) and scaled to 1 at x = 1;
/// from |x| = 1/2 on for their differences, which depend on 1 - |x|, known without error. It is stable: W. Gautschi,
/// SIAM Rev. 9 (1967) 24-82.
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double p[4];
/// s22aac(1, 0.5, 0, 3, p, &fail);   // 1.0, 0.5, -0.125, -0.4375
/// \endcode
void s22aac(Integer mode, double x, Integer m, Integer nl, double p[], KorError *fail);

KOR_END_DECLS

#endif
