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

enum Law { kChiSquared, kBeta };

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
                                                : g01gec(r.x, r.p1, r.p2, r.lambda, 0.0, kMaxTerms, &fail);
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

TEST(NoncentralLaws, LimitsAndTolerance)
{
    Record fail;
    EXPECT_EQ(g01gcc(0.0, 0.0, 2.0, 0.0, 10, &fail), std::exp(-1.0));
    EXPECT_EQ(g01gcc(0.0, 1.0, 2.0, 0.0, 10, &fail), 0.0);
    EXPECT_EQ(g01gcc(kInfinity, 1.0, 2.0, 0.0, 10, &fail), 1.0);
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
