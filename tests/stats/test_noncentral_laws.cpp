// The non-central laws against references.
#include <kor/g01.h>

#include <cmath>
#include <limits>

#include "support/expect_report.hpp"

namespace {

using kor::testing::Record;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr Integer kMaxTerms = 5000;

enum Law { kChiSquared, kBeta, kT };

struct Reference {
    Law law;
    double x, p1, p2, lambda, lower;
};

constexpr Reference kReferences[] = {
#include "noncentral_laws_data.inc"
};

TEST(NoncentralLaws, AgreeWithTheReferences)
{
    for (const Reference &r : kReferences) {
        SCOPED_TRACE(testing::Message() << r.law << ": " << r.x << ", " << r.p1 << ", " << r.p2 << ", " << r.lambda);
        Record fail;
        const double got = r.law == kChiSquared ? g01gcc(r.x, r.p1, r.lambda, 0.0, kMaxTerms, &fail)
                           : r.law == kBeta     ? g01gec(r.x, r.p1, r.p2, r.lambda, 0.0, kMaxTerms, &fail)
                                                : g01gbc(r.x, r.p1, r.lambda, 0.0, kMaxTerms, &fail);
        EXPECT_SUCCESS(fail);
        EXPECT_NEAR(got / r.lower, 1.0, 1e-14);
    }
}

// F is beta at the same odds; these odds and this x are exact.
TEST(NoncentralLaws, FIsBeta)
{
    Record fail;
    for (const double lambda : {0.0, 0.5, 30.0, 1400.0})
        EXPECT_NEAR(g01gdc(1.5, 6.0, 9.0, lambda, 0.0, kMaxTerms, &fail) /
                        g01gec(0.5, 3.0, 4.5, lambda, 0.0, kMaxTerms, &fail),
                    1.0, 1e-14);
}

TEST(NoncentralLaws, TOfEitherSignAndAnySize)
{
    Record fail;
    // Non-centralities too large for one of the two forms, and the other one beside it: the law varies slowly.
    EXPECT_NEAR(g01gbc(116.19997462630305, 1.0103170079727197, 233.27520086925475, 0.0, 2000, &fail),
                1.0 - 0.955710446705537689, 1e-15);
    for (const double df : {1.0, 2.5, 800.0})
        for (const double t : {-300.0, -3.0, 0.0, 0.1, 30.0, 900.0})
            EXPECT_NEAR(g01gbc(t, df, 12.0, 0.0, kMaxTerms, &fail) + g01gbc(-t, df, -12.0, 0.0, kMaxTerms, &fail), 1.0,
                        1e-15)
                << t << " " << df;
    EXPECT_EQ(g01gbc(2.0, 7.0, 0.0, 0.0, 1, &fail), g01ebc(Kor_LowerTail, 2.0, 7.0, &fail));
    EXPECT_EQ(g01gbc(-2.0, 7.0, 0.0, 0.0, 1, &fail), g01ebc(Kor_LowerTail, -2.0, 7.0, &fail));
    EXPECT_EQ(g01gbc(kInfinity, 7.0, 1.0, 0.0, 1, &fail), 1.0);
    EXPECT_EQ(g01gbc(1.0, 7.0, kInfinity, 0.0, 1, &fail), 0.0);
    EXPECT_TRUE(std::isnan(g01gbc(1.0, kNan, 1.0, 0.0, 1, &fail)));
    EXPECT_SUCCESS(fail);
    // Far out the tail is a power of t, with or without a non-centrality.
    const double expected = 2.0 * g01eac(Kor_UpperTail, 1.0, &fail) - std::exp(-0.5) / std::sqrt(2.0 * std::acos(-1.0));
    for (const double t : {1e8, 1e50, 1e99})
        EXPECT_NEAR(g01gbc(-t, 2.0, 1.0, 0.0, kMaxTerms, &fail) * t * t, expected, 1e-14) << t;
    EXPECT_NEAR(g01gbc(-1e150, 2.0, 1.0, 0.0, kMaxTerms, &fail) / g01gbc(-1e100, 2.0, 1.0, 0.0, kMaxTerms, &fail),
                1e-100, 1e-113);
    EXPECT_NEAR(g01gbc(-1e120, 1.0, 1e-9, 0.0, kMaxTerms, &fail) / g01ebc(Kor_LowerTail, -1e120, 1.0, &fail), 1.0,
                1e-8);
    // A tolerance that 50 terms can meet.
    EXPECT_NEAR(g01gbc(1.528, 20.0, 2.0, 5e-6, 50, &fail) / g01gbc(1.528, 20.0, 2.0, 0.0, kMaxTerms, &fail), 1.0, 5e-6);
    EXPECT_SUCCESS(fail);
    EXPECT_EQ(g01gbc(1.528, 20.0, 2.0, 0.0, 10, &fail), 0.0);
    EXPECT_REPORT(fail, NE_CONV, "max_iter or tol");
    EXPECT_EQ(g01gbc(1.0, 0.5, 1.0, 0.0, 0, &fail), 0.0);
    EXPECT_REPORT(fail, NE_REAL_ARG_LT, "df", "1.0", "df", 0.5);
    EXPECT_EQ(g01gbc(1.0, 1.0, 1.0, 0.0, 0, &fail), 0.0);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "max_iter", "1", "max_iter", 0);
}

