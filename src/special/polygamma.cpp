// Derivatives of the logarithm of the gamma function, for real and for complex argument.
//
// To the right the argument is raised by the recurrence psi^(k)(z) = psi^(k)(z + 1) + (-1)^(k+1) k! / z^(k+1) until the
// asymptotic series serves; to the left psi^(k)(z) = (-1)^k psi^(k)(1 - z) - pi d^k/dz^k cot(pi z).
#include "special/polygamma.hpp"

#include <cmath>
#include <complex>

#include "special/elementary.hpp"
#include "special/gamma_tables.hpp"

namespace kor::special {

namespace {

using Cplx = std::complex<double>;

constexpr Integer kLargestRealOrder = 6;
constexpr Integer kLargestComplexOrder = 4;
constexpr double kFactorial[] = {1, 1, 2, 6, 24, 120, 720};
constexpr double kTableEnds = 64.0;         // of digamma and trigamma
constexpr double kSeriesFrom = 16.0;        // real argument: twelve terms give the last bit for k = 6
constexpr double kComplexSeriesFrom = 20.0; // modulus: near the imaginary axis the terms count more
constexpr double kOrdinary = 1e40;          // from its reciprocal on no order overflows, and up to it none underflows
constexpr double kLogLargest = 709.78;
constexpr double kLogSmallest = -708.39;

double alternating(Integer k) { return k % 2 != 0 ? -1.0 : 1.0; }

DoubleDouble power(DoubleDouble x, Integer n)
{
    DoubleDouble product = x;
    for (Integer i = 1; i < n; ++i) product = product * x;
    return product;
}

template <class T>
T plain_power(T x, Integer n)
{
    T product = x;
    for (Integer i = 1; i < n; ++i) product *= x;
    return product;
}

// The asymptotic series of order k in 1/y^2, times 1/y^2.
template <class T>
T asymptotic_series(T y, Integer k)
{
    const T square = 1.0 / (y * y);
    T sum{};
    for (std::size_t j = tables::kPolygammaSeries[k].size(); j-- > 0;)
        sum = (sum + tables::kPolygammaSeries[k][j]) * square;
    return sum;
}

// |psi^(k)(y)| y^k / (k - 1)! - 1, y large.
template <class T>
T series_beyond_first(T y, Integer k)
{
    return 0.5 * static_cast<double>(k) / y + asymptotic_series(y, k);
}

// psi(x), x >= 1/2: the distance from its zero times a factor without zeros, or the asymptotic series.
KOR_INLINE OpenSum open_digamma(DoubleDouble x)
{
    using namespace tables;
    if (x.hi < kTableEnds) {
        const double distance = x.hi - kDigammaZero[0]; // exact
        const DoubleDouble sum = fast_two_sum(distance, -kDigammaZero[1]);
        return kDigammaFactor.times({sum.hi, sum.lo + (x.lo - kDigammaZero[2])}, x);
    }
    const double reciprocal = 1.0 / x.hi, square = reciprocal * reciprocal;
    const OpenSum log = open_log(x.hi);
    return {log.large, log.small + ((x.lo - 0.5) * reciprocal - square * polynomial(kDigammaTail, square))};
}

// psi'(x) likewise.
KOR_INLINE OpenSum open_trigamma(DoubleDouble x)
{
    using namespace tables;
    if (x.hi < kTableEnds) return kTrigamma.open(x);
    const OpenSum reciprocal = open_quotient({1.0}, x);
    const double u = reciprocal.rounded(), square = u * u;
    return {reciprocal.large, reciprocal.small + square * (0.5 + u * polynomial(kTrigammaTail, square))};
}

// The asymptotic series of |psi^(k)(x)|, x large, k >= 1.
DoubleDouble magnitude_by_series(DoubleDouble x, Integer k)
{
    const DoubleDouble first = kFactorial[k - 1] / power(x, k);
    return first + first * series_beyond_first(x.hi, k);
}

// |psi^(k)(x)| = k! sum over n >= 0 of 1 / (x + n)^(k+1), x > 0, k >= 2; about 2^-54. The first terms, which may carry the
// sum, are formed with low parts.
DoubleDouble magnitude(DoubleDouble x, Integer k)
{
    if (x.hi >= kSeriesFrom) return magnitude_by_series(x, k);
    constexpr int kCarefulTerms = 4;
    DoubleDouble leading{0.0};
    for (int n = 0; n < kCarefulTerms && x.hi < kSeriesFrom; ++n) {
        leading = leading + 1.0 / power(x, k + 1);
        x = x + 1.0;
    }
    double rest = 0.0;
    for (; x.hi < kSeriesFrom; x = x + 1.0) rest += 1.0 / plain_power(x.hi, k + 1);
    return (leading + rest) * kFactorial[k] + magnitude_by_series(x, k);
}

// d^k/dt^k cot(t) / (1 + cot^2 t) as a polynomial in c = cot t, k >= 1: coefficients of 1, c, ..., c^(k-1).
constexpr double kCotangentDerivative[][6] = {
    {}, {-1}, {0, 2}, {-2, 0, -6}, {0, 16, 0, 24}, {-16, 0, -120, 0, -120}, {0, 272, 0, 960, 0, 720},
};

template <class T>
T cotangent_derivative(T c, T one_plus_square, Integer k)
{
    T sum{kCotangentDerivative[k][k - 1]};
    for (Integer i = k - 1; i-- > 0;) sum = sum * c + T{kCotangentDerivative[k][i]};
    return sum * one_plus_square;
}

// psi^(k)(x) for x < 0 away from the poles, k >= 1.
[[gnu::noinline]] double reflected(double x, Integer k)
{
    const auto [sine, cosine] = extended_sine_cosine_pi(x);
    const DoubleDouble derivative =
        cotangent_derivative(cosine / sine, 1.0 / square(sine), k) * power(tables::kPi, k + 1);
    // (-1)^k psi^(k)(1 - x) is -|psi^(k)(1 - x)|.
    const DoubleDouble other = two_sum(1.0, -x);
    return (-derivative - (k == 1 ? static_cast<DoubleDouble>(open_trigamma(other)) : magnitude(other, k))).rounded();
}

// psi(x), x < 1/2 and not a pole.
[[gnu::noinline]] double digamma_to_the_left(double x)
{
    if (x <= 0.0) {
        const auto [sine, cosine] = extended_sine_cosine_pi(x);
        const DoubleDouble other = open_digamma(two_sum(1.0, -x));
        return (other - tables::kPi * (cosine / sine)).rounded();
    }
    // psi(x) = psi(1 + x) - 1/x
    const OpenSum pole = open_quotient({1.0}, {x}), next = open_digamma(fast_two_sum(1.0, x));
    const DoubleDouble sum = two_sum(next.large, -pole.large);
    return sum.hi + (sum.lo + (next.small - pole.small));
}

// psi'(x) likewise.
[[gnu::noinline]] double trigamma_to_the_left(double x)
{
    if (x < -0.5) return reflected(x, 1);
    // psi'(x) = 1/x^2 + psi'(1 + x); the square of the upper half of 1/x is exact.
    const OpenSum pole = open_quotient({1.0}, {x}), next = open_trigamma(fast_two_sum(1.0, x));
    const DoubleDouble sum = two_sum(pole.large * pole.large, next.large);
    return sum.hi + (sum.lo + (pole.small * (2.0 * pole.large + pole.small) + next.small));
}

// psi^(k)(x), k >= 2.
[[gnu::noinline]] double higher_polygamma(double x, Integer k)
{
    if (x < -0.5) return reflected(x, k);
    if (x > 0.0) return -alternating(k) * magnitude({x}, k).rounded();
    const DoubleDouble pole_term = kFactorial[k] / power({x}, k + 1);
    return -alternating(k) * (pole_term + magnitude(two_sum(1.0, x), k)).rounded();
}

// psi^(k)(x), x not a pole, without over- or underflow.
KOR_INLINE double polygamma(double x, Integer k)
{
    if (k == 0) return x >= 0.5 ? open_digamma({x}).rounded() : digamma_to_the_left(x);
    if (k == 1) return x >= 0.5 ? open_trigamma({x}).rounded() : trigamma_to_the_left(x);
    return higher_polygamma(x, k);
}

// cot(pi z) and 1 + cot^2(pi z).
struct Cotangent {
    Cplx value, one_plus_square;
};

Cotangent cotangent_pi(Cplx z)
{
    constexpr double kFarFromAxis = 0.25;
    const auto [s, c] = extended_sine_cosine_pi(z.real());
    const double y = tables::kPi.hi * z.imag();
    if (std::fabs(z.imag()) < kFarFromAxis) {
        const Cplx sine{s.hi * std::cosh(y), c.hi * std::sinh(y)}, cosine{c.hi * std::cosh(y), -s.hi * std::sinh(y)};
        return {cosine / sine, 1.0 / (sine * sine)};
    }
    // q = exp(2 pi i z) above the axis, and its mirror image below: small, so nothing overflows.
    const double side = std::copysign(1.0, y);
    const Cplx turn{c.hi, side * s.hi};
    const Cplx q = std::exp(-2.0 * std::fabs(y)) * turn * turn;
    return {Cplx{0.0, -side} * (1.0 + 2.0 * q / (1.0 - q)), -4.0 * q / ((1.0 - q) * (1.0 - q))};
}

// psi^(k)(z), Re z >= 1/2.
Cplx right_half_plane(Cplx z, Integer k)
{
    Cplx sum{};
    for (; std::norm(z) < kComplexSeriesFrom * kComplexSeriesFrom; z += 1.0) sum += 1.0 / plain_power(z, k + 1);
    if (k == 0) return std::log(z) - (0.5 / z + asymptotic_series(z, 0)) - sum;
    const Cplx first = kFactorial[k - 1] / plain_power(z, k);
    return -alternating(k) * (kFactorial[k] * sum + (first + first * series_beyond_first(z, k)));
}

// What stands against psi^(k)(x).
[[gnu::noinline]] Integer unusual_argument(double x, Integer k)
{
    if (x <= 0.0 && x == std::floor(x)) return kPolygammaPole;
    const double log_size = std::log(std::fabs(x));
    if (std::log(kFactorial[k]) - (k + 1) * log_size > kLogLargest) return kPolygammaOverflow;
    if (k > 0 && x > 1.0 && std::log(kFactorial[k - 1]) - k * log_size < kLogSmallest) return kPolygammaUnderflow;
    return kPolygammaDone;
}

} // namespace

Polygamma s14aef_f(double x, Integer k)
{
    if (k < 0 || k > kLargestRealOrder) return {0.0, kPolygammaOrder};
    if (!(x > 1.0 / kOrdinary && x < kOrdinary))
        if (const Integer status = unusual_argument(x, k); status != kPolygammaDone) return {0.0, status};
    return {polygamma(x, k), kPolygammaDone};
}

Integer s14aff_f(Complex z, Integer k, Complex *value)
{
    *value = {0.0, 0.0};
    if (k < 0 || k > kLargestComplexOrder) return kPolygammaOrder;
    if (z.im == 0.0 && z.re <= 0.0 && z.re == std::floor(z.re)) return kPolygammaPole;
    const double log_size = std::log(std::hypot(z.re, z.im));
    if (std::log(kFactorial[k]) - (k + 1) * log_size > kLogLargest) return kPolygammaOverflow;
    const Cplx argument{z.re, z.im};
    Cplx result;
    if (z.im == 0.0) {
        result = polygamma(z.re, k);
    } else if (k > 0 && k * log_size > -kLogSmallest) {
        result = 0.0;
    } else if (z.re >= 0.5) {
        result = right_half_plane(argument, k);
    } else {
        const auto [cotangent, one_plus_square] = cotangent_pi(argument);
        const Cplx derivative = k == 0 ? cotangent : cotangent_derivative(cotangent, one_plus_square, k);
        result = alternating(k) * right_half_plane(1.0 - argument, k) - plain_power(tables::kPi.hi, k + 1) * derivative;
    }
    *value = {result.real(), result.imag()};
    return kPolygammaDone;
}

} // namespace kor::special
