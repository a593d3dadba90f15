// The error function, its complement, and the tails of the normal distribution.
#pragma once

#include "special/elementary.hpp"
#include "special/erf_tables.hpp"
#include "special/evaluate.hpp"

namespace kor::special {

inline constexpr double kErfcIsZeroFrom = 26.6; // erfc underflows a little below
inline constexpr double kErfIsOneFrom = 6.25;   // and erfc of the negative is 2

// exp(z^2) erfc(z), z in [0, 32); relative error 2^-56.
KOR_INLINE DoubleDouble extended_scaled_erfc(DoubleDouble z)
{
    return z.hi < 0.5 ? tables::kScaledErfcNearZero(z) : tables::kScaledErfc(z);
}

// erf(z), |z| <= 1/2, relative error 2^-56.
KOR_INLINE DoubleDouble extended_erf_near_zero(DoubleDouble z) { return tables::kErfSlope.times(z, z.hi * z.hi); }

// erf(z), z in [1/2, 6.5), relative error 2^-56.
KOR_INLINE DoubleDouble extended_erf_positive(DoubleDouble z) { return tables::kErf(z); }

double erf(double x);
double erfc(double x);

// exp(x^2) erfc(x) for x >= 0; about 1 ulp.
double scaled_erfc(double x);

// The upper tail of the standard normal distribution, 1/2 erfc(x / sqrt 2).
double normal_upper_tail(double x);

} // namespace kor::special
