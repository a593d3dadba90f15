/// \file x03.h
/// Chapter x03: accumulated inner products.
#ifndef KOR_X03_H
#define KOR_X03_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief Inner product of two vectors added to a starting value, in double or in doubled precision.
///
/// Computes c + a_0 b_0 + a_1 b_1 + ... + a_(n-1) b_(n-1), where a_i = `a[i*stepa]` and b_i = `b[i*stepb]`. With `sw` set,
/// c is `c1` + `c2`, products are formed without error and summed in doubled precision, and the result is the sum
/// `*d1` + `*d2`; otherwise c is `c1`, and everything is rounded to double as it comes.
///
/// \param[in]  a     the first vector, `stepa` apart: (n-1)`stepa` + 1 elements
/// \param[in]  asize not read
/// \param[in]  b     the second vector, `stepb` apart: (n-1)`stepb` + 1 elements
/// \param[in]  bsize not read
/// \param[in]  n     number of products; with 0 or less the sum is the starting value
/// \param[in]  stepa distance between the elements of the first vector, at least 1
/// \param[in]  stepb distance between the elements of the second vector, at least 1
/// \param[in]  c1    the starting value, or its high part
/// \param[in]  c2    the low part of the starting value; not read if `sw` is false
/// \param[out] d1    the result rounded to double
/// \param[out] d2    what is left of the result: |`*d2`| is at most half an ulp of `*d1`; 0 if `sw` is false
/// \param[in]  sw    non-zero: doubled precision
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LE: `stepa` is less than 1, or else `stepb` is.
///
/// The results are untouched after an error.
/// \par Accuracy
/// With `sw` set, the error of `*d1` + `*d2` is about n 2^-104 times the sum of the |a_i b_i|: the result is as if it had
/// been formed with twice as many digits. Products are without error as long as none comes near the ends of the range,
/// beyond 2^1023 or below 2^-969; an overflow gives what plain arithmetic gives.
/// \par Method
/// T. J. Dekker, A floating-point technique for extending the available precision, Numer. Math. 18 (1971) 224-242.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double a[] = {1e16, 1.0, -1e16}, b[] = {1.0, 1.0, 1.0}, d1, d2;
/// x03aac(a, 3, b, 3, 3, 1, 1, 0.0, 0.0, &d1, &d2, 1, &fail);   // d1 = 1, where plain arithmetic gives 0
/// \endcode
void x03aac(const double a[], Integer asize, const double b[], Integer bsize, Integer n, Integer stepa, Integer stepb,
            double c1, double c2, double *d1, double *d2, Boolean sw, KorError *fail);

KOR_END_DECLS

#endif