TEST(NoncentralLaws, LimitsAndTolerance)
{
    Record fail;
    EXPECT_EQ(g01gcc(0.0, 0.0, 2.0, 0.0, 10, &fail), std::exp(-1.0));
    EXPECT_EQ(g01gcc(0.0, 1.0, 2.0, 0.0, 10, &fail), 0.0);
    EXPECT_EQ(g01gcc(kInfinity, 1.0, 2.0, 0.0, 10, &fail), 1.0);
    EXPECT_EQ(g01gcc(3.0, 1.0, kInfinity, 0.0, 10, &fail), 0.0);
    EXPECT_EQ(g01gcc(3.0, 4.0, 0.0, 0.0, 10, &fail), g01ecc(Kor_LowerTail, 3.0, 4.0, &fail));
    EXPECT_EQ(g01gdc(kInfinity, 1.0, 2.0, 3.0, 0.0, 10, &fail), 1.0);
    EXPECT_EQ(g01gec(1.0, 1.0, 2.0, 3.0, 0.0, 10, &fail), 1.0);
    EXPECT_SUCCESS(fail);
    // A law of no degrees of freedom: a mass at 0, and near 0 little else.
    EXPECT_NEAR(g01gcc(1e-20, 0.0, 2.0, 0.0, 100, &fail), std::exp(-1.0), 1e-15);
    // A looser tolerance is met with fewer terms.
    const double exact = g01gcc(100.0, 5.0, 90.0, 0.0, kMaxTerms, &fail);
    EXPECT_EQ(g01gcc(100.0, 5.0, 90.0, 0.0, 100, &fail), 0.0);
    EXPECT_REPORT(fail, NE_CONV, "max_iter or tol");
    EXPECT_NEAR(g01gcc(100.0, 5.0, 90.0, 1e-3, 100, &fail) / exact, 1.0, 1e-3);
    EXPECT_SUCCESS(fail);
    EXPECT_TRUE(std::isnan(g01gcc(kNan, 5.0, 90.0, 0.0, 60, &fail)));
    EXPECT_TRUE(std::isnan(g01gdc(1.0, kNan, 90.0, 1.0, 0.0, 60, &fail)));
    EXPECT_TRUE(std::isnan(g01gec(0.5, 1.0, 90.0, kNan, 0.0, 60, &fail)));
}

TEST(NoncentralLaws, BadArguments)
{
    Record fail;
#define EXPECT_ERROR(call, ...)                                                                                        \
    EXPECT_EQ(call, 0.0);                                                                                              \
    EXPECT_REPORT(fail, __VA_ARGS__)
    constexpr const char *kLambda = "0.0 <= lambda <= -2.0*log(X02AMC)";
    EXPECT_ERROR(g01gcc(-1.0, 1.0, 1.0, 0.0, 9, &fail), NE_REAL_ARG_LT, "x", "0.0", "x", -1.0);
    EXPECT_ERROR(g01gcc(1.0, -1.0, 1.0, 0.0, 9, &fail), NE_REAL_ARG_LT, "df", "0.0", "df", -1.0);
    EXPECT_ERROR(g01gcc(1.0, 1.0, -1.0, 0.0, 9, &fail), NE_REAL_ARG_LT, "lambda", "0.0", "lambda", -1.0);
    EXPECT_ERROR(g01gcc(1.0, 0.0, 0.0, 0.0, 9, &fail), NE_2_REAL_ARG_CONS, "lambda", 0.0, "df", 0.0,
                 "lambda > 0.0 if df = 0.0");
    EXPECT_ERROR(g01gcc(1.0, 1.0, 1.0, 0.0, 0, &fail), NE_INT_ARG_LT, "max_iter", "1", "max_iter", 0);
    EXPECT_ERROR(g01gdc(-1.0, 1.0, 1.0, 1.0, 0.0, 9, &fail), NE_REAL_ARG_LT, "f", "0.0", "f", -1.0);
    EXPECT_ERROR(g01gdc(1.0, 0.0, 1.0, 1.0, 0.0, 9, &fail), NE_REAL_ARG_CONS, "df1", 0.0, "0.0 < df1 <= 1.0e6");
    EXPECT_ERROR(g01gdc(1.0, 1.0, 2e6, 1.0, 0.0, 9, &fail), NE_REAL_ARG_CONS, "df2", 2e6, "0.0 < df2 <= 1.0e6");
    EXPECT_ERROR(g01gdc(1.0, 1.0, 1.0, 1500.0, 0.0, 9, &fail), NE_REAL_ARG_CONS, "lambda", 1500.0, kLambda);
    EXPECT_ERROR(g01gdc(1.0, 1.0, 1.0, 1.0, 0.0, 0, &fail), NE_INT_ARG_LT, "max_iter", "1", "max_iter", 0);
    EXPECT_ERROR(g01gec(1.1, 1.0, 1.0, 1.0, 0.0, 9, &fail), NE_REAL_ARG_CONS, "x", 1.1, "0.0 <= x <= 1.0");
    EXPECT_ERROR(g01gec(0.5, 0.0, 1.0, 1.0, 0.0, 9, &fail), NE_REAL_ARG_CONS, "a", 0.0, "0.0 < a <= 1.0e6");
    EXPECT_ERROR(g01gec(0.5, 1.0, 2e6, 1.0, 0.0, 9, &fail), NE_REAL_ARG_CONS, "b", 2e6, "0.0 < b <= 1.0e6");
    EXPECT_ERROR(g01gec(0.5, 1.0, 1.0, -1.0, 0.0, 9, &fail), NE_REAL_ARG_CONS, "lambda", -1.0, kLambda);
    EXPECT_ERROR(g01gec(0.5, 1.0, 1.0, 1.0, 0.0, 0, &fail), NE_INT_ARG_LT, "max_iter", "1", "max_iter", 0);
#undef EXPECT_ERROR
}

} // namespace
