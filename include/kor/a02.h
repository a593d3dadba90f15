/// \file a02.h
/// Chapter a02: complex arithmetic. Numbers are passed and returned by value. No routine takes an error record, and none
/// fails: outside its domain a routine gives what the arithmetic gives, an infinity or a NaN.
///
/// Relative accuracy is stated in ulps, units in the last place of the exact result.
#ifndef KOR_A02_H
#define KOR_A02_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief A complex number from its real and imaginary part.
///
/// \param[in] x the real part
/// \param[in] y the imaginary part
/// \return x + iy
/// \par Errors
/// None.
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex z = a02bac(3.0, 4.0);
/// \endcode
Complex a02bac(double x, double y);

/// \brief Real part of a complex number.
///
/// \param[in] z the number
/// \return Re z
/// \par Errors
/// None.
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double x = a02bbc(a02bac(3.0, 4.0));   // 3
/// \endcode
double a02bbc(Complex z);

/// \brief Imaginary part of a complex number.
///
/// \param[in] z the number
/// \return Im z
/// \par Errors
/// None.
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y = a02bcc(a02bac(3.0, 4.0));   // 4
/// \endcode
double a02bcc(Complex z);

/// \brief Sum of two complex numbers.
///
/// \param[in] z1 a number
/// \param[in] z2 a number
/// \return z1 + z2
/// \par Errors
/// None.
/// \par Accuracy
/// Each part is correctly rounded.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex z = a02cac(a02bac(1.0, 2.0), a02bac(3.0, 4.0));   // 4 + 6i
/// \endcode
Complex a02cac(Complex z1, Complex z2);

/// \brief Difference of two complex numbers.
///
/// \param[in] z1 a number
/// \param[in] z2 a number
/// \return z1 - z2
/// \par Errors
/// None.
/// \par Accuracy
/// Each part is correctly rounded.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex z = a02cbc(a02bac(1.0, 2.0), a02bac(3.0, 4.0));   // -2 - 2i
/// \endcode
Complex a02cbc(Complex z1, Complex z2);

/// \brief Product of two complex numbers.
///
/// \param[in] z1 a number
/// \param[in] z2 a number
/// \return z1 z2
/// \par Errors
/// None.
/// \par Accuracy
/// Within 2 ulps of |z1 z2|; a part that is much smaller than the other may lose digits by cancellation.
/// \par Method
/// The four products: Re z1 Re z2 - Im z1 Im z2 and Re z1 Im z2 + Im z1 Re z2.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex z = a02ccc(a02bac(1.0, 2.0), a02bac(3.0, 4.0));   // -5 + 10i
/// \endcode
Complex a02ccc(Complex z1, Complex z2);

/// \brief Quotient of two complex numbers.
///
/// No intermediate result overflows or underflows.
///
/// \param[in] z1 the dividend
/// \param[in] z2 the divisor; with 0 the result holds infinities or NaNs
/// \return z1 / z2
/// \par Errors
/// None.
/// \par Accuracy
/// Within 4 ulps of |z1 / z2|; a part that is much smaller than the other may lose digits by cancellation.
/// \par Method
/// R. L. Smith, Commun. ACM 5 (1962) 435, scaled by powers of two and refined where a ratio underflows after M. Baudin
/// and R. L. Smith, A robust complex division in Scilab (2012).
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex z = a02cdc(a02bac(-5.0, 10.0), a02bac(3.0, 4.0));   // 1 + 2i
/// \endcode
Complex a02cdc(Complex z1, Complex z2);

/// \brief Negative of a complex number.
///
/// \param[in] z the number
/// \return -z
/// \par Errors
/// None.
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex z = a02cec(a02bac(1.0, 2.0));   // -1 - 2i
/// \endcode
Complex a02cec(Complex z);

/// \brief Conjugate of a complex number.
///
/// \param[in] z the number
/// \return Re z - i Im z
/// \par Errors
/// None.
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex z = a02cfc(a02bac(1.0, 2.0));   // 1 - 2i
/// \endcode
Complex a02cfc(Complex z);

