// Modified Bessel functions I and K of orders 0 and 1: series, piecewise polynomials, and exponentials for large arguments.
#include "special/bessel_ik.hpp"

#include "special/bessel_ik_tables.hpp"
#include "special/bessel_support.hpp"

namespace kor::special {

namespace {

using namespace tables::bessel_ik;

// The scaled functions for large x: a series in 1/x over the square root of x.
template <class Series>
DoubleDouble large_scaled(const Series &series, double x)
{
    return series(1.0 / x) / sqrt(DoubleDouble{x});
}

// value exp(x), neither factor having to be representable when the product is.
double times_exponential(DoubleDouble value, double x)
{
    const Exponential e = extended_exp({x});
    return times_power_of_two((value * e.value).rounded(), e.exponent);
}

// Next to 0 the value is -ln(x), or the pole, and a constant; the rest is small against them.
DoubleDouble small_k0(double x)
{
    const double z = x * x;
    const DoubleDouble log_x = extended_log_of(x);
    return kSmallK0(z) - log_x + -log_x.hi * (z * polynomial(kSmallI0, z));
}

DoubleDouble small_k1(double x)
{
    const double z = x * x;
    const DoubleDouble pole = two_quotient(1.0, x);
    const double rest = x * (polynomial(kSmallK1, z) + extended_log_of(x).hi * polynomial(kSmallI1, z));
    return fast_two_sum(pole.hi, pole.lo + rest);
}

template <class Table, class Series>
double growing(const Table &table, const Series &large, double a)
{
    return a < table.end() ? table(a) : times_exponential(large_scaled(large, a), a);
}

template <class Table, class Series>
double growing_scaled(const Table &table, const Series &large, double a)
{
    return a < table.end() ? table(a) : large_scaled(large, a).rounded();
}

template <class Table, class Series>
double decaying(DoubleDouble (*small)(double), const Table &table, const Series &large, double x)
{
    if (x < kSmallArgument) return small(x).rounded();
    return x < table.end() ? table(x) : times_exponential(large_scaled(large, x), -x);
}

template <class Table, class Series>
double decaying_scaled(DoubleDouble (*small)(double), const Table &table, const Series &large, double x)
{
    if (x < kSmallArgument) return times_exponential(small(x), x);
    return x < table.end() ? table(x) : large_scaled(large, x).rounded();
}

} // namespace

double bessel_i0(double x) { return growing(kI0, kLargeI0, std::fabs(x)); }
double bessel_i1(double x) { return std::copysign(growing(kI1, kLargeI1, std::fabs(x)), x); }
double bessel_k0(double x) { return decaying(small_k0, kK0, kLargeK0, x); }
double bessel_k1(double x) { return decaying(small_k1, kK1, kLargeK1, x); }

double scaled_bessel_i0(double x) { return growing_scaled(kScaledI0, kLargeI0, std::fabs(x)); }
double scaled_bessel_i1(double x) { return std::copysign(growing_scaled(kScaledI1, kLargeI1, std::fabs(x)), x); }
double scaled_bessel_k0(double x) { return decaying_scaled(small_k0, kScaledK0, kLargeK0, x); }
double scaled_bessel_k1(double x) { return decaying_scaled(small_k1, kScaledK1, kLargeK1, x); }

} // namespace kor::special
