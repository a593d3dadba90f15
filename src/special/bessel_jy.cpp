// Bessel functions J and Y of orders 0 and 1: series, piecewise polynomials, and modulus and phase for large arguments.
#include "special/bessel_jy.hpp"

#include "special/bessel_jy_tables.hpp"
#include "special/bessel_support.hpp"

namespace kor::special {

namespace {

using namespace tables::bessel_jy;

// x - shift + correction, or the same less whole turns.
KOR_INLINE DoubleDouble turned(double x, DoubleDouble shift, double correction)
{
    constexpr double kLarge = 0x1p20;
    if (x < kLarge) [[likely]] {
        const DoubleDouble sum = two_sum(x, -shift.hi);
        return {sum.hi, sum.lo + (correction - shift.lo)};
    }
    // Taken off x itself, which is exact, quarter turns cost no digit of the phase, however large x is.
    const ReducedAngle reduced = reduce_angle(DoubleDouble{x});
    return reduced.r + (kHalfPi * static_cast<double>(reduced.quadrant) - shift + correction);
}

// J + i Y as modulus and phase: sqrt(2 / (pi x)) (1 + z modulus) exp(i (x - shift + phase / x)), series in z = 1/x^2.
template <class Products, class Series>
KOR_INLINE Oscillation<Products> oscillation(double x, DoubleDouble shift, const Series &modulus, const Series &phase)
{
    const RootOfQuotient<Products> size{kTwoOverPi, x};
    const double u = size.quotient * kHalfPi.hi, z = u * u;
    return {size.factor.times_one_plus(z * polynomial(modulus, z)), turned(x, shift, u * polynomial(phase, z))};
}

double large_j0(double x)
{
    return with_exact_products([x]<class P>(P) KOR_INLINE_LAMBDA {
        return oscillation<P>(x, kQuarterPi, kModulus0, kPhase0).cosine().rounded();
    });
}

double large_y0(double x)
{
    return with_exact_products([x]<class P>(P) KOR_INLINE_LAMBDA {
        return oscillation<P>(x, kQuarterPi, kModulus0, kPhase0).sine().rounded();
    });
}

double large_j1(double x)
{
    return with_exact_products([x]<class P>(P) KOR_INLINE_LAMBDA {
        return oscillation<P>(x, kThreeQuarterPi, kModulus1, kPhase1).cosine().rounded();
    });
}

double large_y1(double x)
{
    return with_exact_products([x]<class P>(P) KOR_INLINE_LAMBDA {
        return oscillation<P>(x, kThreeQuarterPi, kModulus1, kPhase1).sine().rounded();
    });
}

// Next to 0 the value is ln(x) 2/pi, or the pole, and a constant; the rest is small against them.
double small_y0(double x)
{
    const double z = x * x;
    const OpenSum product = open_product(kTwoOverPi, open_log(x)), constant = kSmallY0.open(z);
    const DoubleDouble sum = fast_two_sum(product.large, constant.large);
    return sum.hi + (sum.lo + (product.small + constant.small + product.rounded() * (z * polynomial(kSmallJ0, z))));
}

double small_y1(double x)
{
    const double z = x * x;
    const double log_part = kTwoOverPi.hi * std::log(x);
    const DoubleDouble pole = -kTwoOverPi / x;
    return pole.hi + (pole.lo + x * (polynomial(kSmallY1, z) + log_part * polynomial(kSmallJ1, z)));
}

} // namespace

double bessel_j0(double x)
{
    const double a = std::fabs(x);
    return a < kJ0.end() ? kJ0(a) : large_j0(a);
}

double bessel_j1(double x)
{
    const double a = std::fabs(x);
    const double value = a < kJ1.end() ? kJ1(a) : large_j1(a);
    return std::signbit(x) ? -value : value;
}

double bessel_y0(double x)
{
    if (x < kSmallArgument) return small_y0(x);
    return x < kY0.end() ? kY0(x) : large_y0(x);
}

double bessel_y1(double x)
{
    if (x < kSmallArgument) return small_y1(x);
    return x < kY1.end() ? kY1(x) : large_y1(x);
}

} // namespace kor::special
