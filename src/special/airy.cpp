// Airy functions and their derivatives: piecewise polynomials; exponentials, or modulus and phase, for large arguments.
#include "special/airy.hpp"

#include "special/airy_tables.hpp"
#include "special/bessel_support.hpp"

namespace kor::special {

namespace {

using namespace tables::airy;

// Where Ai and its derivative have long underflowed, and the powers of x below have not overflowed.
constexpr double kUnderflow = 200.0;

constexpr DoubleDouble kTwoThirds{0x1.5555555555555p-1, 0x1.5555555555555p-55};
constexpr DoubleDouble kHalfInverseRootPi = kInverseRootPi.scaled(0.5);

// The powers of x > 0 on which everything depends, and zeta = 2/3 x^(3/2).
template <class Products>
struct Powers {
    double inverse, inverse_three_halves; // rounded
    Factor<Products> fourth_root;
    DoubleDouble zeta;

    KOR_INLINE explicit Powers(double x)
    {
        // The remainders of the roots are exact, and divided by products.
        inverse = 1.0 / x;
        const double root = std::sqrt(x), second_root = std::sqrt(root);
        const DoubleDouble square = Products::square(root), second_square = Products::square(second_root);
        const double half_inverse_root = 0.5 * root * inverse;
        const double excess = ((x - square.hi) - square.lo) * (0.5 * inverse);
        const double second_excess = ((root - second_square.hi) - second_square.lo) * half_inverse_root;
        fourth_root = {second_root, second_excess + 0.5 * excess};
        inverse_three_halves = root * inverse * inverse;

        const DoubleDouble cube = Products::product(x, root);
        const DoubleDouble product = Products::product(kTwoThirds.hi, cube.hi);
        const double cube_lo = cube.lo + cube.hi * excess;
        zeta = fast_two_sum(product.hi, product.lo + (kTwoThirds.hi * cube_lo + kTwoThirds.lo * cube.hi));
    }

    KOR_INLINE Factor<Products> inverse_fourth_root() const
    {
        const double quotient = 1.0 / fourth_root.root;
        const DoubleDouble product = Products::product(quotient, fourth_root.root);
        return {quotient, ((1.0 - product.hi) - product.lo) - fourth_root.excess};
    }
    KOR_INLINE double inverse_zeta() const { return 1.5 * inverse_three_halves; }
    KOR_INLINE double inverse_cube() const { return inverse * inverse * inverse; }

    // x^(1/4) or its inverse.
    template <bool slope>
    KOR_INLINE Factor<Products> size() const
    {
        return slope ? fourth_root : inverse_fourth_root();
    }
};

// constant size (1 + series / zeta) exp(sign zeta) for large positive x.
template <bool slope, DoubleDouble constant, const auto &series, int sign>
double exponential(double x)
{
    return with_exact_products([x]<class P>(P) KOR_INLINE_LAMBDA {
        const Powers<P> power{x};
        const Exponential e = extended_exp(power.zeta.scaled(sign));
        const double t = power.inverse_zeta();
        const Factor<P> size = power.template size<slope>().times_one_plus(t * polynomial(series, t));
        return times_power_of_two((size * (constant * e.value)).rounded(), e.exponent);
    });
}

// Ai = cosine / sqrt(pi), Bi = -sine / sqrt(pi) at -x for large x, likewise for the derivatives; series in w = 1/x^3.
template <class Products, bool slope>
KOR_INLINE Oscillation<Products> oscillation(double x)
{
    const Powers<Products> power{x};
    const double w = power.inverse_cube();
    const double phase = power.inverse_three_halves * polynomial(slope ? kPhaseSlope : kPhase, w);
    return {power.template size<slope>().times_one_plus(w * polynomial(slope ? kModulusSlope : kModulus, w)),
            power.zeta - ((slope ? kThreeQuarterPi : kQuarterPi) + phase)};
}

template <bool slope>
double large_ai(double x)
{
    return with_exact_products(
        [x]<class P>(P) KOR_INLINE_LAMBDA { return (kInverseRootPi * oscillation<P, slope>(x).cosine()).rounded(); });
}

template <bool slope>
double large_bi(double x)
{
    return with_exact_products(
        [x]<class P>(P) KOR_INLINE_LAMBDA { return (-kInverseRootPi * oscillation<P, slope>(x).sine()).rounded(); });
}

} // namespace

double airy_ai(double x)
{
    if (x < kAi.begin()) return large_ai<false>(-x);
    if (x < kAi.end()) return kAi(x);
    return x > kUnderflow ? 0.0 : exponential<false, kHalfInverseRootPi, kLargeAi, -1>(x);
}

double airy_bi(double x)
{
    if (x < kBi.begin()) return large_bi<false>(-x);
    return x < kBi.end() ? kBi(x) : exponential<false, kInverseRootPi, kLargeBi, 1>(x);
}

double airy_ai_slope(double x)
{
    if (x < kAiSlope.begin()) return large_ai<true>(-x);
    if (x < kAiSlope.end()) return kAiSlope(x);
    return x > kUnderflow ? -0.0 : exponential<true, -kHalfInverseRootPi, kLargeAiSlope, -1>(x);
}

double airy_bi_slope(double x)
{
    if (x < kBiSlope.begin()) return large_bi<true>(-x);
    return x < kBiSlope.end() ? kBiSlope(x) : exponential<true, kInverseRootPi, kLargeBiSlope, 1>(x);
}

} // namespace kor::special
