/// \file s19.h
/// Chapter s19: Kelvin functions of order 0.
#ifndef KOR_S19_H
#define KOR_S19_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief The Kelvin function ber(x), the real part of J0(x exp(3 pi i / 4)).
///
/// An even function; it oscillates with an amplitude that grows like exp(|x| / sqrt(2)) / sqrt(2 pi |x|).
///
/// \param[in]     x    the argument, |x| < 44.625
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return ber(x); a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_GT: |x| is at least 44.625; the result is 0.
///
/// \par Accuracy
/// Within 1 ulp, next to the zeros too.
/// \par Method
/// Polynomials on pieces, those at zeros being centred there.
/// \par Thread safety
/// Safe: no state.
/// \par See also
/// s19abc() for bei; s19acc() and s19adc() for the decaying pair.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s19aac(1.0, &fail);   // 0.984381781213087
/// \endcode
double s19aac(double x, KorError *fail);

/// \brief The Kelvin function bei(x), the imaginary part of J0(x exp(3 pi i / 4)).
///
/// An even function with a double zero at 0; it oscillates as ber does.
///
/// \param[in]     x    the argument, |x| < 44.625
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return bei(x); a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_GT: |x| is at least 44.625; the result is 0.
///
/// \par Accuracy
/// Within 1 ulp, next to the zeros too.
/// \par Method
/// Below 1 the power series; else polynomials on pieces, those at zeros being centred there.
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s19abc(1.0, &fail);   // 0.249566040036660
/// \endcode
double s19abc(double x, KorError *fail);

/// \brief The Kelvin function ker(x), the real part of K0(x exp(pi i / 4)).
///
/// It behaves like -ln x at 0, and oscillates with an amplitude that decays like sqrt(pi / (2 x)) exp(-x / sqrt(2)).
///
/// \param[in]     x    the argument, 0 < x <= 997.26
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return ker(x); a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_LE: `x` is not greater than 0; the result is 0.
/// - NE_REAL_ARG_GT: `x` is greater than 997.26, next to underflow; the result is 0.
///
/// \par Accuracy
/// Within 1 ulp, for x < 16 next to the zeros too; beyond, within 1 ulp of the amplitude.
/// \par Method
/// Below 1/4 the power series with its logarithm; up to 16 polynomials on pieces, those at zeros being centred there;
/// beyond, modulus and phase, the phase in numbers of two doubles.
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s19acc(1.0, &fail);   // 0.286706208728316
/// \endcode
double s19acc(double x, KorError *fail);

/// \brief The Kelvin function kei(x), the imaginary part of K0(x exp(pi i / 4)).
///
/// It has the limit -pi/4 at 0, and oscillates as ker does.
///
/// \param[in]     x    the argument, 0 < x <= 997.26
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \return kei(x); a NaN for a NaN, without any report.
/// \par Errors
/// - NE_REAL_ARG_LE: `x` is not greater than 0; the result is 0.
/// - NE_REAL_ARG_GT: `x` is greater than 997.26, next to underflow; the result is 0.
///
/// \par Accuracy
/// As s19acc().
/// \par Method
/// As s19acc().
/// \par Thread safety
/// Safe: no state.
/// \par Example
/// \code{.c}
/// KorError fail = {0};
/// double y = s19adc(1.0, &fail);   // -0.494994636518720
/// \endcode
double s19adc(double x, KorError *fail);

KOR_END_DECLS

#endif
