/// \file s21.h
/// Chapter s21: elliptic integrals, theta and elliptic functions.
#ifndef KOR_S21_H
#define KOR_S21_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief Carlson's degenerate elliptic integral RC(x, y).
///
/// RC(x, y) is half the integral of dt / (sqrt(t + x) (t + y)) over t >= 0; for y < 0 its Cauchy principal value. It
/// holds the inverse circular and hyperbolic functions: arctan x = x RC(1, 1 + x^2), ln x = (x - 1) RC(((1 + x) /
/// 2)^2, x).
///
/// \param[in]     x    x >= 0
/// \param[in]     y    not zero
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return RC(x, y); 0 after an error; a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_LT: `x` is negative, or x + |y| is less than 5 x02akc().
/// - NE_REAL_ARG_EQ: `y` is zero.
/// - NE_REAL_ARG_GT: `x` or |y| is greater than x02alc() / 5.
///
/// \par Accuracy
/// Within 0.9 ulp, within 1.3 ulp for y < 0.
/// \par Method
/// A function of x/y, tabulated as polynomials on pieces, divided by sqrt y in numbers of two doubles; logarithms for
/// large x/y.
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s21bac(1.0, 2.0, &fail);   // 0.785398163397448 = pi / 4
/// \endcode
double s21bac(double x, double y, KorError *fail);

/// \brief Carlson's elliptic integral of the first kind, RF(x, y, z).
///
/// RF(x, y, z) is half the integral of dt / sqrt((t + x)(t + y)(t + z)) over t >= 0. Legendre's F(phi, k) is sin phi
/// RF(cos^2 phi, 1 - k^2 sin^2 phi, 1).
///
/// \param[in]     x    x >= 0
/// \param[in]     y    y >= 0
/// \param[in]     z    z >= 0; at most one of the three is zero
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return RF(x, y, z); 0 after an error; a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_LT: `x`, `y` or `z` is negative, or a sum of two of them ("x+y" and so on) is less than 5 x02akc().
/// - NE_REAL_ARG_EQ: two of `x`, `y`, `z` are zero (the report calls them "x and y" and so on).
/// - NE_REAL_ARG_GT: `x`, `y` or `z` is greater than x02alc() / 5.
///
/// \par Accuracy
/// Within 0.6 ulp.
/// \par Method
/// Duplication in numbers of two doubles, then a series to the eleventh order. B. C. Carlson, Numer. Math. 33 (1979)
/// 1-16; Numer. Algorithms 10 (1995) 13-26.
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s21bbc(0.0, 1.0, 2.0, &fail);   // 1.31102877714606
/// \endcode
double s21bbc(double x, double y, double z, KorError *fail);

/// \brief Carlson's elliptic integral of the second kind, RD(x, y, z).
///
/// RD(x, y, z) is 3/2 times the integral of dt / (sqrt((t + x)(t + y)) (t + z)^(3/2)) over t >= 0. Legendre's E(phi,
/// k) is sin phi RF(c, d, 1) - k^2/3 sin^3 phi RD(c, d, 1), with c = cos^2 phi, d = 1 - k^2 sin^2 phi.
///
/// \param[in]     x    x >= 0
/// \param[in]     y    y >= 0; not both zero
/// \param[in]     z    z > 0
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return RD(x, y, z); 0 after an error; a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_LT: `x` or `y` is negative, or x + y or `z` is less than 6.3e-206 (the value might overflow).
/// - NE_REAL_ARG_EQ: `x` and `y` are zero ("x and y").
/// - NE_REAL_ARG_LE: `z` is not greater than 0.
/// - NE_REAL_ARG_GT: `x`, `y` or `z` is greater than 5.1e202 (the value might underflow).
///
/// \par Accuracy
/// Within 1.3 ulp.
/// \par Method
/// Duplication in numbers of two doubles, then a series to the eleventh order. B. C. Carlson, Numer. Math. 33 (1979)
/// 1-16; Numer. Algorithms 10 (1995) 13-26.
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s21bcc(0.0, 2.0, 1.0, &fail);   // 1.79721035210339
/// \endcode
double s21bcc(double x, double y, double z, KorError *fail);

/// \brief Carlson's elliptic integral of the third kind, RJ(x, y, z, r).
///
/// RJ(x, y, z, r) is 3/2 times the integral of dt / (sqrt((t + x)(t + y)(t + z)) (t + r)) over t >= 0; for r < 0 its
/// Cauchy principal value. Legendre's Pi(n, phi, k) is sin phi RF(c, d, 1) + n/3 sin^3 phi RJ(c, d, 1, 1 - n sin^2
/// phi), with c = cos^2 phi, d = 1 - k^2 sin^2 phi.
///
/// \param[in]     x    x >= 0
/// \param[in]     y    y >= 0
/// \param[in]     z    z >= 0; at most one of the three is zero
/// \param[in]     r    not zero
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return RJ(x, y, z, r); 0 after an error; a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_LT: `x`, `y` or `z` is negative, or a sum of two of them ("x+y" and so on) or |r| is less than
///   4.9e-103 (the value might overflow).
/// - NE_REAL_ARG_EQ: two of `x`, `y`, `z` are zero (the report calls them "x and y" and so on), or
///   `r` is zero.
/// - NE_REAL_ARG_GT: `x`, `y`, `z` or |r| is greater than 9.9e101 (the value might underflow).
///
/// \par Accuracy
/// Within 1.4 ulp for r > 0. The principal value is a difference that vanishes somewhere: a few eps of its terms.
/// \par Method
/// Duplication in numbers of two doubles with RC, then a series to the eleventh order. B. C. Carlson, Numer. Math. 33
/// (1979) 1-16; Numer. Algorithms 10 (1995) 13-26.
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s21bdc(0.0, 1.0, 2.0, 3.0, &fail);   // 0.776886237785823
/// \endcode
double s21bdc(double x, double y, double z, double r, KorError *fail);