/// \brief Whether two complex numbers are equal.
///
/// Zeros of either sign are equal; a NaN equals nothing.
///
/// \param[in] z1 a number
/// \param[in] z2 a number
/// \return 1 if both parts are equal, else 0
/// \par Errors
/// None.
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Integer same = a02cgc(a02bac(1.0, 2.0), a02bac(1.0, 2.0));   // 1
/// \endcode
Integer a02cgc(Complex z1, Complex z2);

/// \brief Whether two complex numbers differ: the opposite of a02cgc().
///
/// \param[in] z1 a number
/// \param[in] z2 a number
/// \return 0 if both parts are equal, else 1
/// \par Errors
/// None.
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Integer differ = a02chc(a02bac(1.0, 2.0), a02bac(1.0, 2.0));   // 0
/// \endcode
Integer a02chc(Complex z1, Complex z2);

/// \brief Argument of a complex number.
///
/// The cut is along the negative real axis: on it the argument is pi, or -pi where Im z is -0.
///
/// \param[in] z the number
/// \return the angle in radians, from -pi to pi; 0 for z = 0
/// \par Errors
/// None.
/// \par Accuracy
/// Within 1 ulp.
/// \par Method
/// The two-argument arc tangent.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double angle = a02dac(a02bac(0.0, 1.0));   // pi/2
/// \endcode
double a02dac(Complex z);

/// \brief Modulus of a complex number.
///
/// Overflows only when the modulus itself is too large.
///
/// \param[in] z the number
/// \return |z|
/// \par Errors
/// None.
/// \par Accuracy
/// Within 1 ulp.
/// \par Method
/// The root of the sum of squares, scaled.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double size = a02dbc(a02bac(3e300, 4e300));   // 5e300
/// \endcode
double a02dbc(Complex z);

/// \brief Principal square root of a complex number.
///
/// The real part of the root is never negative. The cut is along the negative real axis; there the root is +i sqrt(|z|)
/// for Im z = 0 of either sign.
///
/// \param[in] z the number
/// \return the square root of z
/// \par Errors
/// None.
/// \par Accuracy
/// Each part within 1 ulp.
/// \par Method
/// The real part of the root of |Re z| + i Im z from the modulus, without cancellation; the other part by division; in
/// extended precision, rounded once.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex root = a02dcc(a02bac(-3.0, 4.0));   // 1 + 2i
/// \endcode
Complex a02dcc(Complex z);

/// \brief Integer power of a complex number.
///
/// \param[in] z the number
/// \param[in] n the exponent, of either sign
/// \return z to the power n; 1 for n = 0, whatever z is
/// \par Errors
/// None.
/// \par Accuracy
/// Within 1 ulp of |z^n| for |n| up to 500; beyond, the error grows in proportion to n, 1 ulp for each 1000.
/// \par Method
/// Repeated squaring in extended precision; a negative power is the reciprocal of the positive one.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex z = a02ddc(a02bac(1.0, 1.0), 4);   // -4
/// \endcode
Complex a02ddc(Complex z, Integer n);

/// \brief Real power of a complex number.
///
/// \param[in] z the number; with 0 the result is 0 for positive `r`, else not finite
/// \param[in] r the exponent
/// \return exp(r log z), principal value
/// \par Errors
/// None.
/// \par Accuracy
/// Within 2 ulps of |z^r|.
/// \par Method
/// exp(r log z) in extended precision, rounded once.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex z = a02dec(a02bac(0.0, 4.0), 0.5);   // 1.414213562373095 (1 + i)
/// \endcode
Complex a02dec(Complex z, double r);

