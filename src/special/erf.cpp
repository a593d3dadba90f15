// The error function, its complement, and the tails of the normal distribution.
//
// In the tails exp(-x^2) loses as many bits as x^2 has before the point, unless x^2 is taken with its rounding error, and
// x / sqrt 2 with its own: both go through the extended exponential.
#include "special/erf.hpp"

namespace kor::special {

namespace {

constexpr double kNearZero = 0.5;
constexpr double kNormalTailIsZeroFrom = 39.0;

// exp(-square) scaled_erfc(z) 2^exponent, square = z^2 with its rounding error.
KOR_INLINE double tail(DoubleDouble z, DoubleDouble square, int exponent = 0)
{
    const OpenExponential e = open_exp(-square);
    return times_power_of_two(tables::kScaledErfc.times_split(e.value, z).rounded(), e.exponent + exponent);
}

// erfc(z) for |z| <= 1/2 and for negative z down to -6.5.
KOR_INLINE DoubleDouble complement(DoubleDouble z)
{
    if (std::fabs(z.hi) < kNearZero) return 1.0 - extended_erf_near_zero(z);
    return 1.0 + extended_erf_positive(-z);
}

} // namespace

double erf(double x)
{
    if (std::isnan(x)) return x;
    const double size = std::fabs(x);
    if (size >= kErfIsOneFrom) return std::copysign(1.0, x);
    if (size < kNearZero) return extended_erf_near_zero({x}).rounded();
    return std::copysign(extended_erf_positive({size}).rounded(), x);
}

double erfc(double x)
{
    if (std::isnan(x)) return x;
    if (x >= kErfcIsZeroFrom) return 0.0;
    if (x <= -kErfIsOneFrom) return 2.0;
    if (x < kNearZero) return complement({x}).rounded();
    return tail({x}, two_square(x));
}

double scaled_erfc(double x)
{
    constexpr double kReciprocalFrom = 32.0;
    constexpr double kRootPi = 1.7724538509055161;
    if (std::isnan(x)) return x;
    if (x < kReciprocalFrom) return extended_scaled_erfc({x}).rounded();
    const double u = 1.0 / x, v = u * u;
    // The asymptotic series: five terms are enough from 32 on.
    return u / kRootPi * (1.0 - v * (0.5 - v * (0.75 - v * (1.875 - v * 6.5625))));
}

double normal_upper_tail(double x)
{
    if (std::isnan(x)) return x;
    if (x >= kNormalTailIsZeroFrom) return 0.0;
    if (x <= -kNormalTailIsZeroFrom) return 1.0;
    const DoubleDouble z = x * tables::kRootHalf;
    if (z.hi <= -kErfIsOneFrom) return 1.0;
    if (z.hi < kNearZero) return 0.5 * complement(z).rounded();
    return tail(z, two_square(x).scaled(0.5), -1);
}

} // namespace kor::special
