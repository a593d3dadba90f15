// Do the deviates follow their laws? Chi-squared tests with seeds fixed. A right sampler fails one of them with a probability
// below 1e-10 each; larger samples and more parameters are in bench/random.
#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <kor/g05.h>

#include "support/expect_report.hpp"

namespace kor::testing {
namespace {

constexpr Integer kSeed = 20240;

struct Law {
    std::string sampler;
    std::vector<double> parameters, cuts; // into 16 parts of equal probability
};
const Law kLaws[] = {
#include "laws_data.inc"
};

// Chi-squared with 15 degrees of freedom exceeds this with probability 1e-10.
constexpr double kLimit15 = 79.1;

std::vector<double> sample(const Law &law, Integer n)
{
    const auto &p = law.parameters;
    std::vector<double> x(n);
    Record fail;
    if (law.sampler == "uniform") g05fac(p[0], p[1], n, x.data());
    if (law.sampler == "box_muller") g05fdc(p[0], p[1], n, x.data());
    if (law.sampler == "gamma") g05ffc(p[0], p[1], n, x.data(), &fail);
    if (law.sampler == "beta") g05fec(p[0], p[1], n, x.data(), &fail);
    for (double &value : x) {
        if (law.sampler == "normal") value = g05ddc(p[0], p[1]);
        if (law.sampler == "exponential") value = g05dbc(p[0]);
        if (law.sampler == "cauchy") value = g05dfc(p[0], p[1]);
        if (law.sampler == "half_gamma") value = g05dgc(p[0], p[1], &fail);
    }
    return x;
}

double chi_squared(const std::vector<double> &counts, const std::vector<double> &expected)
{
    double sum = 0.0;
    for (std::size_t i = 0; i < counts.size(); ++i)
        sum += (counts[i] - expected[i]) * (counts[i] - expected[i]) / expected[i];
    return sum;
}

TEST(Laws, ContinuousOnesFillTheirQuantiles)
{
    constexpr Integer kDraws = 100000;
    g05cbc(kSeed);
    for (const Law &law : kLaws) {
        const std::size_t cells = law.cuts.size() + 1;
        std::vector<double> counts(cells), lagged(cells);
        std::size_t before = 0;
        for (const double x : sample(law, kDraws)) {
            const auto cell =
                static_cast<std::size_t>(std::upper_bound(law.cuts.begin(), law.cuts.end(), x) - law.cuts.begin());
            ++counts[cell];
            ++lagged[(cell + 5 * before) % cells]; // uniform as well when successive deviates are independent
            before = cell;
        }
        const std::vector<double> expected(cells, static_cast<double>(kDraws) / static_cast<double>(cells));
        std::string name = law.sampler;
        for (const double p : law.parameters) name += " " + std::to_string(p);
        EXPECT_LT(chi_squared(counts, expected), kLimit15) << name;
        EXPECT_LT(chi_squared(lagged, expected), kLimit15) << name << ", pairs";
    }
}

// Chi-squared of a discrete law, cells with few expected draws put together; in units of its standard deviation, after the
// cube-root transformation of Wilson and Hilferty.
double discrete_score(const std::vector<double> &mass, const std::vector<double> &counts, double draws)
{
    constexpr double kFewest = 20.0;
    std::vector<double> seen, expected;
    double some_seen = 0.0, some_expected = 0.0;
    for (std::size_t k = 0; k < mass.size(); ++k) {
        some_seen += counts[k];
        some_expected += draws * mass[k];
        if (some_expected < kFewest) continue;
        seen.push_back(some_seen);
        expected.push_back(some_expected);
        some_seen = some_expected = 0.0;
    }
    seen.back() += some_seen;
    expected.back() += some_expected;
    if (seen.size() < 2) return 0.0;
    const auto freedom = static_cast<double>(seen.size() - 1);
    const double spread = 2.0 / (9.0 * freedom);
    return (std::cbrt(chi_squared(seen, expected) / freedom) - (1.0 - spread)) / std::sqrt(spread);
}
constexpr double kScoreLimit = 6.5; // probability 4e-11

double poisson_mass(double mean, double k) { return std::exp(k * std::log(mean) - mean - std::lgamma(k + 1.0)); }

double binomial_mass(double n, double p, double k)
{
    return std::exp(std::lgamma(n + 1.0) - std::lgamma(k + 1.0) - std::lgamma(n - k + 1.0) + k * std::log(p) +
                    (n - k) * std::log1p(-p));
}

template <class Draw, class Mass>
double score_of(Draw draw, Mass mass, Integer low, Integer high)
{
    constexpr int kDraws = 60000;
    std::vector<double> counts(high - low + 1), masses(high - low + 1);
    for (int i = 0; i < kDraws; ++i) {
        const Integer k = draw();
        if (k >= low && k <= high) ++counts[k - low];
    }
    for (Integer k = low; k <= high; ++k) masses[k - low] = mass(k);
    return discrete_score(masses, counts, kDraws);
}

TEST(Laws, PoissonEitherSideOfEverySwitch)
{
    g05cbc(kSeed);
    for (const double mean : {0.01, 1.0, 7.4999, 7.5, 8.0, 20.0, 86.99, 87.0, 88.0, 500.0, 2e4}) {
        const double spread = 8.0 * std::sqrt(mean) + 9.0;
        const auto low = static_cast<Integer>(std::fmax(mean - spread, 0.0)),
                   high = static_cast<Integer>(mean + spread);
        Integer status;
        const auto mass = [&](double k) { return poisson_mass(mean, k); };
        EXPECT_LT(score_of([&] { return g05drc(mean, &status); }, mass, low, high), kScoreLimit) << mean;
        Record fail;
        std::vector<double> r(static_cast<std::size_t>(20.0 * std::sqrt(mean)) + 20);
        g05ecc(mean, r.data(), static_cast<Integer>(r.size()), &fail);
        EXPECT_SUCCESS(fail);
        EXPECT_LT(score_of([&] { return g05eyc(r.data()); }, mass, low, high), kScoreLimit) << mean << ", table";
    }
    // Means that alternate: what is kept of one must not reach the other.
    Integer status;
    double small = 0.0, large = 0.0;
    for (int i = 0; i < 20000; ++i) {
        small += g05drc(3.0, &status);
        large += g05drc(90.0, &status);
    }
    EXPECT_NEAR(small / 20000, 3.0, 6.5 * std::sqrt(3.0 / 20000));
    EXPECT_NEAR(large / 20000, 90.0, 6.5 * std::sqrt(90.0 / 20000));
}

TEST(Laws, Binomial)
{
    g05cbc(kSeed);
    struct {
        Integer n;
        double p;
    } const cases[] = {{1, 0.5}, {20, 0.3}, {20, 0.97}, {1000, 1e-4}, {1000, 0.4}, {2000000000, 1e-7}};
    for (const auto &[n, p] : cases) {
        const double mean = n * p, spread = 8.0 * std::sqrt(mean * (1.0 - p)) + 9.0;
        std::vector<double> r(static_cast<std::size_t>(20.0 * std::sqrt(mean * (1.0 - p))) + 20);
        Record fail;
        g05edc(n, p, r.data(), static_cast<Integer>(r.size()), &fail);
        EXPECT_SUCCESS(fail);
        const auto low = static_cast<Integer>(std::fmax(mean - spread, 0.0));
        const auto high = static_cast<Integer>(std::fmin(mean + spread, n));
        const auto mass = [&, n = n, p = p](double k) { return binomial_mass(n, p, k); };
        EXPECT_LT(score_of([&] { return g05eyc(r.data()); }, mass, low, high), kScoreLimit) << n << " " << p;
    }
}

TEST(Laws, IntegersAndOrdersAreEquallyLikely)
{
    g05cbc(kSeed);
    EXPECT_LT(score_of([] { return g05dyc(-3, 3); }, [](double) { return 1.0 / 7.0; }, -3, 3), kScoreLimit);
    // The 24 orders of four, the 10 samples of two from five, by number.
    Record fail;
    const auto order = [&] {
        Integer index[] = {0, 1, 2, 3};
        g05ehc(index, 4, &fail);
        const Integer second = index[1] - (index[1] > index[0]);
        return 6 * index[0] + 2 * second + (index[2] > index[3]);
    };
    EXPECT_LT(score_of(
                  order, [](double) { return 1.0 / 24.0; }, 0, 23),
              kScoreLimit);
    const auto subset = [&] {
        const Integer five[] = {0, 1, 2, 3, 4};
        Integer two[2];
        g05ejc(five, 5, two, 2, &fail);
        return two[1] * (two[1] - 1) / 2 + two[0];
    };
    EXPECT_LT(score_of(
                  subset, [](double) { return 0.1; }, 0, 9),
              kScoreLimit);
}

} // namespace
} // namespace kor::testing