/// \brief Complex power of a complex number.
///
/// \param[in] z1 the base
/// \param[in] z2 the exponent
/// \return exp(z2 log z1), principal value
/// \par Errors
/// None.
/// \par Accuracy
/// Within 2 ulps of |z1^z2|.
/// \par Method
/// exp(z2 log z1) in extended precision, rounded once.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex z = a02dfc(a02bac(0.0, 1.0), a02bac(0.0, 1.0));   // exp(-pi/2)
/// \endcode
Complex a02dfc(Complex z1, Complex z2);

/// \brief Natural logarithm of a complex number.
///
/// The cut is along the negative real axis, where the imaginary part jumps from pi to -pi as in a02dac().
///
/// \param[in] z the number; the real part of the result is minus infinity for 0
/// \return ln |z| + i arg z, principal value
/// \par Errors
/// None.
/// \par Accuracy
/// Each part within 1 ulp, also near |z| = 1, where the real part vanishes.
/// \par Method
/// ln |z| from |z|^2, or from |z|^2 - 1 with exact squares near the unit circle, in extended precision.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex z = a02dgc(a02bac(0.0, 1.0));   // i pi/2
/// \endcode
Complex a02dgc(Complex z);

/// \brief Exponential of a complex number.
///
/// \param[in] z the number
/// \return e^(Re z) (cos Im z + i sin Im z)
/// \par Errors
/// None.
/// \par Accuracy
/// Each part within 1 ulp.
/// \par Method
/// Extended precision, rounded once.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex z = a02dhc(a02bac(0.0, 3.141592653589793));   // -1 + 1.22e-16i
/// \endcode
Complex a02dhc(Complex z);

/// \brief Sine of a complex number.
///
/// \param[in] z the number, in radians
/// \return sin x cosh y + i cos x sinh y, where z = x + iy
/// \par Errors
/// None.
/// \par Accuracy
/// Each part within 1 ulp.
/// \par Method
/// Extended precision, rounded once; sinh from e^|y| - 1, without cancellation.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex z = a02djc(a02bac(0.0, 1.0));   // 1.1752011936438014i
/// \endcode
Complex a02djc(Complex z);

/// \brief Cosine of a complex number.
///
/// \param[in] z the number, in radians
/// \return cos x cosh y - i sin x sinh y, where z = x + iy
/// \par Errors
/// None.
/// \par Accuracy
/// Each part within 1 ulp.
/// \par Method
/// Extended precision, rounded once; sinh from e^|y| - 1, without cancellation.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex z = a02dkc(a02bac(0.0, 1.0));   // 1.5430806348152437
/// \endcode
Complex a02dkc(Complex z);

/// \brief Tangent of a complex number.
///
/// \param[in] z the number, in radians
/// \return (sin 2x + i sinh 2y) / (cos 2x + cosh 2y), where z = x + iy
/// \par Errors
/// None.
/// \par Accuracy
/// Each part within 1 ulp, also near the poles.
/// \par Method
/// Extended precision, rounded once; the divisor as 2 (cos^2 x + sinh^2 y), which does not cancel near the poles. For
/// |y|
/// beyond 5000 the result is +-0 +- i.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex z = a02dlc(a02bac(0.0, 1.0));   // 0.7615941559557649i
/// \endcode
Complex a02dlc(Complex z);

/// \brief Product of a complex and a real number.
///
/// \param[in] z the complex number
/// \param[in] r the real number
/// \return r Re z + i r Im z
/// \par Errors
/// None.
/// \par Accuracy
/// Each part is correctly rounded.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex z = a02eic(a02bac(1.0, 2.0), 3.0);   // 3 + 6i
/// \endcode
Complex a02eic(Complex z, double r);

/// \brief Product of a complex and a real number: the operation of a02eic() under its other name.
///
/// \param[in] z the complex number
/// \param[in] r the real number
/// \return r Re z + i r Im z
/// \par Errors
/// None.
/// \par Accuracy
/// Each part is correctly rounded.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Complex z = a02ejc(a02bac(1.0, 2.0), 3.0);   // 3 + 6i
/// \endcode
Complex a02ejc(Complex z, double r);

KOR_END_DECLS

#endif
