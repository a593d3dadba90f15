// What the Bessel, Airy and Kelvin functions share: constants, and the factors that
// make up the functions for large ones. All of it takes care that one rounding decides the result, and that no division
// or branch is there which a product can replace.
#pragma once

#include "special/elementary.hpp"
#include "special/evaluate.hpp"

namespace kor::special {

inline constexpr DoubleDouble kTwoOverPi{0x1.45f306dc9c883p-1, -0x1.6b01ec5417056p-55};
inline constexpr DoubleDouble kHalfPi{0x1.921fb54442d18p+0, 0x1.1a62633145c07p-54};
inline constexpr DoubleDouble kQuarterPi{0x1.921fb54442d18p-1, 0x1.1a62633145c07p-55};
inline constexpr DoubleDouble kThreeQuarterPi{0x1.2d97c7f3321d2p+1, 0x1.a79394c9e8a0ap-54};
inline constexpr DoubleDouble kEighthPi{0x1.921fb54442d18p-2, 0x1.1a62633145c07p-56};
inline constexpr DoubleDouble kHalfInversePi{0x1.45f306dc9c883p-3, -0x1.6b01ec5417056p-57};
inline constexpr DoubleDouble kRootHalf{0x1.6a09e667f3bcdp-1, -0x1.bdd3413b26456p-55};
inline constexpr DoubleDouble kInverseRootPi{0x1.20dd750429b6dp-1, 0x1.1ae3a914fed80p-57};

// Where the piecewise polynomials of functions with a logarithm begin; below it their series hold.
inline constexpr double kSmallArgument = 0.25;

// (exp(x) - 1 - x) / x^2 for 0 <= x <= 1/4, relative error 2^-53.
inline constexpr std::array<double, 11> kGrowthSeries = {1.0 / 2,       1.0 / 6,        1.0 / 24,       1.0 / 120,
                                                         1.0 / 720,     1.0 / 5040,     1.0 / 40320,    1.0 / 362880,
                                                         1.0 / 3628800, 1.0 / 39916800, 1.0 / 479001600};

// value exp(x) for the same x.
KOR_INLINE double times_small_exponential(DoubleDouble value, double x)
{
    const DoubleDouble linear = two_product(value.hi, x), sum = fast_two_sum(value.hi, linear.hi);
    const double rest = linear.hi * (x * polynomial(kGrowthSeries, x));
    return sum.hi + (sum.lo + ((linear.lo + (value.lo + value.lo * x)) + rest));
}

// How exact products are formed: by splitting the factors, or by a fused multiplication where the processor has it. The
// results are the same to the last bit.
struct SplitProducts {
    KOR_INLINE static DoubleDouble product(double a, double b) { return two_product(a, b); }
    KOR_INLINE static DoubleDouble square(double a) { return two_square(a); }
};
struct FusedProducts {
    KOR_INLINE static DoubleDouble product(double a, double b)
    {
        const double rounded = a * b;
        return {rounded, __builtin_fma(a, b, -rounded)};
    }
    KOR_INLINE static DoubleDouble square(double a) { return product(a, a); }
};

// f(FusedProducts{}) or f(SplitProducts{}), as the processor has it; f is a lambda marked KOR_INLINE_LAMBDA.
#define KOR_INLINE_LAMBDA __attribute__((always_inline))
#if defined(__x86_64__) || defined(__i386__)
template <class Function>
[[gnu::target("fma"), gnu::noinline]] double with_fused_products(Function f)
{
    return f(FusedProducts{});
}
template <class Function>
KOR_INLINE double with_exact_products(Function f)
{
    return __builtin_cpu_supports("fma") ? with_fused_products(f) : f(SplitProducts{});
}
#else
template <class Function>
KOR_INLINE double with_exact_products(Function f)
{
    return f(SplitProducts{});
}
#endif

// A positive number root (1 + excess), excess of the size of a rounding error or of a correction that is small.
template <class Products>
struct Factor {
    double root, excess;

    // Times a number of two doubles.
    KOR_INLINE DoubleDouble operator*(DoubleDouble a) const
    {
        const DoubleDouble product = Products::product(root, a.hi);
        return {product.hi, product.lo + (root * a.lo + product.hi * excess)};
    }
    KOR_INLINE double rounded() const { return root + root * excess; }
    KOR_INLINE Factor times_one_plus(double correction) const { return {root, excess + correction}; }
};

// sqrt(c / x), and the quotient, rounded.
template <class Products>
struct RootOfQuotient {
    Factor<Products> factor;
    double quotient;

    // x from 2^-500 to 2^500. The remainders of the quotient and of its root are exact; that they refer to c and c / x is
    // mended by products alone.
    KOR_INLINE RootOfQuotient(DoubleDouble c, double x) : quotient{c.hi / x}
    {
        const double root = std::sqrt(quotient);
        const DoubleDouble product = Products::product(quotient, x), square = Products::square(root);
        const double of_quotient = ((c.hi - product.hi) - product.lo) + c.lo;
        const double of_root = (quotient - square.hi) - square.lo;
        factor = {root, (of_quotient + of_root * x) * (0.5 / c.hi)};
    }
};

// size cos(angle) and size sin(angle): what oscillating functions are for large arguments. Of sine and cosine the one that
// the quadrant asks for is computed by one polynomial with selected coefficients: nobody could predict a branch.
template <class Products>
class Oscillation {
  public:
    KOR_INLINE Oscillation(Factor<Products> size, DoubleDouble angle) : size_{size}, angle_{reduce_angle(angle)} {}

    KOR_INLINE DoubleDouble cosine() const { return size_ * trigonometric(angle_.quadrant + 1); }
    KOR_INLINE DoubleDouble sine() const { return size_ * trigonometric(angle_.quadrant); }

  private:
    // sin(r + quadrant pi/2), |r| <= pi/4 and a little: r + r z (...) or 1 - z/2 + z^2 (...), z = r^2.
    KOR_INLINE DoubleDouble trigonometric(int quadrant) const
    {
        static constexpr std::array<double, 8> kSeries[2] = {
            {-1.0 / 6, 1.0 / 120, -1.0 / 5040, 1.0 / 362880, -1.0 / 39916800, 1.0 / 6227020800, -1.0 / 1307674368000,
             1.0 / 355687428096000},
            {1.0 / 24, -1.0 / 720, 1.0 / 40320, -1.0 / 3628800, 1.0 / 479001600, -1.0 / 87178291200,
             1.0 / 20922789888000, -1.0 / 6402373705728000}};
        const bool even = (quadrant & 1) == 0;
        const double r = angle_.r.hi, z = r * r, half = 0.5 * z;
        const double tail = polynomial(kSeries[quadrant & 1], z);
        const double lead = even ? r : 1.0 - half;
        const double weight = even ? r * z : z * z;
        const double low = even ? angle_.r.lo * (1.0 - half) : ((1.0 - lead) - half) - r * angle_.r.lo;
        const double sign = 1 - (quadrant & 2);
        return fast_two_sum(sign * lead, sign * (low + weight * tail));
    }

    Factor<Products> size_;
    ReducedAngle angle_;
};

} // namespace kor::special
