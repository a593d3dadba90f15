/// \file c02.h
/// Chapter c02: zeros of polynomials.
#ifndef KOR_C02_H
#define KOR_C02_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief All zeros of a polynomial with complex coefficients.
///
/// Finds z_1, ..., z_n with a_0 z^n + a_1 z^(n-1) + ... + a_n = 0.
///
/// \param[in]  n     degree, at least 1
/// \param[in]  a     n + 1 coefficients, the one of the highest power first; a[0] must not be zero
/// \param[in]  scale non-zero: avoid overflow and underflow by scaling. The evaluation works in extended exponent range
///                   in either case, so both settings give the same zeros
/// \param[out] z     n zeros, roughly in the order of their moduli, multiple ones repeated. After NE_POLY_NOT_CONV,
///                   NE_POLY_UNFLOW and NE_POLY_OVFLOW a zero that was not found, or is no double, holds
///                   -1/(x02amc() sqrt(2)) in both parts
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 1; `z` is untouched.
/// - NE_COMPLEX_ZERO: `a[0]` is zero; `z` is untouched.
/// - NE_ALLOC_FAIL: there is not enough memory; `z` is untouched.
/// - NE_POLY_NOT_CONV: a coefficient is infinite or not a number, or the iteration has failed.
/// - NE_POLY_UNFLOW: a zero is smaller than the smallest double.
/// - NE_POLY_OVFLOW: a zero is larger than the largest double.
/// \par Accuracy
/// The zeros are, but for their rounding to double, those of a polynomial whose coefficients differ from the given ones by
/// a few units of the 64-bit arithmetic used inside. Multiple and clustered zeros are as sensitive to that as they are.
/// \par Method
/// Laguerre's iteration on the deflated polynomial, smallest zero first (E. Laguerre, 1880; started on the Newton polygon,
/// D. A. Bini, Numer. Algorithms 13 (1996) 179-200); composite deflation, forwards and backwards, so that the order of
/// the zeros does not matter (G. Peters and J. H. Wilkinson, J. Inst. Maths Applics 8 (1971) 16-35).
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// const Complex a[3] = {{1.0, 0.0}, {0.0, 0.0}, {0.0, -2.0}};   // z^2 = 2i
/// Complex z[2];
/// c02afc(2, a, 1, z, &fail);                                     // z = 1 + i and -1 - i
/// \endcode
void c02afc(Integer n, const Complex a[], Boolean scale, Complex z[], KorError *fail);

/// \brief All zeros of a polynomial with real coefficients.
///
/// Finds z_1, ..., z_n with a_0 z^n + a_1 z^(n-1) + ... + a_n = 0. Zeros that are not real come in exactly conjugate
/// pairs, next to each other, the one above the real axis first.
///
/// \param[in]  n     degree, at least 1
/// \param[in]  a     n + 1 coefficients, the one of the highest power first; a[0] must not be zero
/// \param[in]  scale as in c02afc()
/// \param[out] z     n zeros, as in c02afc()
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As c02afc(), but a zero `a[0]` gives NE_REAL_ARG_LE.
/// \par Accuracy
/// As c02afc().
/// \par Method
/// As c02afc(), in real arithmetic: pairs are taken off by quadratic factors.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// const double a[4] = {1.0, 0.0, 0.0, -1.0};   // z^3 = 1
/// Complex z[3];
/// c02agc(3, a, 1, z, &fail);                    // 1 and -0.5 +- 0.866025i
/// \endcode
void c02agc(Integer n, const double a[], Boolean scale, Complex z[], KorError *fail);

/// \brief The zeros of a real cubic, with error estimates.
///
/// Solves u z^3 + r z^2 + s z + t = 0.
///
/// \param[in]  u      coefficient of z^3, not zero
/// \param[in]  r      coefficient of z^2
/// \param[in]  s      coefficient of z
/// \param[in]  t      constant term
/// \param[out] zeror  3 elements: real parts of the zeros
/// \param[out] zeroi  3 elements: imaginary parts; pairs are exactly conjugate, the one above the real axis first
/// \param[out] errest 3 elements: bounds of the errors, at most 1/x02amc()
/// \param[in,out] fail the error record; may be null, and then a failure ends the process. `errnum` holds the kernel's
///                    status: 0, or 1, 2, 3 for the errors below
///
/// \par Errors
/// - NE_REAL: `u` is zero.
/// - NE_C02_OVERFLOW: a quotient of the coefficients overflows.
/// - NE_C02_NOT_CONV: the iteration for the eigenvalues has failed, or a coefficient is not finite.
///
/// After each the outputs are untouched.
/// \par Accuracy
/// As told by `errest`: machine precision times the 1-norm of the companion matrix over the condition number of the
/// eigenvalue. Multiple zeros have large estimates.
/// \par Method
/// The zeros as in c02agc(); the estimates from the eigenvalues of the balanced companion matrix and their condition, by
/// LAPACK.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double re[3], im[3], error[3];
/// c02akc(1.0, 0.0, 0.0, -8.0, re, im, error, &fail);   // 2 and -1 +- 1.73205i
/// \endcode
void c02akc(double u, double r, double s, double t, double zeror[], double zeroi[], double errest[], KorError *fail);

/// \brief The zeros of a real quartic, with error estimates.
///
/// Solves e z^4 + a z^3 + b z^2 + c z + d = 0.
///
/// \param[in]  e      coefficient of z^4, not zero
/// \param[in]  a      coefficient of z^3
/// \param[in]  b      coefficient of z^2
/// \param[in]  c      coefficient of z
/// \param[in]  d      constant term
/// \param[out] zeror  4 elements: real parts of the zeros
/// \param[out] zeroi  4 elements: imaginary parts, as in c02akc()
/// \param[out] errest 4 elements: bounds of the errors, at most 1/x02amc()
/// \param[in,out] fail the error record, as in c02akc()
///
/// \par Errors
/// As c02akc(), for `e`.
/// \par Accuracy
/// As c02akc().
/// \par Method
/// As c02akc().
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double re[4], im[4], error[4];
/// c02alc(1.0, 0.0, -5.0, 0.0, 4.0, re, im, error, &fail);   // -2, -1, 1, 2
/// \endcode
void c02alc(double e, double a, double b, double c, double d, double zeror[], double zeroi[], double errest[],
            KorError *fail);

KOR_END_DECLS

#endif
