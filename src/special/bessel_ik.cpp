// Modified Bessel functions I and K of orders 0 and 1: series, piecewise polynomials, and exponentials for large arguments.
#include "special/bessel_ik.hpp"

#include "special/bessel_ik_tables.hpp"
#include "special/bessel_support.hpp"

namespace kor::special {

namespace {

using namespace tables::bessel_ik;

// The scaled functions for large x: sqrt(c / x) (1 + u series), u = 1/x.
template <class Products, DoubleDouble c, const auto &series>
KOR_INLINE Factor<Products> large_factor(double x)
{
    const RootOfQuotient<Products> size{c, x};
    const double u = size.quotient * (1.0 / c.hi);
    return size.factor.times_one_plus(u * polynomial(series, u));
}

template <DoubleDouble c, const auto &series>
double large_scaled(double x)
{
    // Where the series is 1 to the last bit, and the root is taken out of reach of underflow.
    constexpr double kHuge = 0x1p500, kScale = 0x1p-600, kRootOfScale = 0x1p-300;
    if (x >= kHuge) [[unlikely]]
        return RootOfQuotient<SplitProducts>{c, x * kScale}.factor.rounded() * kRootOfScale;
    return with_exact_products([x]<class P>(P) KOR_INLINE_LAMBDA { return large_factor<P, c, series>(x).rounded(); });
}

// The same times exp(sign x): neither factor need be representable when the product is.
template <DoubleDouble c, const auto &series, int sign>
double large(double x)
{
    return with_exact_products([x]<class P>(P) KOR_INLINE_LAMBDA {
        const Exponential e = extended_exp({sign * x});
        return times_power_of_two((large_factor<P, c, series>(x) * e.value).rounded(), e.exponent);
    });
}

// Next to 0 the value is -ln(x), or the pole, and a constant; the rest is small against them.
KOR_INLINE OpenSum small_k0(double x)
{
    const double z = x * x;
    const OpenSum log_x = open_log(x), constant = kSmallK0.open(z);
    const DoubleDouble sum = fast_two_sum(-log_x.large, constant.large);
    return {sum.hi, sum.lo + ((constant.small - log_x.small) - log_x.rounded() * (z * polynomial(kSmallI0, z)))};
}

KOR_INLINE OpenSum small_k1(double x)
{
    const double z = x * x;
    const OpenSum pole = open_quotient({1.0}, {x});
    const double rest = x * (polynomial(kSmallK1, z) + std::log(x) * polynomial(kSmallI1, z));
    return {pole.large, pole.small + rest};
}

template <const auto &table, const auto &series>
KOR_INLINE double growing(double a)
{
    return a < table.end() ? table(a) : large<kHalfInversePi, series, 1>(a);
}

template <const auto &table, const auto &series>
KOR_INLINE double growing_scaled(double a)
{
    return a < table.end() ? table(a) : large_scaled<kHalfInversePi, series>(a);
}

template <OpenSum (*small)(double), const auto &table, const auto &series>
KOR_INLINE double decaying(double x)
{
    if (x < kSmallArgument) return small(x).rounded();
    return x < table.end() ? table(x) : large<kHalfPi, series, -1>(x);
}

template <OpenSum (*small)(double), const auto &table, const auto &series>
KOR_INLINE double decaying_scaled(double x)
{
    if (x < kSmallArgument) return times_small_exponential(small(x), x);
    return x < table.end() ? table(x) : large_scaled<kHalfPi, series>(x);
}

} // namespace

double bessel_i0(double x) { return growing<kI0, kLargeI0>(std::fabs(x)); }
double bessel_i1(double x) { return std::copysign(growing<kI1, kLargeI1>(std::fabs(x)), x); }
double bessel_k0(double x) { return decaying<small_k0, kK0, kLargeK0>(x); }
double bessel_k1(double x) { return decaying<small_k1, kK1, kLargeK1>(x); }

double scaled_bessel_i0(double x) { return growing_scaled<kScaledI0, kLargeI0>(std::fabs(x)); }
double scaled_bessel_i1(double x) { return std::copysign(growing_scaled<kScaledI1, kLargeI1>(std::fabs(x)), x); }
double scaled_bessel_k0(double x) { return decaying_scaled<small_k0, kScaledK0, kLargeK0>(x); }
double scaled_bessel_k1(double x) { return decaying_scaled<small_k1, kScaledK1, kLargeK1>(x); }

} // namespace kor::special
