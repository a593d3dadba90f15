// Reference vectors: what they hold, what is drawn by them, and what is refused.
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <kor/g05.h>

#include "support/expect_report.hpp"

namespace kor::testing {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kUntouched = 99.0;

using Values = std::vector<double>;

Integer length_for(std::size_t points) { return static_cast<Integer>(1.4 * static_cast<double>(points) + 0.5) + 5; }

Values general(const Values &p, Integer first, Integer type, Integer extra = 0)
{
    Values r(length_for(p.size()) + extra, kUntouched);
    Record fail;
    g05exc(p.data(), static_cast<Integer>(p.size()), first, type, r.data(), static_cast<Integer>(r.size()), &fail);
    EXPECT_SUCCESS(fail);
    return r;
}

// What the law gives for a uniform number u: the first value whose cumulative probability reaches it.
Integer by_definition(const Values &p, Integer first, double u)
{
    long double total = 0.0, sum = 0.0;
    for (const double weight : p) total += weight;
    Integer k = 0;
    for (sum = p[0]; sum / total < u; sum += p[++k]) {}
    return first + k;
}

TEST(DiscreteLaw, DrawsTheInverseOfItsDistribution)
{
    const Values laws[] = {{1.0},
                           {0.25, 0.75},
                           {0.0, 0.5, 0.0, 0.0, 0.5, 0.0},
                           {1.0, 1.0, 1.0, 1.0, 1.0, 5.0},
                           Values(1000, 0.001),
                           {1e-300, 1.0, 1e-300},
                           {1e-320, 3e-320}};
    for (const Values &p : laws)
        for (const Integer first : {0, 1, -4, 2000000000})
            for (const Integer extra : {0, 7, 5000}) {
                const Values r = general(p, first, Kor_PDF, extra);
                g05cbc(5);
                Values u(400);
                g05fac(0.0, 1.0, 400, u.data());
                g05cbc(5);
                for (const double number : u) ASSERT_EQ(g05eyc(r.data()), by_definition(p, first, number));
            }
}

TEST(DiscreteLaw, CumulativeFormIsTheSameLaw)
{
    const Values p = {0.125, 0.25, 0.0, 0.5, 0.125}, cumulative = {0.125, 0.375, 0.375, 0.875, 1.0};
    EXPECT_EQ(general(p, -2, Kor_PDF), general(cumulative, -2, Kor_CDF));
    Values weights = cumulative;
    for (double &c : weights) c *= 4.0;
    EXPECT_EQ(general(weights, -2, Kor_CDF), general(cumulative, -2, Kor_CDF));
}

TEST(DiscreteLaw, LayoutIsAsDocumented)
{
    const Values p = {0.25, 0.25, 0.5};
    const Values r = general(p, 10, Kor_PDF);
    const auto cells = static_cast<std::ptrdiff_t>(r[0]);
    EXPECT_EQ(r[0], static_cast<double>(cells));
    const double *table = r.data() + 2 + cells;
    EXPECT_EQ(Values(table, table + 3), (Values{0.25, 0.5, 1.0}));
    // value = position + offset, positions from 1
    EXPECT_EQ(static_cast<std::ptrdiff_t>(r[1]) + (2 + cells + 1), 10);
    EXPECT_EQ(std::fabs(r[1] - std::trunc(r[1])), 0.5);
    for (std::ptrdiff_t i = 0; i < cells; ++i) {
        const auto position = static_cast<std::ptrdiff_t>(r[2 + i]);
        EXPECT_EQ(r[2 + i], static_cast<double>(position) + 0.5);
        EXPECT_GT(r[position - 1], static_cast<double>(i) / static_cast<double>(cells));
    }
}

TEST(DiscreteLaw, TablesOfPoissonAndBinomialAreExact)
{
    // exp(-t) and (1 - p)^n, and one value in the middle; from 30-digit arithmetic.
    struct {
        double t;
        Integer k;
        double cumulative;
    } const poisson[] = {
        {1.4, 0, 0.24659696394160648}, {25.0, 24, 0.47339846855634936}, {1000.0, 1000, 0.50840936716850599}};
    Record fail;
    for (const auto &[t, k, cumulative] : poisson) {
        Values r(static_cast<std::size_t>(20.0 * std::sqrt(t)) + 20);
        g05ecc(t, r.data(), static_cast<Integer>(r.size()), &fail);
        EXPECT_SUCCESS(fail);
        const double entry = r[static_cast<std::size_t>(k - static_cast<Integer>(r[1])) - 1];
        EXPECT_NEAR(entry, cumulative, 3e-12) << "the tails that are cut off";
    }
    Values r(200);
    g05edc(20, 0.3, r.data(), 200, &fail);
    EXPECT_NEAR(r[static_cast<std::size_t>(6 - static_cast<Integer>(r[1])) - 1], 0.60800981220092401, 1e-15);

    g05ecc(0.0, r.data(), 200, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_EQ(g05eyc(r.data()), 0);
    for (const auto &[n, p, value] :
         {std::tuple<Integer, double, Integer>{0, 0.4, 0}, {7, 0.0, 0}, {7, 1.0, 7}, {2147483647, 1.0, 2147483647}}) {
        g05edc(n, p, r.data(), 200, &fail);
        EXPECT_SUCCESS(fail);
        for (int i = 0; i < 20; ++i) EXPECT_EQ(g05eyc(r.data()), value);
    }
    Values large(926740);
    g05ecc(2.147e9, large.data(), static_cast<Integer>(large.size()), &fail);
    EXPECT_SUCCESS(fail);
    for (int i = 0; i < 200; ++i) ASSERT_NEAR(g05eyc(large.data()), 2.147e9, 7.2 * 46336.0);
}

TEST(DiscreteLaw, Refusals)
{
    Values r(50, kUntouched);
    const Values before = r;
    Record fail;
    g05ecc(-1.0, r.data(), 0, &fail);
    EXPECT_REPORT(fail, NE_REAL_ARG_LT, "t", "0.0", "t", -1.0);
    g05ecc(kNan, r.data(), 50, &fail);
    EXPECT_EQ(fail.code, NE_REAL_ARG_LT);
    g05ecc(2.2e9, r.data(), 50, &fail);
    EXPECT_REPORT(fail, NE_REAL_ARG_GT, "t", "2.147e9", "t", 2.2e9);
    g05ecc(4.0, r.data(), 59, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "nr", "60", "nr", 59);
    g05edc(-1, 2.0, r.data(), 50, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "0", "n", -1);
    g05edc(5, -0.5, r.data(), 50, &fail);
    EXPECT_REPORT(fail, NE_REAL_ARG_LT, "p", "0.0", "p", -0.5);
    g05edc(5, 1.5, r.data(), 50, &fail);
    EXPECT_REPORT(fail, NE_REAL_ARG_GT, "p", "1.0", "p", 1.5);
    g05edc(100, 0.5, r.data(), 50, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "nr", "120", "nr", 50);

    const auto refused = [&](Values p, Integer type) {
        g05exc(p.data(), static_cast<Integer>(p.size()), 0, type, r.data(), 50, &fail);
        EXPECT_EQ(r, before);
        return fail.code;
    };
    g05exc(before.data(), 0, 0, 0, r.data(), 0, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "np", "1", "np", 0);
    g05exc(before.data(), 3, 2147483646, Kor_PDF, r.data(), 50, &fail);
    EXPECT_EQ(fail.code, NE_INT_ARG_GT);
    g05exc(before.data(), 3, 0, Kor_CDF + 1, r.data(), 50, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "comp_type");
    g05exc(before.data(), 3, 0, Kor_PDF, r.data(), 8, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "nr", "9", "nr", 8);
    EXPECT_EQ(refused({0.5, -0.1, 0.6}, Kor_PDF), NE_NEG_PROB);
    EXPECT_EQ(refused({0.5, kNan, 0.6}, Kor_PDF), NE_NEG_PROB);
    EXPECT_EQ(refused({-0.5, 0.6, 1.0}, Kor_CDF), NE_NEG_PROB);
    EXPECT_EQ(refused({0.5, 0.4, 1.0}, Kor_CDF), NE_NOT_INCREASING);
    EXPECT_REPORT(fail, NE_NOT_INCREASING, "p", "p", 0, 0.5, "p", 1, 0.4);
    EXPECT_EQ(refused({0.0, 0.0}, Kor_PDF), NE_ALL_PROB_ZERO);
    EXPECT_EQ(refused({0.0, 0.0}, Kor_CDF), NE_ALL_PROB_ZERO);
    EXPECT_EQ(refused({1e308, 1e308}, Kor_PDF), NE_PROB_NOT_ONE);
    EXPECT_EQ(refused({0.5, kInfinity}, Kor_CDF), NE_PROB_NOT_ONE);
}

TEST(ReferenceVector, OfAnotherRoutineOrOfNoneIsRefused)
{
    const double mean[] = {1.0, 2.0}, c[] = {4.0, 1.0, 1.0, 3.0};
    double normal[7], never[7] = {}, garbage[7] = {kNan, 1.0, 2.0};
    Record fail;
    g05eac(mean, 2, c, 2, 0.0, normal, 7, &fail);
    const Values discrete = general({0.5, 0.5}, 3, Kor_PDF);
    g05cbc(1);
    for (const double *r : {static_cast<const double *>(normal), static_cast<const double *>(never),
                            static_cast<const double *>(garbage)}) {
        ::testing::internal::CaptureStderr();
        EXPECT_EQ(g05eyc(r), 0);
        EXPECT_NE(::testing::internal::GetCapturedStderr().find(kor_errlist[NE_REF_VEC]), std::string::npos);
    }
    for (const double *r :
         {discrete.data(), static_cast<const double *>(never), static_cast<const double *>(garbage)}) {
        double z[2] = {kUntouched, kUntouched};
        ::testing::internal::CaptureStderr();
        g05ezc(z, r);
        EXPECT_NE(::testing::internal::GetCapturedStderr().find(kor_errlist[NE_REF_VEC]), std::string::npos);
        EXPECT_EQ(z[0], kUntouched);
    }
    const double after = g05cac();
    g05cbc(1);
    EXPECT_EQ(g05cac(), after) << "nothing was drawn";
}

// Largest |(L L')(i, j) - c(i, j)| / sqrt(c(i, i) c(j, j)).
double factor_error(const Values &c, std::size_t n, std::size_t tdc, const Values &r)
{
    std::vector<Values> l(n, Values(n));
    std::size_t at = 1 + n;
    for (std::size_t j = 0; j < n; ++j)
        for (std::size_t i = j; i < n; ++i) l[i][j] = r[at++];
    double worst = 0.0;
    for (std::size_t i = 0; i < n; ++i)
        for (std::size_t j = 0; j <= i; ++j) {
            long double sum = -static_cast<long double>(c[i * tdc + j]);
            for (std::size_t k = 0; k <= j; ++k) sum += static_cast<long double>(l[i][k]) * l[j][k];
            const double scale = std::sqrt(c[i * tdc + i]) * std::sqrt(c[j * tdc + j]);
            if (scale > 0.0) worst = std::max(worst, std::fabs(static_cast<double>(sum)) / scale);
        }
    return worst;
}

Values normal_reference(const Values &mean, const Values &c, Integer tdc, double eps, Integer expected)
{
    const auto n = static_cast<Integer>(mean.size());
    Values r((n + 1) * (n + 2) / 2 + 1, kUntouched);
    const Values before = r;
    Record fail;
    g05eac(mean.data(), n, c.data(), tdc, eps, r.data(), static_cast<Integer>(r.size()), &fail);
    EXPECT_EQ(fail.code, expected);
    if (expected != NE_NOERROR) {
        EXPECT_EQ(r, before);
    }
    return r;
}

TEST(MultivariateNormal, FactorsGradedSingularAndIllConditionedMatrices)
{
    // The Hilbert matrix of order 8 has condition 1.5e10; of order 14 it is singular to double precision.
    for (const int n : {1, 2, 8, 14}) {
        Values c(n * (n + 1)), mean(n);
        for (int i = 0; i < n; ++i)
            for (int j = 0; j < n; ++j) c[i * (n + 1) + j] = 1.0 / (i + j + 1);
        const Values r = normal_reference(mean, c, n + 1, 0.0, NE_NOERROR);
        EXPECT_LT(factor_error(c, n, n + 1, r), 8 * n * 0x1p-53) << n;
        EXPECT_EQ(r[0], n + 0.5);
    }
    // Variances from 1e-300 to 1e300.
    const Values graded = {1e300, 0.3, 1e50, 0.3, 1e-300, 2e-101, 1e50, 2e-101, 1e100};
    EXPECT_LT(factor_error(graded, 3, 3, normal_reference({0, 0, 0}, graded, 3, 0.0, NE_NOERROR)), 1e-15);
    // Rank 2 of 6, up to rounding of the products.
    Values c(36);
    const double b[6][2] = {{1.1, 0.3}, {-2.2, 0.7}, {0.4, -5.1}, {3.3, 1.9}, {0.0, 0.0}, {-1.0, 1e-3}};
    for (int i = 0; i < 6; ++i)
        for (int j = 0; j < 6; ++j) c[6 * i + j] = b[i][0] * b[j][0] + b[i][1] * b[j][1];
    const Values r = normal_reference(Values(6), c, 6, 0.0, NE_NOERROR);
    EXPECT_LT(factor_error(c, 6, 6, r), 1e-14);
    // A variance of 0 leaves its variable at the mean, and needs covariances of 0.
    const Values flat = {1.0, 0.0, 0.5, 0.0, 0.0, 0.0, 0.5, 0.0, 2.0};
    const Values constant = normal_reference({1.0, 7.25, 3.0}, flat, 3, 0.0, NE_NOERROR);
    double z[3];
    g05ezc(z, constant.data());
    EXPECT_EQ(z[1], 7.25);
    normal_reference({0, 0}, {0.0, 0.1, 0.1, 1.0}, 2, 0.0, NE_NOT_POS_SEM_DEF);
    normal_reference({0, 0}, {1.0, 2.0, 2.0, 1.0}, 2, 0.0, NE_NOT_POS_SEM_DEF);
    normal_reference({0}, {-1e-30}, 1, 0.1, NE_NOT_POS_SEM_DEF);
    for (const double bad : {kNan, kInfinity, -kInfinity}) {
        normal_reference({0, 0}, {bad, 0.0, 0.0, 1.0}, 2, 0.0, NE_NOT_POS_SEM_DEF);
        normal_reference({0, 0}, {1.0, 0.0, 0.0, bad}, 2, 0.0, NE_NOT_POS_SEM_DEF);
        normal_reference({0, 0}, {1.0, bad, bad, 1.0}, 2, 0.0, NE_NOT_POS_SEM_DEF);
    }
    // Noise: indefinite by 1e-6, and accepted when told so.
    const Values noisy = {1.0, 1.0, 1.0, 1.0 - 1e-6};
    normal_reference({0, 0}, noisy, 2, 1e-8, NE_NOT_POS_SEM_DEF);
    normal_reference({0, 0}, noisy, 2, 1e-5, NE_NOERROR);
}

TEST(MultivariateNormal, VectorsHaveMeanAndCovariance)
{
    constexpr int kDraws = 60000;
    const Values mean = {1.0, -2.0, 0.5}, c = {4.0, 1.2, -0.6, 1.2, 1.0, 0.3, -0.6, 0.3, 2.5};
    const Values r = normal_reference(mean, c, 3, 0.0, NE_NOERROR);
    g05cbc(9);
    double z[3], sum[3] = {}, product[9] = {};
    for (int draw = 0; draw < kDraws; ++draw) {
        g05ezc(z, r.data());
        for (int i = 0; i < 3; ++i) {
            sum[i] += z[i] - mean[i];
            for (int j = 0; j < 3; ++j) product[3 * i + j] += (z[i] - mean[i]) * (z[j] - mean[j]);
        }
    }
    for (int i = 0; i < 3; ++i) {
        EXPECT_NEAR(sum[i] / kDraws, 0.0, 6.5 * std::sqrt(c[4 * i] / kDraws));
        for (int j = 0; j < 3; ++j) {
            const double spread = std::sqrt((c[4 * i] * c[4 * j] + c[3 * i + j] * c[3 * i + j]) / kDraws);
            EXPECT_NEAR(product[3 * i + j] / kDraws, c[3 * i + j], 6.5 * spread);
        }
    }
    // One deviate of g05ddc for each variable, in order.
    g05cbc(9);
    const double first = 1.0 + 2.0 * g05ddc(0.0, 1.0);
    g05cbc(9);
    g05ezc(z, r.data());
    EXPECT_EQ(z[0], first);
}

TEST(MultivariateNormal, Refusals)
{
    const double a[] = {0.0, 0.0}, c[] = {1.0, 0.0, 0.0, 1.0};
    double r[7] = {kUntouched};
    Record fail;
    g05eac(a, 0, c, 0, -1.0, r, 0, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", 0);
    g05eac(a, 2, c, 1, -1.0, r, 0, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tdc", 1, "n", 2, "tdc", "n");
    g05eac(a, 2, c, 2, -1.0, r, 0, &fail);
    EXPECT_REPORT(fail, NE_REAL_ARG_LT, "eps", "0.0", "eps", -1.0);
    g05eac(a, 2, c, 2, 0.06, r, 0, &fail);
    EXPECT_REPORT(fail, NE_REAL_ARG_GT, "eps", "0.1/n", "eps", 0.06);
    g05eac(a, 2, c, 2, 0.05, r, 6, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "lr", "(n+1)*(n+2)/2+1", "lr", 6);
    g05eac(a, 2, c, 2, kNan, r, 7, &fail);
    EXPECT_EQ(fail.code, NE_REAL_ARG_LT);
    EXPECT_EQ(r[0], kUntouched);
    g05eac(a, 2147483647, c, 2147483647, 0.0, r, 7, &fail);
    EXPECT_EQ(fail.code, NE_INT_ARG_LT) << "lengths are computed without overflow";
    g05eac(a, 2, c, 2, 0.05, r, 7, &fail);
    EXPECT_SUCCESS(fail);
}

} // namespace
} // namespace kor::testing
