/// \file s15.h
/// Chapter s15: error function and normal distribution.
#ifndef KOR_S15_H
#define KOR_S15_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief The normal distribution function.
///
/// The integral of the standard normal density exp(-t^2/2) / sqrt(2 pi) over t from minus infinity to x.
///
/// \param[in] x the argument, any
///
/// \return the probability of a standard normal variate up to x; 0 where it underflows, below -38.5; a NaN for a NaN.
/// \par Accuracy
/// Within 0.8 ulp, far into the lower tail, 1 ulp where the result is subnormal.
/// \par Method
/// As s15adc() at -x / sqrt 2, this argument being formed with a low part.
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s15acc() for the upper tail, which 1 - s15abc(x) loses.
/// \par Example
/// \code{.c}
/// double y = s15abc(-2.0);   // 0.0227501319481792
/// \endcode
double s15abc(double x);

/// \brief The complement of the normal distribution function.
///
/// The integral of the standard normal density over t from x to infinity; s15abc(-x).
///
/// \param[in] x the argument, any
///
/// \return the probability of a standard normal variate beyond x; 0 where it underflows, above 38.5; a NaN for a NaN.
/// \par Accuracy
/// As s15abc().
/// \par Method
/// As s15abc().
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// double y = s15acc(5.0);   // 2.86651571879194e-07
/// \endcode
double s15acc(double x);

/// \brief The complementary error function.
///
/// erfc x = 1 - erf x, the integral of 2 exp(-t^2) / sqrt(pi) over t from x to infinity. From 26.6 on the result is
/// 0, down from -6.25 it is 2.
///
/// \param[in] x the argument, any
///
/// \return erfc x; a NaN for a NaN.
/// \par Accuracy
/// Within 0.8 ulp, 1 ulp where the result is subnormal (x > 26.54).
/// \par Method
/// From 1/2 on exp(-x^2) times polynomials on pieces; below, 1 less the error function. In the tails exp(-x^2) is
/// formed from x^2 in two doubles, so that nothing is lost however large x is.
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// double y = s15adc(2.0);   // 0.00467773498104727
/// \endcode
double s15adc(double x);

/// \brief The error function.
///
/// erf x is the integral of 2 exp(-t^2) / sqrt(pi) over t from 0 to x. From |x| = 6.25 on the result is the sign of
/// x.
///
/// \param[in] x the argument, any
///
/// \return erf x; a NaN for a NaN.
/// \par Accuracy
/// Within 0.7 ulp.
/// \par Method
/// An odd series below 1/2, polynomials on pieces beyond.
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// double y = s15aec(0.5);   // 0.520499877813047
/// \endcode
double s15aec(double x);

KOR_END_DECLS

#endif
