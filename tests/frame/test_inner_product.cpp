// x03aac beside exact rationals, and its refusals.
#include <cmath>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include <kor/x03.h>

#include "support/expect_report.hpp"

namespace {

using kor::testing::Record;

struct Sum {
    double d1 = 99.0, d2 = 99.0;
};

Sum accumulate(const std::vector<double> &a, const std::vector<double> &b, double c1 = 0.0, double c2 = 0.0,
               Boolean sw = 1)
{
    Record fail;
    Sum sum;
    const auto n = static_cast<Integer>(a.size());
    x03aac(a.data(), n, b.data(), n, n, 1, 1, c1, c2, &sum.d1, &sum.d2, sw, &fail);
    EXPECT_SUCCESS(fail);
    return sum;
}

enum Kind { kExact, kRounded };

struct Case {
    Kind kind;
    std::vector<double> a, b;
    double c1, c2;
    double high, low, moduli;
};

const std::vector<Case> kCases = {
#include "frame/inner_product_data.inc"
};

TEST(InnerProduct, DoubledPrecisionBesideExactRationals)
{
    for (std::size_t i = 0; i < kCases.size(); ++i) {
        const Case &c = kCases[i];
        const Sum sum = accumulate(c.a, c.b, c.c1, c.c2);
        if (c.kind == kExact) {
            EXPECT_EQ(sum.d1, c.high) << "case " << i;
            EXPECT_EQ(sum.d2, c.low) << "case " << i;
            continue;
        }
        const double terms = static_cast<double>(c.a.size()) + 2.0;
        EXPECT_LE(std::fabs((sum.d1 - c.high) + (sum.d2 - c.low)), terms * 0x1p-104 * c.moduli) << "case " << i;
        EXPECT_EQ(sum.d1, sum.d1 + sum.d2) << "the parts overlap, case " << i;
    }
}

TEST(InnerProduct, LongSeriesKeepsItsLowPart)
{
    // 0.1 is 3602879701896397 2^-55; a million squares of it are 10^6 3602879701896397^2 2^-110.
    const std::vector<double> tenths(1000000, 0.1);
    const Sum sum = accumulate(tenths, tenths);
    EXPECT_EQ(sum.d1, 10000.000000000002);
    EXPECT_NEAR(sum.d2, -7.087663789206999e-13, 5e-22);
}

TEST(InnerProduct, PlainPrecisionRoundsAsItGoes)
{
    const Sum sum = accumulate({1e16, 1.0, -1e16}, {1.0, 1.0, 1.0}, 0.5, 1e300, 0);
    EXPECT_EQ(sum.d1, 0.0); // 1e16 + 0.5 + 1 loses both, and c2 does not count
    EXPECT_EQ(sum.d2, 0.0);
    EXPECT_EQ(accumulate({1e16, 1.0, -1e16}, {1.0, 1.0, 1.0}, 0.5, 0.0).d1, 1.5);
}

TEST(InnerProduct, StepsLengthsAndUnreadSizes)
{
    const double a[] = {1, -9, -9, 2, -9, -9, 3};
    const double b[] = {4, -9, 5, -9, 6};
    for (const Boolean sw : {Boolean{0}, Boolean{1}, Boolean{0x91}}) {
        Record fail;
        Sum sum;
        x03aac(a, -7, b, 0, 3, 3, 2, 100.0, 0.0, &sum.d1, &sum.d2, sw, &fail);
        EXPECT_SUCCESS(fail);
        EXPECT_EQ(sum.d1, 132.0);
        for (const Integer n : {0, -5}) {
            x03aac(nullptr, 0, nullptr, 0, n, 1, 1, 1.0, 0x1p-70, &sum.d1, &sum.d2, sw, nullptr);
            EXPECT_EQ(sum.d1, 1.0);
            EXPECT_EQ(sum.d2, sw != 0 ? 0x1p-70 : 0.0);
        }
    }
}

TEST(InnerProduct, RefusesStepsInOrder)
{
    const double a[] = {1.0};
    Sum sum;
    Record fail;
    fail.errnum = 5;
    x03aac(a, 1, a, 1, 1, 0, 0, 0.0, 0.0, &sum.d1, &sum.d2, 1, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LE, "stepa", "0", "stepa", 0);
    EXPECT_EQ(fail.errnum, 0);
    x03aac(a, 1, a, 1, 1, 1, -2, 0.0, 0.0, &sum.d1, &sum.d2, 1, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LE, "stepb", "0", "stepb", -2);
    EXPECT_EQ(sum.d1, 99.0);
    EXPECT_EQ(sum.d2, 99.0);
}

// What is not finite comes out as plain arithmetic has it, not as the NaN of an error term.
TEST(InnerProduct, OverflowAndInfinitiesAsInPlainArithmetic)
{
    constexpr double inf = std::numeric_limits<double>::infinity();
    EXPECT_EQ(accumulate({1e200, 1.0}, {1e200, 1.0}).d1, inf);
    EXPECT_EQ(accumulate({-1e200, 1.0}, {1e200, 1.0}).d1, -inf);
    EXPECT_EQ(accumulate({inf, 1.0}, {2.0, 1.0}).d1, inf);
    EXPECT_EQ(accumulate({inf, 1.0}, {2.0, 1.0}).d2, 0.0);
    EXPECT_TRUE(std::isnan(accumulate({inf, inf}, {1.0, -1.0}).d1));
    EXPECT_TRUE(std::isnan(accumulate({1.0}, {std::nan("")}).d1));
}

} // namespace
