// Summaries, classes, scores and the test for normality.
#include <kor/g01.h>
#include <kor/g05.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <span>
#include <vector>

#include "support/expect_report.hpp"

namespace {

using kor::testing::Record;

struct Sample {
    const char *name;
    std::span<const double> x;
    double certified_mean, certified_sd, mean, sd, skew, kurt;
};
struct Score {
    Integer n, i;
    double value;
};
struct Shapiro {
    Integer n;
    double c, w, p;
};

#include "descriptive_data.inc"

constexpr double kEps = std::numeric_limits<double>::epsilon();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

struct Summary {
    Integer nvalid = 99;
    double mean = 99.0, sd = 99.0, skew = 99.0, kurt = 99.0, least = 99.0, greatest = 99.0, weights = 99.0;
};

Summary summary_of(std::span<const double> x, const double *wt, Record &fail)
{
    Summary s;
    g01aac(static_cast<Integer>(x.size()), x.data(), wt, &s.nvalid, &s.mean, &s.sd, &s.skew, &s.kurt, &s.least,
           &s.greatest, &s.weights, &fail);
    return s;
}

double relative_error(double computed, double exact) { return std::fabs(computed - exact) / std::fabs(exact); }

TEST(Summary, PublishedSamples)
{
    for (const Sample &sample : kSamples) {
        SCOPED_TRACE(sample.name);
        Record fail;
        const Summary s = summary_of(sample.x, nullptr, fail);
        EXPECT_SUCCESS(fail);
        const double n = static_cast<double>(sample.x.size());
        // Against the sample as it stands in doubles.
        EXPECT_LE(relative_error(s.mean, sample.mean), kEps);
        EXPECT_LE(relative_error(s.sd, sample.sd), 2 * kEps);
        EXPECT_NEAR(s.skew, sample.skew, 8 * kEps);
        EXPECT_NEAR(s.kurt, sample.kurt, 16 * kEps);
        // Against the certified values: what was lost when the decimals became doubles comes on top.
        EXPECT_LE(relative_error(s.mean, sample.certified_mean), 1e-14);
        EXPECT_LE(relative_error(s.sd * std::sqrt(n / (n - 1.0)), sample.certified_sd),
                  1e-14 + 0.5 * kEps * std::fabs(sample.mean) / sample.sd);
        EXPECT_EQ(s.least, *std::min_element(sample.x.begin(), sample.x.end()));
        EXPECT_EQ(s.greatest, *std::max_element(sample.x.begin(), sample.x.end()));
    }
}

TEST(Summary, WeightsCountObservations)
{
    const double x[] = {3.25, -7.5, 11.0, 0.125}, wt[] = {2.0, 0.0, 3.0, 1.0};
    const double repeated[] = {3.25, 3.25, 11.0, 11.0, 11.0, 0.125};
    Record fail;
    const Summary weighted = summary_of(x, wt, fail), plain = summary_of(repeated, nullptr, fail);
    EXPECT_EQ(weighted.nvalid, 3);
    EXPECT_EQ(weighted.weights, 6.0);
    EXPECT_EQ(weighted.least, 0.125);
    EXPECT_NEAR(weighted.mean, plain.mean, 4 * kEps);
    EXPECT_NEAR(weighted.sd, plain.sd, 8 * kEps);
    EXPECT_NEAR(weighted.skew, plain.skew, 8 * kEps);
    EXPECT_NEAR(weighted.kurt, plain.kurt, 8 * kEps);
}

// No unit of measurement leads to overflow or underflow.
TEST(Summary, AnyScale)
{
    const double x[] = {1.0, 1.5, 1.75, 1.125, 1.0};
    Record fail;
    const Summary usual = summary_of(x, nullptr, fail);
    for (const int exponent : {-100, 500, 1023}) {
        double scaled[5];
        for (int i = 0; i < 5; ++i) scaled[i] = std::ldexp(x[i], exponent);
        const Summary s = summary_of(scaled, nullptr, fail);
        EXPECT_SUCCESS(fail);
        EXPECT_EQ(s.mean, std::ldexp(usual.mean, exponent));
        EXPECT_EQ(s.sd, std::ldexp(usual.sd, exponent));
        EXPECT_EQ(s.skew, usual.skew);
        EXPECT_EQ(s.kurt, usual.kurt);
    }
    // A variance below 1.2e-77 is no divisor.
    const double tiny[] = {1e-39, 2e-39, 4e-39};
    EXPECT_EQ(summary_of(tiny, nullptr, fail).skew, 0.0);
    EXPECT_GT(summary_of(tiny, nullptr, fail).sd, 1e-39);
    EXPECT_TRUE(std::isnan(summary_of(std::vector{1.0, kNan, 2.0}, nullptr, fail).sd));
    EXPECT_TRUE(std::isnan(summary_of(std::vector{1.0, HUGE_VAL, 2.0}, nullptr, fail).sd));
}

TEST(Summary, TooFewCases)
{
    const double x[] = {3.0, 5.0}, none[] = {0.0, 0.0}, one[] = {0.0, 2.0}, negative[] = {1.0, -1.0};
    Record fail;
    Summary s = summary_of({x, 0}, nullptr, fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", 0);
    EXPECT_EQ(s.nvalid, 99);
    s = summary_of(x, negative, fail);
    EXPECT_REPORT(fail, NE_REAL_ARG_LT, "wt[  1]", "0.0", "wt[  1]", -1.0);
    EXPECT_EQ(s.weights, 99.0);
    s = summary_of(x, none, fail);
    EXPECT_REPORT(fail, NE_CASES_ZERO);
    EXPECT_EQ(s.nvalid, 0);
    EXPECT_EQ(s.mean, 99.0);
    s = summary_of(x, one, fail);
    EXPECT_REPORT(fail, NE_CASES_ONE);
    EXPECT_EQ(s.nvalid, 1);
    EXPECT_EQ(s.mean, 5.0);
    EXPECT_EQ(s.least + s.greatest, 10.0);
    EXPECT_EQ(s.sd + s.skew + s.kurt, 0.0);
}

TEST(Classes, OpenAtBothEndsAndClosedBelow)
{
    const double x[] = {-1e300, 0.0, 1.0, 1.5, 2.0, 1e300, kNan};
    double bounds[] = {0.0, 1.0, 2.0}, least, greatest;
    Integer counts[4];
    Record fail;
    g01aec(7, x, 4, Kor_ClassBoundaryUser, bounds, counts, &least, &greatest, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_EQ((std::vector<Integer>(counts, counts + 4)), (std::vector<Integer>{1, 1, 2, 2}));
    EXPECT_EQ(least, -1e300);
    EXPECT_EQ(greatest, 1e300);
}

TEST(Classes, ComputedBoundaries)
{
    const double x[] = {2.0, 4.0, 10.0}, equal[] = {-5.0, -5.0}, zeros[] = {0.0}, wide[] = {-1.5e308, 1.5e308};
    double bounds[6], least, greatest;
    Integer counts[7];
    Record fail;
    const auto classes = [&](std::span<const double> sample, Integer number) {
        g01aec(static_cast<Integer>(sample.size()), sample.data(), number, Kor_ClassBoundaryComp, bounds, counts,
               &least, &greatest, &fail);
        EXPECT_SUCCESS(fail);
        EXPECT_EQ(std::accumulate(counts, counts + number, 0), static_cast<Integer>(sample.size()));
    };
    classes(x, 2);
    EXPECT_EQ(bounds[0], 6.0);
    classes(x, 7); // 2 - 0.004 to 10 + 0.004 in 5 steps
    EXPECT_NEAR(bounds[0], 1.996, 4 * kEps);
    EXPECT_NEAR(bounds[1] - bounds[0], 8.008 / 5.0, 16 * kEps);
    EXPECT_NEAR(bounds[5], 10.004, 16 * kEps);
    EXPECT_EQ(counts[0] + counts[6], 0);
    classes(equal, 3); // the range is taken as 0.001 * 5
    EXPECT_NEAR(bounds[1] - bounds[0], 0.005 * 1.001, 16 * kEps);
    EXPECT_EQ(counts[1], 2);
    classes(zeros, 3);
    EXPECT_NEAR(bounds[1] - bounds[0], 0.001 * 1.001, 1e-18);
    classes(wide, 4);
    EXPECT_EQ(counts[1] + counts[2], 2);
    EXPECT_TRUE(std::isfinite(bounds[2]));
}

TEST(Classes, BadArguments)
{
    const double x[] = {2.0, 4.0};
    double bounds[] = {1.0, 1.0}, least = 99.0, greatest = 99.0;
    Integer counts[] = {99, 99, 99};
    Record fail;
    g01aec(0, x, 3, Kor_ClassBoundaryUser, bounds, counts, &least, &greatest, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", 0);
    g01aec(2, x, 1, Kor_ClassBoundaryUser, bounds, counts, &least, &greatest, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "num_class", "2", "num_class", 1);
    g01aec(2, x, 3, 0, bounds, counts, &least, &greatest, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "class");
    g01aec(2, x, 3, Kor_ClassBoundaryUser, bounds, counts, &least, &greatest, &fail);
    EXPECT_REPORT(fail, NE_NOT_INCREASING, "cint", "cint", 0, 1.0, "cint", 1, 1.0);
    EXPECT_EQ(counts[0] + counts[1] + counts[2], 297);
    EXPECT_EQ(least + greatest, 198.0);
}

TEST(FiveNumbers, HingesHoldTheMiddle)
{
    const double x[] = {9.0, 1.0, 5.0, 3.0, 7.0, 11.0, 13.0, 15.0};
    const double expected[4][5] = {{1.0, 3.0, 5.0, 7.0, 9.0},
                                   {1.0, 3.0, 6.0, 9.0, 11.0},
                                   {1.0, 4.0, 7.0, 10.0, 13.0},
                                   {1.0, 4.0, 8.0, 12.0, 15.0}};
    Record fail;
    for (Integer n = 5; n <= 8; ++n) {
        double five[5];
        g01alc(n, x, five, &fail);
        EXPECT_SUCCESS(fail);
        for (int i = 0; i < 5; ++i) EXPECT_EQ(five[i], expected[n - 5][i]) << n << " " << i;
    }
    double five[] = {99.0, 99.0, 99.0, 99.0, 99.0};
    g01alc(4, x, five, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "5", "n", 4);
    EXPECT_EQ(five[2], 99.0);
    const double huge[] = {1.5e308, 1.6e308, 1.7e308, 1.7e308, 1.7e308, kNan};
    g01alc(5, huge, five, &fail);
    EXPECT_EQ(five[1], 1.6e308);
    g01alc(6, huge, five, &fail);
    EXPECT_TRUE(std::isnan(five[0]));
}

TEST(NormalScores, AgreeWithTheReferences)
{
    std::vector<double> pp;
    Record fail;
    for (const Score &score : kScores) {
        pp.assign(score.n, 99.0);
        double error = 99.0;
        g01dac(score.n, pp.data(), 1e-12, &error, &fail);
        EXPECT_SUCCESS(fail);
        EXPECT_NEAR(pp[score.i - 1], score.value, error) << score.n << " " << score.i;
        EXPECT_LT(error, 1e-14);
        EXPECT_EQ(pp[score.n - score.i], -pp[score.i - 1]);
    }
    // Neighbours in a large sample come from different meshes, and yet in order.
    const Integer n = 20000;
    pp.assign(n, 99.0);
    g01dbc(n, pp.data(), &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_TRUE(std::is_sorted(pp.begin(), pp.end()));
    double deviation = 99.0;
    g01dac(1, pp.data(), 1e-12, &deviation, &fail);
    EXPECT_EQ(pp[0], 0.0);
    EXPECT_EQ(deviation, 0.0);
}

TEST(NormalScores, BadArguments)
{
    double pp[3] = {99.0, 99.0, 99.0}, error = 99.0;
    Record fail;
    g01dac(0, pp, 1e-9, &error, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", 0);
    g01dac(3, pp, 0.0, &error, &fail);
    EXPECT_REPORT(fail, NE_REAL_ARG_LE, "etol", "0.0", "etol", 0.0);
    g01dbc(0, pp, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", 0);
    EXPECT_EQ(pp[0] + error, 198.0);
    g01dac(3, pp, 1e-20, &error, &fail);
    EXPECT_REPORT(fail, NE_NORMAL_SCORE_EST);
    EXPECT_NEAR(pp[0], -1.5 / std::sqrt(std::acos(-1.0)), 4 * kEps);
}

TEST(ShapiroWilk, AgreesWithTheReferences)
{
    Record fail;
    for (const Shapiro &r : kShapiro) {
        SCOPED_TRACE(testing::Message() << "n " << r.n << " c " << r.c);
        std::vector<double> x(r.n), a(r.n);
        for (Integer i = 1; i <= r.n; ++i) {
            const double t = (2.0 * i - r.n - 1.0) / r.n;
            x[i - 1] = t + r.c * t * t * t + (i == r.n ? 0.3 : 0.0);
        }
        double w, p, again, p_again;
        g01ddc(r.n, x.data(), 1, a.data(), &w, &p, &fail);
        EXPECT_SUCCESS(fail);
        EXPECT_NEAR(w, r.w, 4e-15);                         // the reference sums 2000 squares in plain doubles
        EXPECT_NEAR(p / r.p, 1.0, r.n == 3 ? 5e-9 : 1e-10); // the reference has constants of nine digits for n = 3
        // Weights of an earlier call, and another unit and origin of the data.
        for (double &value : x) value = 1024.0 * value + 1e4;
        g01ddc(r.n, x.data(), 0, a.data(), &again, &p_again, &fail);
        EXPECT_NEAR(again, w, 1e-13);
    }
    // Three equidistant values are as normal as three values can be.
    const double three[] = {1.0, 2.0, 3.0}, edge[] = {1.0, 1.0, 2.0};
    double a[3], w, p;
    g01ddc(3, three, 1, a, &w, &p, &fail);
    EXPECT_NEAR(p, 1.0, 1e-7); // the root of 1 - w
    g01ddc(3, edge, 1, a, &w, &p, &fail);
    EXPECT_NEAR(w, 0.75, 4 * kEps);
    EXPECT_NEAR(p, 0.0, 1e-15);
}

TEST(ShapiroWilk, BadArguments)
{
    std::vector<double> x(2001), a(2001, 99.0);
    std::iota(x.begin(), x.end(), 0.0);
    double w = 99.0, p = 99.0;
    Record fail;
    g01ddc(2, x.data(), 1, a.data(), &w, &p, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "3", "n", 2);
    g01ddc(2001, x.data(), 1, a.data(), &w, &p, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_GT, "n", "2000", "n", 2001);
    const double disorder[] = {1.0, 3.0, 2.0}, gap[] = {1.0, kNan, 3.0}, equal[] = {2.0, 2.0, 2.0};
    g01ddc(3, disorder, 1, a.data(), &w, &p, &fail);
    EXPECT_REPORT(fail, NE_SAMPLES_NOT_IN_ORDER);
    g01ddc(3, gap, 1, a.data(), &w, &p, &fail);
    EXPECT_REPORT(fail, NE_SAMPLES_NOT_IN_ORDER);
    g01ddc(3, equal, 1, a.data(), &w, &p, &fail);
    EXPECT_REPORT(fail, NE_SAMPLES_ARE_ALL_EQUAL);
    EXPECT_EQ(a[0] + w + p, 297.0);
}

constexpr double kTied[] = {2.0, 1.0, 2.0, 5.0, 2.0, 3.0};

std::vector<double> scores_of(Integer scores, Integer ties, std::span<const double> x = kTied)
{
    Record fail;
    std::vector<double> r(x.size());
    g01dhc(scores, ties, static_cast<Integer>(x.size()), x.data(), r.data(), &fail);
    EXPECT_SUCCESS(fail);
    return r;
}

TEST(Ranks, TiesByEveryRule)
{
    using Values = std::vector<double>;
    EXPECT_EQ(scores_of(Kor_RankScores, Kor_AverageTies), (Values{3, 1, 3, 6, 3, 5}));
    EXPECT_EQ(scores_of(Kor_RankScores, Kor_LowestTies), (Values{2, 1, 2, 6, 2, 5}));
    EXPECT_EQ(scores_of(Kor_RankScores, Kor_HighestTies), (Values{4, 1, 4, 6, 4, 5}));
    EXPECT_EQ(scores_of(Kor_RankScores, Kor_IgnoreTies), (Values{2, 1, 3, 6, 4, 5}));
    // Savage: 1/6, + 1/5, + 1/4, ...; the group gets the mean of its scores, not the score of its mean rank.
    const double second = 1.0 / 6 + 1.0 / 5, third = second + 1.0 / 4, fourth = third + 1.0 / 3;
    EXPECT_NEAR(scores_of(Kor_SavageScores, Kor_AverageTies)[0], (second + third + fourth) / 3.0, 2 * kEps);
    EXPECT_NEAR(scores_of(Kor_SavageScores, Kor_HighestTies)[2], fourth, 2 * kEps);
    EXPECT_EQ(scores_of(Kor_RankScores, Kor_AverageTies, std::vector{kNan, 1.0, kNan}), (Values{2.5, 1, 2.5}));
}

TEST(Ranks, RandomTiesDrawFromTheGenerator)
{
    const std::vector<double> equal(40, 1.0);
    g05cbc(7);
    const auto first = scores_of(Kor_RankScores, Kor_RandomTies, equal);
    const auto second = scores_of(Kor_RankScores, Kor_RandomTies, equal);
    g05cbc(7);
    EXPECT_EQ(scores_of(Kor_RankScores, Kor_RandomTies, equal), first);
    EXPECT_NE(second, first);
    auto sorted = first;
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(sorted, scores_of(Kor_RankScores, Kor_IgnoreTies, equal));
}

TEST(Ranks, NormalFamilies)
{
    Record fail;
    const double x[] = {30.0, 10.0, 20.0, 50.0, 40.0};
    const auto deviate = [&](double p) { return g01fac(Kor_LowerTail, p, &fail); };
    EXPECT_NEAR(scores_of(Kor_BlomScores, Kor_IgnoreTies, x)[1], deviate(0.625 / 5.25), 4 * kEps);
    EXPECT_NEAR(scores_of(Kor_TukeyScores, Kor_IgnoreTies, x)[2], deviate((2.0 - 1.0 / 3) / (5.0 + 1.0 / 3)), 4 * kEps);
    EXPECT_NEAR(scores_of(Kor_WaerdenScores, Kor_IgnoreTies, x)[3], deviate(5.0 / 6.0), 4 * kEps);
    EXPECT_NEAR(scores_of(Kor_NormalScores, Kor_IgnoreTies, x)[3], 1.1629644736405196, 4 * kEps);
    EXPECT_EQ(scores_of(Kor_NormalScores, Kor_IgnoreTies, x)[0], 0.0);
}

TEST(Ranks, BadArguments)
{
    double r[] = {99.0};
    const double x[] = {1.0};
    Record fail;
    g01dhc(0, Kor_AverageTies, 1, x, r, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "scores");
    g01dhc(Kor_RankScores, 0, 1, x, r, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "ties");
    g01dhc(Kor_RankScores, Kor_AverageTies, 0, x, r, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", 0);
    EXPECT_EQ(r[0], 99.0);
}

} // namespace
