// Tails and quantiles of the continuous laws against references, over shapes from 1e-3 to 1e10 and tails to 1e-300.
#include <kor/g01.h>

#include <cmath>
#include <limits>

#include "support/expect_report.hpp"

namespace {

using kor::testing::Record;

enum Law { kNormal, kStudent, kF, kBeta, kGamma };

// Student's tails are two-sided: within and outside (-x, x).
struct Reference {
    Law law;
    double p1, p2, x, lower, upper;
};

constexpr Reference kReferences[] = {
#include "laws_data.inc"
};

constexpr double kEps = std::numeric_limits<double>::epsilon();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

struct Pair {
    double lower, upper;
};

Pair tails(Law law, double p1, double p2, double x)
{
    Record fail;
    Pair result{};
    double density;
    switch (law) {
    case kNormal:
        result = {g01eac(Kor_LowerTail, x, &fail), g01eac(Kor_UpperTail, x, &fail)};
        break;
    case kStudent:
        result = {g01ebc(Kor_TwoTailConfid, x, p1, &fail), g01ebc(Kor_TwoTailSignif, x, p1, &fail)};
        break;
    case kF:
        result = {g01edc(Kor_LowerTail, x, p1, p2, &fail), g01edc(Kor_UpperTail, x, p1, p2, &fail)};
        break;
    case kBeta:
        g01eec(x, p1, p2, 0.0, &result.lower, &result.upper, &density, &fail);
        break;
    case kGamma:
        result = {g01efc(Kor_LowerTail, x, p1, 1.0, &fail), g01efc(Kor_UpperTail, x, p1, 1.0, &fail)};
        break;
    }
    EXPECT_SUCCESS(fail);
    return result;
}

double quantile(Law law, double p1, double p2, double p, Record &fail)
{
    switch (law) {
    case kNormal:
        return g01fac(Kor_LowerTail, p, &fail);
    case kStudent:
        return g01fbc(Kor_TwoTailConfid, p, p1, &fail);
    case kF:
        return g01fdc(p, p1, p2, &fail);
    case kBeta:
        return g01fec(p, p1, p2, 0.0, &fail);
    default:
        return g01ffc(p, p1, 1.0, 0.0, &fail);
    }
}

TEST(Laws, BothTailsAgreeWithTheReferences)
{
    for (const Reference &r : kReferences) {
        SCOPED_TRACE(testing::Message() << "law " << r.law << " (" << r.p1 << ", " << r.p2 << ") at " << r.x);
        const Pair got = tails(r.law, r.p1, r.p2, r.x);
        EXPECT_NEAR(got.lower / r.lower, 1.0, 8 * kEps);
        EXPECT_NEAR(got.upper / r.upper, 1.0, 8 * kEps);
    }
}

// p(q(p)) = p, but for the rounding of q, which moves p by density x half a unit.
TEST(Laws, QuantilesReturnToTheirProbability)
{
    for (const Reference &r : kReferences) {
        if (r.lower > 0.9 || r.lower < 1e-290) continue;
        SCOPED_TRACE(testing::Message() << "law " << r.law << " (" << r.p1 << ", " << r.p2 << ") p " << r.lower);
        Record fail;
        const double x = quantile(r.law, r.p1, r.p2, r.lower, fail);
        EXPECT_SUCCESS(fail);
        const double below = tails(r.law, r.p1, r.p2, std::nextafter(x, -kInfinity)).lower;
        const double above =
            r.law == kBeta && x == 1.0 ? 1.0 : tails(r.law, r.p1, r.p2, std::nextafter(x, kInfinity)).lower;
        EXPECT_LE(below * (1.0 - 8 * kEps), r.lower);
        EXPECT_GE(above * (1.0 + 8 * kEps), r.lower);
    }
}

// The normal quantile has a polynomial in each of many intervals: one place of x to either side the tail is beyond q.
TEST(Laws, NormalQuantilesInAllPieces)
{
    Record fail;
    for (double minus_log = 0.4; minus_log < 690.0; minus_log *= 1.011) {
        const double q = std::exp(-minus_log), x = g01fac(Kor_UpperTail, q, &fail);
        EXPECT_GE(g01eac(Kor_UpperTail, std::nextafter(x, -kInfinity), &fail) * (1.0 + 2 * kEps), q) << q;
        EXPECT_LE(g01eac(Kor_UpperTail, std::nextafter(x, kInfinity), &fail) * (1.0 - 2 * kEps), q) << q;
        EXPECT_EQ(g01fac(Kor_LowerTail, q, &fail), -x) << q;
        if (q <= 0.25) {
            EXPECT_EQ(g01fac(Kor_TwoTailSignif, 2.0 * q, &fail), x) << q;
        }
    }
    for (double p = 1e-300; p < 1e-4; p *= 17.0) // (2 pi)^(1/2) p / 2 (1 + pi p^2 / 12)
        EXPECT_NEAR(g01fac(Kor_TwoTailConfid, p, &fail) / (1.2533141373155003 * p * (1.0 + 0.2617993877991494 * p * p)),
                    1.0, 2 * kEps)
            << p;
}

TEST(Laws, QuantilesOfExtremeTailsConvergeAndAreMonotone)
{
    for (const double df : {1.0, 1.5, 2.0, 3.0, 10.0, 100.0, 1e5, 1e10, 1e21})
        for (double p = 0.5, last = 0.0; p > 1e-300; p *= 1e-3) {
            Record fail;
            const double t = g01fbc(Kor_UpperTail, p, df, &fail);
            EXPECT_SUCCESS(fail);
            EXPECT_GE(t, last) << df << " " << p;
            EXPECT_NEAR(g01ebc(Kor_UpperTail, t, df, &fail) / p, 1.0,
                        8 * kEps * (1.0 + (df + 1) / (1.0 + df / (t * t))))
                << df << " " << p;
            last = t;
        }
    for (const double a : {1e-2, 0.3, 1.0, 7.0, 300.0, 1e6})
        for (double p = 0.5, last = HUGE_VAL; p > 1e-300; p *= 1e-3) {
            Record fail;
            const double g = g01ffc(p, a, 1.0, 0.0, &fail);
            if (fail.code == NE_PROBAB_CLOSE_TO_TAIL) {
                EXPECT_LT(std::log(p) / a, -700.0);
                continue;
            }
            EXPECT_SUCCESS(fail);
            EXPECT_LT(g, last) << a << " " << p;
            EXPECT_NEAR(g01efc(Kor_LowerTail, g, a, 1.0, &fail) / p, 1.0, 8 * kEps * (1.0 + a)) << a << " " << p;
            last = g;
        }
}

// The least probability that there is, which cannot be halved.
TEST(Laws, QuantilesOfTheLeastProbability)
{
    Record fail;
    constexpr double kLeast = std::numeric_limits<double>::denorm_min();
    EXPECT_NEAR(g01fac(Kor_TwoTailSignif, kLeast, &fail), 38.47, 0.02);
    for (const double df : {1e3, 1e10, 1e22}) {
        const double t = g01fbc(Kor_TwoTailSignif, kLeast, df, &fail);
        EXPECT_SUCCESS(fail);
        EXPECT_GT(t, 38.0) << df;
        EXPECT_LT(t, 60.0) << df;
    }
}

// With so many degrees of freedom the law is a step.
TEST(Laws, ChiSquaredOfBoundlessDegreesOfFreedom)
{
    Record fail;
    for (const double df : {1e300, kInfinity}) {
        EXPECT_EQ(g01fcc(0.3, df, &fail), df);
        EXPECT_SUCCESS(fail);
    }
}

// Closed forms: t with 1 and 2 degrees of freedom, chi-squared with 2, the uniform law.
TEST(Laws, ClosedForms)
{
    Record fail;
    constexpr double kPi = 3.14159265358979323846;
    for (const double t : {1e-200, 1e-9, 0.3, 1.0, 40.0, 1e8, 1e20, 1e200}) {
        EXPECT_NEAR(g01ebc(Kor_TwoTailSignif, t, 1.0, &fail) / (2.0 / kPi * std::atan(1.0 / t)), 1.0, 4 * kEps) << t;
        EXPECT_NEAR(g01ebc(Kor_TwoTailConfid, t, 1.0, &fail) / (2.0 / kPi * std::atan(t)), 1.0, 4 * kEps) << t;
        EXPECT_NEAR(g01fbc(Kor_UpperTail, std::atan(1.0 / t) / kPi, 1.0, &fail) / t, 1.0, t < 1.0 ? kEps / t : 8 * kEps)
            << t;
    }
    EXPECT_NEAR(g01fbc(Kor_UpperTail, 1e-300, 2.0, &fail) / std::sqrt(0.5e300), 1.0, 4 * kEps);
    for (const double x : {1e-300, 1e-3, 2.0, 100.0, 1300.0}) {
        EXPECT_NEAR(g01ecc(Kor_UpperTail, x, 2.0, &fail) / std::exp(-0.5 * x), 1.0, 4 * kEps) << x;
        EXPECT_NEAR(g01ecc(Kor_LowerTail, x, 2.0, &fail) / -std::expm1(-0.5 * x), 1.0, 4 * kEps) << x;
    }
    for (const double p : {1e-300, 1e-9, 0.25, 0.999}) {
        EXPECT_NEAR(g01fec(p, 1.0, 1.0, 0.0, &fail) / p, 1.0, 4 * kEps) << p;
        EXPECT_NEAR(g01fcc(p, 2.0, &fail) / (-2.0 * std::log1p(-p)), 1.0, 4 * kEps) << p;
    }
    double p, q, pdf;
    g01eec(0.25, 2.0, 3.0, 0.0, &p, &q, &pdf, &fail);
    EXPECT_NEAR(pdf, 12.0 * 0.25 * 0.75 * 0.75, 8 * kEps);
}

TEST(Laws, EndsAndLimits)
{
    Record fail;
    EXPECT_EQ(g01eac(Kor_LowerTail, -kInfinity, &fail), 0.0);
    EXPECT_EQ(g01eac(Kor_TwoTailConfid, kInfinity, &fail), 1.0);
    EXPECT_EQ(g01ebc(Kor_LowerTail, 0.0, 3.0, &fail), 0.5);
    EXPECT_EQ(g01ebc(Kor_UpperTail, kInfinity, 3.0, &fail), 0.0);
    EXPECT_EQ(g01fbc(Kor_UpperTail, 0.5, 3.0, &fail), 0.0);
    EXPECT_EQ(g01cec(0.5, &fail), 0.0);
    EXPECT_EQ(g01edc(Kor_UpperTail, 0.0, 2e5, 2e5, &fail), 1.0);
    EXPECT_EQ(g01fcc(0.0, 3.0, &fail), 0.0);
    EXPECT_EQ(g01fec(0.0, 2.0, 3.0, 0.0, &fail), 0.0);
    EXPECT_EQ(g01fec(1.0, 2.0, 3.0, 0.0, &fail), 1.0);
    EXPECT_SUCCESS(fail);
    // The density at the ends is 0 even where it is infinite.
    double p, q, pdf;
    g01eec(0.0, 0.5, 0.5, 0.0, &p, &q, &pdf, &fail);
    EXPECT_EQ(pdf, 0.0);
    g01eec(1.0, 0.5, 0.5, 0.0, &p, &q, &pdf, &fail);
    EXPECT_EQ(p, 1.0);
    EXPECT_EQ(pdf, 0.0);
    for (const double x : {1e-3, 0.999}) {
        g01eec(x, 1e5, 1e5, 0.0, &p, &q, &pdf, &fail);
        EXPECT_REPORT(fail, NE_PROBAB_CLOSE_TO_TAIL);
        EXPECT_EQ(p, x < 0.5 ? 0.0 : 1.0);
        EXPECT_EQ(q, 1.0 - p);
    }
    EXPECT_EQ(g01fcc(1e-300, 1e-3, &fail), 0.0);
    EXPECT_REPORT(fail, NE_PROBAB_CLOSE_TO_TAIL);
    EXPECT_EQ(g01fdc(0.9, 1.0, 1e-4, &fail), 0.0);
    EXPECT_REPORT(fail, NE_PROBAB_CLOSE_TO_TAIL);
}

TEST(Laws, NanGivesNan)
{
    Record fail;
    double p, q, pdf;
    EXPECT_TRUE(std::isnan(g01eac(Kor_UpperTail, kNan, &fail)));
    EXPECT_TRUE(std::isnan(g01fac(Kor_UpperTail, kNan, &fail)));
    EXPECT_TRUE(std::isnan(g01cec(kNan, &fail)));
    EXPECT_TRUE(std::isnan(g01ebc(Kor_UpperTail, 1.0, kNan, &fail)));
    EXPECT_TRUE(std::isnan(g01fbc(Kor_UpperTail, kNan, 2.0, &fail)));
    EXPECT_TRUE(std::isnan(g01ecc(Kor_UpperTail, kNan, 2.0, &fail)));
    EXPECT_TRUE(std::isnan(g01fcc(0.5, kNan, &fail)));
    EXPECT_TRUE(std::isnan(g01edc(Kor_UpperTail, 1.0, kNan, 2.0, &fail)));
    EXPECT_TRUE(std::isnan(g01fdc(0.5, kNan, 2.0, &fail)));
    g01eec(0.5, kNan, 2.0, 0.0, &p, &q, &pdf, &fail);
    EXPECT_TRUE(std::isnan(p));
    EXPECT_TRUE(std::isnan(g01fec(kNan, 2.0, 2.0, 0.0, &fail)));
    EXPECT_TRUE(std::isnan(g01efc(Kor_UpperTail, kNan, 2.0, 2.0, &fail)));
    EXPECT_TRUE(std::isnan(g01ffc(0.5, kNan, 2.0, 0.0, &fail)));
}

TEST(Laws, BadArguments)
{
    Record fail;
#define EXPECT_ERROR(call, ...)                                                                                        \
    EXPECT_EQ(call, 0.0);                                                                                              \
    EXPECT_REPORT(fail, __VA_ARGS__)
    EXPECT_ERROR(g01eac(Kor_Central, 1.0, &fail), NE_BAD_PARAM, "tail");
    EXPECT_ERROR(g01ecc(Kor_TwoTailSignif, 1.0, 1.0, &fail), NE_BAD_PARAM, "tail");
    EXPECT_ERROR(g01edc(Kor_TwoTailConfid, 1.0, 1.0, 1.0, &fail), NE_BAD_PARAM, "tail");
    EXPECT_ERROR(g01efc(0, 1.0, 1.0, 1.0, &fail), NE_BAD_PARAM, "tail");
    EXPECT_ERROR(g01cec(0.0, &fail), NE_REAL_ARG_LE, "p", "0.0", "p", 0.0);
    EXPECT_ERROR(g01cec(1.0, &fail), NE_REAL_ARG_GE, "p", "1.0", "p", 1.0);
    EXPECT_ERROR(g01fac(0, 0.0, &fail), NE_BAD_PARAM, "tail");
    EXPECT_ERROR(g01fac(Kor_LowerTail, 0.0, &fail), NE_REAL_ARG_LE, "p", "0.0", "p", 0.0);
    EXPECT_ERROR(g01fac(Kor_LowerTail, 1.0, &fail), NE_REAL_ARG_GE, "p", "1.0", "p", 1.0);
    EXPECT_ERROR(g01ebc(0, 1.0, 0.5, &fail), NE_BAD_PARAM, "tail");
    EXPECT_ERROR(g01ebc(Kor_LowerTail, 1.0, 0.5, &fail), NE_REAL_ARG_LT, "df", "1.0", "df", 0.5);
    EXPECT_ERROR(g01fbc(0, 0.5, 2.0, &fail), NE_BAD_PARAM, "tail");
    EXPECT_ERROR(g01fbc(Kor_LowerTail, 0.0, 0.5, &fail), NE_REAL_ARG_LE, "p", "0.0", "p", 0.0);
    EXPECT_ERROR(g01fbc(Kor_LowerTail, 1.0, 0.5, &fail), NE_REAL_ARG_GE, "p", "1.0", "p", 1.0);
    EXPECT_ERROR(g01fbc(Kor_LowerTail, 0.5, 0.5, &fail), NE_REAL_ARG_LT, "df", "1.0", "df", 0.5);
    EXPECT_ERROR(g01ecc(Kor_LowerTail, -1.0, 0.0, &fail), NE_REAL_ARG_LT, "x", "0.0", "x", -1.0);
    EXPECT_ERROR(g01ecc(Kor_LowerTail, 1.0, 0.0, &fail), NE_REAL_ARG_LE, "df", "0.0", "df", 0.0);
    EXPECT_ERROR(g01fcc(-0.1, 1.0, &fail), NE_REAL_ARG_LT, "p", "0.0", "p", -0.1);
    EXPECT_ERROR(g01fcc(1.0, 1.0, &fail), NE_REAL_ARG_GE, "p", "1.0", "p", 1.0);
    EXPECT_ERROR(g01fcc(0.5, 0.0, &fail), NE_REAL_ARG_LE, "df", "0.0", "df", 0.0);
    EXPECT_ERROR(g01edc(Kor_LowerTail, -1.0, 0.0, 1.0, &fail), NE_REAL_ARG_LE, "df1", "0.0", "df1", 0.0);
    EXPECT_ERROR(g01edc(Kor_LowerTail, -1.0, 1.0, 0.0, &fail), NE_REAL_ARG_LE, "df2", "0.0", "df2", 0.0);
    EXPECT_ERROR(g01edc(Kor_LowerTail, -1.0, 1.0, 1.0, &fail), NE_REAL_ARG_LT, "f", "0.0", "f", -1.0);
    EXPECT_ERROR(g01fdc(-0.1, 1.0, 1.0, &fail), NE_REAL_ARG_LT, "p", "0.0", "p", -0.1);
    EXPECT_ERROR(g01fdc(1.0, 1.0, 1.0, &fail), NE_REAL_ARG_GE, "p", "1.0", "p", 1.0);
    EXPECT_ERROR(g01fdc(0.5, 0.0, 1.0, &fail), NE_REAL_ARG_LE, "df1", "0.0", "df1", 0.0);
    EXPECT_ERROR(g01fdc(0.5, 1.0, 0.0, &fail), NE_REAL_ARG_LE, "df2", "0.0", "df2", 0.0);
    EXPECT_ERROR(g01fec(-0.1, 1.0, 1.0, 0.0, &fail), NE_REAL_ARG_LT, "p", "0.0", "p", -0.1);
    EXPECT_ERROR(g01fec(1.1, 1.0, 1.0, 0.0, &fail), NE_REAL_ARG_GT, "p", "1.0", "p", 1.1);
    EXPECT_ERROR(g01fec(0.5, 0.0, 1.0, 0.0, &fail), NE_REAL_ARG_LE, "a", "0.0", "a", 0.0);
    EXPECT_ERROR(g01fec(0.5, 1.5e6, 1.0, 0.0, &fail), NE_REAL_ARG_GT, "a", "1.0e6", "a", 1.5e6);
    EXPECT_ERROR(g01fec(0.5, 1.0, 0.0, 0.0, &fail), NE_REAL_ARG_LE, "b", "0.0", "b", 0.0);
    EXPECT_ERROR(g01fec(0.5, 1.0, 1.5e6, 0.0, &fail), NE_REAL_ARG_GT, "b", "1.0e6", "b", 1.5e6);
    EXPECT_ERROR(g01efc(Kor_LowerTail, -1.0, 1.0, 1.0, &fail), NE_REAL_ARG_LT, "g", "0.0", "g", -1.0);
    EXPECT_ERROR(g01efc(Kor_LowerTail, 1.0, 0.0, 1.0, &fail), NE_REAL_ARG_LE, "a", "0.0", "a", 0.0);
    EXPECT_ERROR(g01efc(Kor_LowerTail, 1.0, 1.0, 0.0, &fail), NE_REAL_ARG_LE, "b", "0.0", "b", 0.0);
    EXPECT_ERROR(g01ffc(-0.1, 1.0, 1.0, 0.0, &fail), NE_REAL_ARG_LT, "p", "0.0", "p", -0.1);
    EXPECT_ERROR(g01ffc(1.0, 1.0, 1.0, 0.0, &fail), NE_REAL_ARG_GE, "p", "1.0", "p", 1.0);
    EXPECT_ERROR(g01ffc(0.5, 0.0, 1.0, 0.0, &fail), NE_REAL_ARG_LE, "a", "0.0", "a", 0.0);
    EXPECT_ERROR(g01ffc(0.5, 1.5e6, 1.0, 0.0, &fail), NE_REAL_ARG_GT, "a", "1.0e6", "a", 1.5e6);
    EXPECT_ERROR(g01ffc(0.5, 1.0, 0.0, 0.0, &fail), NE_REAL_ARG_LE, "b", "0.0", "b", 0.0);
#undef EXPECT_ERROR

    const auto expect_untouched = [&](double x, double a, double b) {
        double p = 7.0, q = 7.0, pdf = 7.0;
        g01eec(x, a, b, 0.0, &p, &q, &pdf, &fail);
        EXPECT_EQ(p + q + pdf, 21.0);
    };
    expect_untouched(-0.1, 1.0, 1.0);
    EXPECT_REPORT(fail, NE_REAL_ARG_LT, "x", "0.0", "x", -0.1);
    expect_untouched(1.1, 1.0, 1.0);
    EXPECT_REPORT(fail, NE_REAL_ARG_GT, "x", "1.0", "x", 1.1);
    expect_untouched(0.5, 0.0, 1.0);
    EXPECT_REPORT(fail, NE_REAL_ARG_LE, "a", "0.0", "a", 0.0);
    expect_untouched(0.5, 1.5e6, 1.0);
    EXPECT_REPORT(fail, NE_REAL_ARG_GT, "a", "1.0e6", "a", 1.5e6);
    expect_untouched(0.5, 1.0, 0.0);
    EXPECT_REPORT(fail, NE_REAL_ARG_LE, "b", "0.0", "b", 0.0);
    expect_untouched(0.5, 1.0, 1.5e6);
    EXPECT_REPORT(fail, NE_REAL_ARG_GT, "b", "1.0e6", "b", 1.5e6);
}

} // namespace
