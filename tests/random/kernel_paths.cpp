// Every path of the vector code, whatever processor it is for, gives the bits of the plain one; and the elementary functions
// keep their accuracy.
#include <cmath>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "random/beta_laws.hpp"
#include "random/fill_uniform.hpp"
#include "random/gamma_laws.hpp"
#include "random/lanes.hpp"
#include "random/poisson_law.hpp"
#include "random/recurrence.hpp"
#include "support/ulp.hpp"

namespace kor::random {
namespace {

using Values = std::vector<double>;
constexpr int kPairs = 1024;

// The loops of the samplers, once for each generation of processors.
#define KOR_LOOPS(suffix, attribute)                                                                                   \
    attribute void box_muller_##suffix(const double *u, double *z) { box_muller_loop(kPairs, u, z); }                  \
    attribute void exponential_##suffix(double *x) { exponential_loop(2 * kPairs, 1.75, x); }                          \
    template <class Law>                                                                                               \
    attribute void trials_##suffix(Law law, const double *u, double *x, double *taken)                                 \
    {                                                                                                                  \
        trial_loop(law, kPairs, u, x, taken);                                                                          \
    }                                                                                                                  \
    attribute Values all_##suffix(const Values &u)                                                                     \
    {                                                                                                                  \
        Values all(2 * kPairs), x(kPairs), exponential = u;                                                            \
        Values taken(kPairs);                                                                                          \
        box_muller_##suffix(u.data(), all.data());                                                                     \
        exponential_##suffix(exponential.data());                                                                      \
        all.insert(all.end(), exponential.begin(), exponential.end());                                                 \
        const auto add = [&](auto law) {                                                                               \
            trials_##suffix(law, u.data(), x.data(), taken.data());                                                    \
            all.insert(all.end(), x.begin(), x.end());                                                                 \
            all.insert(all.end(), taken.begin(), taken.end());                                                         \
        };                                                                                                             \
        for (const double shape : {1e-3, 0.4, 0.999}) add(GammaBelow1{shape});                                         \
        for (const double shape : {1.001, 3.7, 1e6}) add(GammaAbove1{shape});                                          \
        for (const double shape : {1e-3, 0.4, 0.999}) add(BetaBelow1{shape, 1.7});                                     \
        for (const double shape : {1.001, 3.7, 1e6}) add(BetaAbove1{shape, 1.7});                                      \
        return all;                                                                                                    \
    }

// One element at a time: the reference.
KOR_LOOPS(scalar, __attribute__((optimize("no-tree-vectorize"))))
#if defined(__x86_64__) && !defined(KOR_SANITIZED)
KOR_LOOPS(v3, __attribute__((target("arch=x86-64-v3"))))
KOR_LOOPS(v4, __attribute__((target("arch=x86-64-v4"))))
#endif

Values uniform_pairs(std::uint64_t start)
{
    Values u(2 * kPairs);
    fill_uniform(start, 2 * kPairs, u.data());
    // The ends of the range.
    u[0] = 0x1p-59;
    u[1] = 1.0 - 0x1p-53;
    u[2] = 1.0 - 0x1p-53;
    u[3] = 0x1p-59;
    u[4] = u[5] = 0.5;
    return u;
}

void expect_same_bits(const Values &a, const Values &b, const std::string &what)
{
    ASSERT_EQ(a.size(), b.size());
    for (std::size_t i = 0; i < a.size(); ++i)
        ASSERT_TRUE(std::bit_cast<std::uint64_t>(a[i]) == std::bit_cast<std::uint64_t>(b[i]) ||
                    (std::isnan(a[i]) && std::isnan(b[i])))
            << what << ", element " << i << ": " << a[i] << " and " << b[i];
}

TEST(Paths, SamplersGiveTheSameBits)
{
    for (const std::uint64_t start : {std::uint64_t{0x2360}, std::uint64_t{0x123456789abcdee0}}) {
        const Values u = uniform_pairs(start);
        [[maybe_unused]] const Values reference = all_scalar(u);
#if defined(__x86_64__) && !defined(KOR_SANITIZED)
        if (__builtin_cpu_supports("x86-64-v3")) expect_same_bits(all_v3(u), reference, "AVX2");
        if (__builtin_cpu_supports("x86-64-v4")) expect_same_bits(all_v4(u), reference, "AVX-512");
#endif
    }
}

TEST(Paths, UniformBlocksGiveTheSameBits)
{
    std::mt19937_64 random{3};
    const auto paths = fill_paths();
    for (int round = 0; round < 2000; ++round) {
        std::uint64_t word = random() & ~std::uint64_t{31};
        // Now and then a block whose numbers would round to 1, or are as small as can be.
        if (round % 10 == 1) word = earlier(~std::uint64_t{31}, round % kBlock);
        if (round % 10 == 2) word = earlier(32, round % kBlock);
        Values reference(kBlock), block(kBlock);
        std::uint64_t term = word;
        for (double &u : reference) {
            term = later(term, 1);
            u = static_cast<double>(std::fmin(static_cast<long double>(term) * 0x1p-64L, 1.0L - 0x1p-53L));
        }
        for (const Path &path : paths) {
            path.fill(word, block.data());
            expect_same_bits(block, reference, path.name);
        }
    }
    EXPECT_EQ(later(earlier(123456 * 32, 63), 63), 123456u * 32);
}

TEST(Elementary, KeepsItsAccuracy)
{
    using kor::testing::ulps;
    struct Worst {
        double log = 0.0, exp = 0.0, cosine = 0.0, sine = 0.0, log1p = 0.0, log_defect = 0.0, exp_defect = 0.0;
    } worst;
    const auto raise = [](double &to, double error) { to = std::fmax(to, error); };
    std::mt19937_64 random{8};
    const long double two_pi = 2.0L * std::acos(-1.0L);
    for (int i = 0; i < 200000; ++i) {
        const double u = (static_cast<double>(random() >> 11) + 0.5) * 0x1p-53;
        const double wide = std::ldexp(u + 0.5, static_cast<int>(random() % 400) - 200),
                     near = 1.0 + (u - 0.5) * 0x1p-12;
        for (const double x : {u, wide, near})
            raise(worst.log, ulps(lane_log(x), static_cast<double>(std::log(static_cast<long double>(x)))));
        const double y = (u - 0.5) * (i % 2 == 0 ? 1400.0 : 1.0);
        raise(worst.exp, ulps(lane_exp(y).value, static_cast<double>(std::exp(static_cast<long double>(y)))));
        if (std::fabs(y) > 1e-3 && std::fabs(y) < 0.3)
            raise(worst.exp_defect,
                  ulps(lane_exp(y).defect, static_cast<double>(std::expm1(static_cast<long double>(y)) - y)));
        const double t = (u - 0.29) * (i % 2 == 0 ? 0.99 : 0.02);
        raise(worst.log1p, ulps(lane_log1p(t).value, static_cast<double>(std::log1p(static_cast<long double>(t)))));
        if (std::fabs(t) > 1e-3 && t < 0.4)
            raise(worst.log_defect,
                  ulps(lane_log1p(t).defect, static_cast<double>(t - std::log1p(static_cast<long double>(t)))));
        // Against the quarter turn, so that the reference loses nothing at the zeros.
        const long double quarter = std::round(4.0L * u), rest = two_pi * (u - quarter / 4.0L);
        const long double s = std::sin(rest), c = std::cos(rest);
        const long double sines[] = {s, c, -s, -c}, cosines[] = {c, -s, -c, s};
        const int turn = static_cast<int>(quarter) % 4;
        raise(worst.sine, ulps(lane_turn(u).sine, static_cast<double>(sines[turn])));
        raise(worst.cosine, ulps(lane_turn(u).cosine, static_cast<double>(cosines[turn])));
    }
    // Half a unit more than the error itself, since the reference is a rounded double.
    EXPECT_LE(worst.log, 1.0);
    EXPECT_LE(worst.exp, 1.0);
    EXPECT_LE(worst.sine, 1.0);
    EXPECT_LE(worst.cosine, 1.0);
    EXPECT_LE(worst.log1p, 3.0);
    EXPECT_LE(worst.log_defect, 3.0);
    EXPECT_LE(worst.exp_defect, 3.0);
    EXPECT_EQ(lane_exp(-1e300).value, 0.0);
    EXPECT_EQ(lane_exp(-std::numeric_limits<double>::infinity()).value, 0.0);
    EXPECT_EQ(lane_exp(-745.0).value, 0x1p-1074);
    EXPECT_EQ(lane_exp(1e300).value, std::numeric_limits<double>::infinity());
    EXPECT_EQ(lane_log(1.0), 0.0);
}

TEST(PoissonLaw, ExactTestUsesTheRightProbabilities)
{
    // Either side of the switches: table and Stirling's series (mean 87), series and logarithm (2.2 percent from the mean).
    for (const double mean : {7.5, 20.0, 86.99, 87.0, 88.0, 1000.0, 1e6, 1e9}) {
        PoissonConstants c = poisson_constants(mean);
        for (const double away : {-0.9, -0.3, -0.0221, -0.0219, -1e-3, 0.0, 1e-3, 0.0219, 0.0221, 0.3, 0.9}) {
            const double k = std::floor(mean * (1.0 + away));
            const long double exact = k * std::log(static_cast<long double>(mean)) - mean - std::lgamma(k + 1.0L) +
                                      0.5L * std::log(2.0L * std::acos(-1.0L) * mean);
            // A logarithm of relative error 2^-53 is multiplied by k; the reference loses what cancels in it.
            const double next_stirling_term = mean < 87.0 ? 0.0 : 1.0 / (1188.0 * std::pow(k, 9.0));
            const double tolerance = 1e-14 + 4e-16 * k + 1e-18 * mean * std::log(mean) + next_stirling_term;
            EXPECT_NEAR(log_relative_mass(c, k), static_cast<double>(exact), tolerance) << mean << " " << k;
        }
    }
}

TEST(PoissonLaw, HatAndSqueezesLieOnTheirSides)
{
    for (const double mean : {7.5, 8.0, 20.0, 86.99, 87.0, 1000.0, 1e6}) {
        PoissonConstants c = poisson_constants(mean);
        const double least = -c.centre / c.hat_scale;
        for (double t = least; t < 12.0; t += 0.0007) {
            const double k = std::floor(c.centre + c.hat_scale * t), q = t + c.shift;
            if (k < 0.0) continue;
            const double mass = std::exp(log_relative_mass(c, k)), r = c.upper_curvature * q * q;
            const double hat = c.hat_height / std::fmax(1.0, std::fabs(t * t * t));
            ASSERT_LE(mass, hat * (1.0 + 1e-12)) << "hat, mean " << mean << ", t " << t;
            ASSERT_LE(c.lower_height * (1.0 + (q <= 0.0 ? c.lower_left : -c.lower_right) * q), mass * (1.0 + 1e-12))
                << "quick acceptance, mean " << mean << ", t " << t;
            ASSERT_GE(c.upper_height - r + 0.5 * r * r, mass * (1.0 - 1e-12))
                << "quick rejection, mean " << mean << ", t " << t;
        }
    }
}

} // namespace
} // namespace kor::random
