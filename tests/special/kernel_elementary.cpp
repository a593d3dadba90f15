// The functions with a low part, on which all special functions stand, against arithmetic of 64 bits.
#include <cmath>

#include <gtest/gtest.h>

#include "special/elementary.hpp"
#include "special/erf.hpp"
#include "special/gamma.hpp"
#include "special/incomplete_gamma.hpp"

namespace kor::special {
namespace {

using Long = long double;

Long sum(DoubleDouble x) { return static_cast<Long>(x.hi) + static_cast<Long>(x.lo); }
Long sum(const Exponential &x) { return std::ldexp(sum(x.value), x.exponent); }

// The C library's long double functions are good to 2^-63; nothing here promises more than 2^-59.
constexpr double kRelative = 0x1p-58;

void expect_near(Long computed, Long exact, double relative, double x)
{
    EXPECT_LE(std::fabs(computed - exact), relative * std::fabs(exact)) << x;
}

// `count` points from `from` to `to`, evenly in the logarithm, none of them tidy.
template <class F>
void for_points(double from, double to, int count, const F &f)
{
    for (int k = 0; k < count; ++k) {
        const double t = (k + 0.37) / count;
        f(std::exp(std::log(from) * (1.0 - t) + std::log(to) * t));
    }
}

TEST(Extended, ArithmeticOfTwoDoubles)
{
    const DoubleDouble a = two_sum(3.7, 1.3e-17), b = two_product(1.1, 2.3);
    const Long sa = static_cast<Long>(3.7) + 1.3e-17, sb = static_cast<Long>(1.1) * static_cast<Long>(2.3);
    expect_near(sum(a * b), sa * sb, 0x1p-62, 0);
    expect_near(sum(a / b), sa / sb, 0x1p-62, 0);
    expect_near(sum(a + b), sa + sb, 0x1p-62, 0);
    expect_near(sum(sqrt(a)), std::sqrt(sa), 0x1p-62, 0);
    // What a product of doubles rounds away, to the last bit: (1 + 2^-30)(1 - 2^-30) = 1 - 2^-60.
    const DoubleDouble exact = two_product(1.0 + 0x1p-30, 1.0 - 0x1p-30);
    EXPECT_EQ(exact.hi, 1.0);
    EXPECT_EQ(exact.lo, -0x1p-60);
    EXPECT_EQ(sum(1.0 + two_square(0x1p-40)), 1.0L + 0x1p-80L);
}

TEST(Extended, ExponentialAndLogarithm)
{
    for_points(1e-18, 11000.0, 500, [](double x) {
        if (x < 8000.0) {
            expect_near(sum(extended_exp({x})), std::exp(static_cast<Long>(x)), kRelative, x);
            expect_near(sum(extended_exp({-x})), std::exp(-static_cast<Long>(x)), kRelative, -x);
        }
    });
    for_points(5e-324, 1.7e308, 500,
               [](double x) { expect_near(sum(extended_log(x)), std::log(static_cast<Long>(x)), kRelative, x); });
    // Next to 1, where the low part is all there is.
    for_points(1e-300, 0.9, 500, [](double x) {
        expect_near(sum(extended_log(two_sum(1.0, x))), std::log1p(static_cast<Long>(x)), kRelative, x);
        expect_near(sum(extended_log(two_sum(1.0, -x))), std::log1p(-static_cast<Long>(x)), kRelative, -x);
    });
}

TEST(Extended, OpenLogarithm)
{
    for_points(5e-324, 1.7e308, 500,
               [](double x) { expect_near(sum(open_log(x)), std::log(static_cast<Long>(x)), kRelative, x); });
    for_points(1e-300, 0x1p36, 1000, [](double x) {
        expect_near(sum(open_log(1.0 + x)), std::log(static_cast<Long>(1.0 + x)), kRelative, x);
        expect_near(sum(open_log_one_plus(x)), std::log1p(static_cast<Long>(x)), kRelative, x);
        if (x < 1.0) expect_near(sum(open_log_one_plus(-x)), std::log1p(-static_cast<Long>(x)), kRelative, -x);
    });
}

TEST(Extended, SineAndCosine)
{
    for_points(1e-10, 1e16, 1000, [](double x) {
        const auto [s, c] = extended_sine_cosine_of({x});
        expect_near(sum(s), std::sin(static_cast<Long>(x)), kRelative, x);
        expect_near(sum(c), std::cos(static_cast<Long>(x)), kRelative, x);
        const auto [minus_s, same_c] = extended_sine_cosine_of({-x});
        EXPECT_EQ(minus_s.hi, -s.hi);
        EXPECT_EQ(same_c.hi, c.hi);
    });
    // A low part of the angle turns it: sin(x + d) = sin x + d cos x.
    const auto [s, c] = extended_sine_cosine_of({1e9, 1e-8});
    const Long turned = std::sin(1e9L) * std::cos(1e-8L) + std::cos(1e9L) * std::sin(1e-8L);
    expect_near(sum(s), turned, kRelative, 1e9);
    for (const double x : {0.0, 1.0, -3.0, 1e17, 0x1p60}) EXPECT_EQ(extended_sine_pi(x).hi, 0.0);
    for (const double x : {0.5, -1.5, 1e9 + 0.5}) EXPECT_EQ(std::fabs(extended_sine_pi(x).hi), 1.0);
    for_points(1e-10, 1e3, 500, [](double x) {
        const Long turn = std::sin(3.14159265358979323846264L * std::fmod(static_cast<Long>(x), 2.0L));
        EXPECT_LE(std::fabs(sum(extended_sine_pi(x)) - turn), 1e-18L) << x;
        EXPECT_LE(std::fabs(sum(extended_sine_cosine_pi(x).sine) - turn), 1e-18L) << x;
        EXPECT_EQ(extended_sine_pi(-x).hi, -extended_sine_pi(x).hi);
    });
}

TEST(Extended, GammaKeepsItsLowPart)
{
    for_points(0.5, 171.0, 300, [](double x) {
        expect_near(sum(extended_gamma({x})), std::tgamma(static_cast<Long>(x)), 0x1p-54, x);
        EXPECT_LE(std::fabs(sum(extended_log_gamma(x)) - std::lgamma(static_cast<Long>(x))),
                  0x1p-54 * std::fabs(std::lgamma(static_cast<Long>(x))) + 0x1p-62)
            << x;
    });
    // Stirling's correction is what is left of ln Gamma.
    for (const double x : {12.0, 33.3, 1e3})
        EXPECT_NEAR(static_cast<double>(sum(stirling_correction(x))) * x, 1.0 / 12 - 1.0 / (360 * x * x), 1e-7);
}

// For the distributions: the probability of a Poisson count, and the deviance in its exponent.
TEST(Extended, PoissonTermAndDeviance)
{
    for (const double a : {0.1, 3.0, 15.9, 16.0, 40.5, 1000.0})
        for (const double ratio : {0.2, 0.9, 0.999, 1.0, 1.01, 1.5, 3.0}) {
            const double x = a * ratio;
            const Long log_term = a * std::log(static_cast<Long>(x)) - x - std::lgamma(static_cast<Long>(a) + 1.0L);
            expect_near(sum(extended_poisson_term(a, x)), std::exp(log_term), 4e-16, x);
            const Long mu = (static_cast<Long>(x) - a) / a;
            EXPECT_LE(std::fabs(sum(extended_deviance(a, x)) - a * (mu - std::log1p(mu))), 1e-15 * a * mu * mu) << x;
        }
}

TEST(Extended, ScaledErfc)
{
    EXPECT_NEAR(scaled_erfc(100.0), 0.005641613782989433, 1e-18);
    EXPECT_NEAR(scaled_erfc(0.25), 0.7703465477309967, 2e-16);
}

} // namespace
} // namespace kor::special
