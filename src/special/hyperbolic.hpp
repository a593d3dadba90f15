// What the hyperbolic functions and their inverses share.
#pragma once

#include "special/elementary.hpp"
#include "special/hyperbolic_tables.hpp"

namespace kor::special {

// x + x^3 p(x^2): an odd function with slope 1 at zero, where the second term is below x / 5.
template <std::size_t N>
KOR_INLINE double odd_function(const std::array<double, N> &series, double x)
{
    const double square = x * x;
    return x + x * (square * polynomial(series, square));
}

// ln(2 x) for large x; 2 x may overflow.
KOR_INLINE DoubleDouble log_of_twice(double x) { return extended_log(x) + tables::kLn2; }

// ln(2 x) + series(1/x^2) / x^2: arcsinh and arccosh of x >= 16.
template <std::size_t N>
KOR_INLINE double with_tail(DoubleDouble log, const std::array<double, N> &series, double x)
{
    const double square = 1.0 / (x * x);
    return log.hi + (log.lo + square * polynomial(series, square));
}

} // namespace kor::special