/// \brief Jacobi's elliptic functions sn, cn and dn of a complex argument.
///
/// sn(z | k^2) is the inverse of the elliptic integral of the first kind, cn^2 = 1 - sn^2 and dn^2 = 1 - k^2 sn^2.
/// They have periods built from 4 K and 2 i K', and a pole at i K'.
///
/// \param[in]     z    the argument; both parts at most 2^511 = 6.7e153 in modulus
/// \param[in]     ak2  the parameter k^2, the square of the modulus, 0 <= ak2 <= 1
/// \param[out]    sn   sn(z | k^2); untouched after an error
/// \param[out]    cn   cn(z | k^2), likewise
/// \param[out]    dn   dn(z | k^2), likewise
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_COMPLEX: a part of `z` is greater than 2^511 in modulus.
/// - NE_REAL: `ak2` is not in [0, 1].
///
/// \par Accuracy
/// Of order eps relative to each modulus while |z| is of order 1 (measured: 5 eps for |z| <= 1). An error of a few
/// eps in z is what grows with |z|, next to zeros and poles. NaNs give NaNs, without any report.
/// \par Method
/// Quotients of theta functions for the real and the imaginary part, joined by the addition theorem (Abramowitz and
/// Stegun, Handbook of Mathematical Functions, 1964, 16.21).
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s21ccc() for theta functions, s21bbc() for K = RF(0, 1 - k^2, 1).
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// Complex z = {1.0, 0.5}, sn, cn, dn;
/// s21cbc(z, 0.5, &sn, &cn, &dn, &fail);   // sn = 0.89100019646311 + 0.239754489883025 i
/// \endcode
void s21cbc(Complex z, double ak2, Complex *sn, Complex *cn, Complex *dn, KorError *fail);

/// \brief Jacobi's theta functions of real argument.
///
/// With the argument in units of pi, theta_k(pi x, q):
///
/// - theta_1 = 2 sum (-1)^n q^((n+1/2)^2) sin((2n+1) pi x), n >= 0; theta_2 = 2 sum q^((n+1/2)^2) cos((2n+1) pi x);
/// - theta_3 = 1 + 2 sum q^(n^2) cos(2 n pi x), n >= 1; theta_4 = theta_0 = 1 + 2 sum (-1)^n q^(n^2) cos(2 n pi x).
///
/// At q = 1 they are 0 but for their peaks.
///
/// \param[in]     k    which function, 0 <= k <= 4; 0 is 4 under its other name
/// \param[in]     x    the argument in units of pi
/// \param[in]     q    the nome, 0 <= q <= 1
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return theta_k(pi x, q); 0 where it underflows and after an error other than NE_INFINITE; a NaN for a NaN and for
/// an infinite `x`, without any report.
/// \par Errors
/// - NE_INT: `k` is out of range.
/// - NE_REAL: `q` is not in [0, 1]; or q = 1 at a peak of theta_1 (x - 0.5 an integer) or theta_2 (x an integer),
///   whose sign alternates.
/// - NE_INFINITE: q = 1 at a peak of theta_3 (x an integer) or theta_4 (x - 0.5 an integer); the result is x02alc().
///
/// \par Accuracy
/// Within 0.7 ulp, next to zeros too.
/// \par Method
/// The series above for q up to exp(-pi); beyond, the same functions as sums of Gauss curves by Jacobi's imaginary
/// transformation, in numbers of two doubles.
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s21cbc() for elliptic functions.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s21ccc(1, 0.25, 0.1, &fail);   // 0.787317226209447
/// \endcode
double s21ccc(Integer k, double x, double q, KorError *fail);

/// \brief The elliptic integral of the second kind with complex upper limit.
///
/// The integral of sqrt(1 + akp^2 t^2) / (1 + t^2)^(3/2) over t from 0 to z, on a path to the right of the imaginary
/// axis. With z = tan phi and k^2 = 1 - akp^2 it is Legendre's E(phi, k), the integral of sqrt(1 - k^2 sin^2 theta)
/// over theta from 0 to phi; akp is the complementary modulus k'.
///
/// \param[in]     z    the upper limit, 0 <= z.re <= 1.9e51 and |z.im| <= 1.9e51, the bound being (1/x02amc())^(1/6);
///                     not i or -i, where the integrand has a pole
/// \param[in]     akp  the complementary modulus, |akp| <= 1.9e51
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return the integral; 0 after an error; NaNs for a NaN, without any report.
/// \par Errors
/// - NE_COMPLEX: `z` is out of range.
/// - NE_REAL: `akp` is out of range.
/// - NE_S21_CONV: no convergence to a finite value, as at z = i.
///
/// \par Accuracy
/// A few eps relative to the modulus of the result (measured: 7e-16).
/// \par Method
/// Carlson's RF and RD of 1, 1 + akp^2 z^2, 1 + z^2, in one of two forms, by duplication in complex arithmetic. B. C.
/// Carlson, Numer. Math. 33 (1979) 1-16; Numer. Algorithms 10 (1995) 13-26.
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s21bbc(), s21bcc() for real arguments.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// Complex z = {1.0, 0.5};
/// Complex y = s21dac(z, 0.5, &fail);   // 0.790624110631122 + 0.182145808591186 i
/// \endcode
Complex s21dac(Complex z, double akp, KorError *fail);

KOR_END_DECLS

#endif
