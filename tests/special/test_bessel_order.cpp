// Bessel functions of fractional order, sequences of orders, and zeros: values, failures, and the identities between them.
#include <kor/s17.h>
#include <kor/s18.h>

#include <vector>

#include <gtest/gtest.h>

#include "special/extended_precision.hpp"
#include "support/expect_report.hpp"
#include "support/ulp.hpp"

namespace kor::testing {
namespace {

// The values are rounded once from extended precision, as are the references: between numbers both may go astray.
const double kUlps = std::max(1.0, ulps_of_extended_kernels());
constexpr Integer kMostOrders = 102;
constexpr double kLargest = std::numeric_limits<double>::max();

struct QuarterValue {
    double (*routine)(double, Integer, KorError *);
    double x;
    Integer nu;
    double value;
};
struct KValue {
    Integer ia, ja;
    double x;
    Integer k;
    double plain, scaled;
};
struct SequenceValue {
    void (*routine)(double, double, Integer, Complex[], KorError *);
    double x, a;
    Integer k;
    double re, im;
};
struct ZeroValue {
    double a;
    Integer mode, k;
    double zero;
};

// The reference values, by kind.
#define QUARTER_VALUE(...) {__VA_ARGS__},
#define K_VALUE(...)
#define SEQUENCE_VALUE(...)
#define ZERO_VALUE(...)
const QuarterValue kQuarterValues[] = {
#include "special/bessel_order_data.inc"
};
#undef QUARTER_VALUE
#undef K_VALUE
#define QUARTER_VALUE(...)
#define K_VALUE(...) {__VA_ARGS__},
const KValue kKValues[] = {
#include "special/bessel_order_data.inc"
};
#undef K_VALUE
#undef SEQUENCE_VALUE
#define K_VALUE(...)
#define SEQUENCE_VALUE(...) {__VA_ARGS__},
const SequenceValue kSequenceValues[] = {
#include "special/bessel_order_data.inc"
};
#undef SEQUENCE_VALUE
#undef ZERO_VALUE
#define SEQUENCE_VALUE(...)
#define ZERO_VALUE(...) {__VA_ARGS__},
const ZeroValue kZeroValues[] = {
#include "special/bessel_order_data.inc"
};

TEST(BesselOrder, Quarters)
{
    for (const QuarterValue &v : kQuarterValues) {
        Record fail;
        EXPECT_LE(ulps(v.routine(v.x, v.nu, &fail), v.value), kUlps) << v.x << " " << v.nu;
        EXPECT_SUCCESS(fail);
    }
}

TEST(BesselOrder, SequencesOfK)
{
    for (const KValue &v : kKValues) {
        double plain[101], scaled[101];
        Record fail;
        s18egc(v.x, v.ia, v.ja, v.k, plain, &fail);
        if (std::isinf(v.plain)) {
            EXPECT_EQ(plain[v.k], kLargest);
            EXPECT_LT(plain[v.k / 2], kLargest);
            EXPECT_REPORT(fail, NE_OVERFLOW_LIKELY);
            continue;
        }
        EXPECT_SUCCESS(fail);
        s18ehc(v.x, v.ia, v.ja, v.k, scaled, &fail);
        EXPECT_SUCCESS(fail);
        EXPECT_LE(ulps(plain[v.k], v.plain), kUlps) << v.ia << "/" << v.ja << " + " << v.k << ", " << v.x;
        EXPECT_LE(ulps(scaled[v.k], v.scaled), kUlps) << v.ia << "/" << v.ja << " + " << v.k << ", " << v.x;
    }
}

TEST(BesselOrder, SequencesOfIAndJInBothDirections)
{
    for (const SequenceValue &v : kSequenceValues) {
        Complex b[kMostOrders];
        Record fail;
        v.routine(v.x, v.a, v.k, b, &fail);
        const Complex value = b[std::abs(v.k)];
        // J next to a zero is good relative to its amplitude only.
        const double size = std::hypot(v.re, v.im);
        const double scale =
            v.routine == s18ekc && std::abs(v.k) < std::fabs(v.x) ? 0.8 / std::sqrt(std::fabs(v.x)) : size;
        const double eps = std::max(size, scale) * 0x1p-52;
        EXPECT_LE(std::fabs(value.re - v.re), kUlps * eps) << v.x << " " << v.a << " " << v.k;
        EXPECT_LE(std::fabs(value.im - v.im), kUlps * eps) << v.x << " " << v.a << " " << v.k;
        EXPECT_SUCCESS(fail);
    }
}

TEST(BesselOrder, SequencesAgreeWithTheFunctionsOfFixedOrder)
{
    for (const double x : {1e-5, 0.77, 8.3, 64.9, 333.3, 12345.6}) {
        Complex b[2];
        s18ekc(x, 0.0, 1, b, nullptr);
        const double amplitude = std::sqrt(0.6366 / (x + 0.6366));
        EXPECT_NEAR(b[0].re, s17aec(x, nullptr), amplitude * 0x1p-51);
        EXPECT_NEAR(b[1].re, s17afc(x, nullptr), amplitude * 0x1p-51);
        if (x > 700.0) continue;
        s18ejc(-x, 0.0, 1, b, nullptr);
        EXPECT_LE(ulps(b[0].re, s18aec(x, nullptr)), 2.0);
        EXPECT_LE(ulps(b[1].re, -s18afc(x, nullptr)), 2.0);
        EXPECT_EQ(b[0].im, 0.0);
        double k[2];
        s18ehc(x, 0, 7, 1, k, nullptr);
        EXPECT_LE(ulps(k[0], s18ccc(x, nullptr)), 2.0);
        EXPECT_LE(ulps(k[1], s18cdc(x, nullptr)), 2.0);
    }
}

TEST(BesselOrder, ExtremeArguments)
{
    const double infinity = std::numeric_limits<double>::infinity();
    Record fail;
    EXPECT_EQ(s18ecc(0.0, 1, &fail), 0.0);
    EXPECT_EQ(s18ecc(infinity, -1, &fail), 0.0);
    EXPECT_EQ(s18edc(infinity, 1, &fail), 0.0);
    EXPECT_SUCCESS(fail);
    EXPECT_EQ(s18eec(714.0, 1, &fail), kLargest);
    EXPECT_REPORT(fail, NE_OVERFLOW_LIKELY);
    EXPECT_EQ(s18eec(infinity, -2, &fail), kLargest);
    EXPECT_TRUE(std::isnan(s18eec(std::nan(""), 2, &fail)));
    EXPECT_EQ(fail.code, NE_NOERROR);

    // At 0 all but the order 0 vanish.
    Complex b[kMostOrders];
    for (const auto routine : {s18ejc, s18ekc}) {
        routine(0.0, 0.0, 101, b, &fail);
        EXPECT_SUCCESS(fail);
        EXPECT_EQ(b[0].re, 1.0);
        for (int k = 1; k <= 101; ++k) EXPECT_EQ(b[k].re, 0.0);
        routine(0.0, 0.5, 1, b, &fail);
        EXPECT_EQ(b[0].re, 0.0);
        // Falling orders overflow with alternating signs, the first ones do not.
        routine(1e-20, 0.25, -101, b, &fail);
        EXPECT_REPORT(fail, NE_OVERFLOW_LIKELY);
        EXPECT_GT(b[0].re, 0.0);
        EXPECT_LT(b[0].re, 1.0);
        EXPECT_EQ(std::fabs(b[101].re), kLargest);
        EXPECT_EQ(b[101].re, -b[100].re);
        EXPECT_EQ(std::signbit(b[100].re), std::signbit(b[2].re));
        routine(std::nan(""), 0.25, 1, b, &fail);
        EXPECT_EQ(fail.code, NE_NOERROR);
        EXPECT_TRUE(std::isnan(b[1].re));
    }
    s18ejc(-infinity, 0.0, 1, b, &fail);
    EXPECT_REPORT(fail, NE_OVERFLOW_LIKELY);
    EXPECT_EQ(b[1].re, -kLargest);
    s18ekc(9.4e7, 0.25, 1, b, &fail);
    EXPECT_SUCCESS(fail);
    s18ekc(-9.6e7, 0.0, 1, b, &fail);
    EXPECT_REPORT(fail, NW_SOME_PRECISION_LOSS);
    EXPECT_NEAR(b[0].re, s17aec(9.6e7, nullptr), 1e-19);
    s18ekc(1.1e16, 0.25, 1, b, &fail);
    EXPECT_REPORT(fail, NE_TOTAL_PRECISION_LOSS);
    EXPECT_EQ(b[1].re, 0.0);
}

TEST(BesselOrder, IllegalArguments)
{
    Record fail;
    for (const auto i : {s18ecc, s18eec}) {
        EXPECT_EQ(i(0.0, -1, &fail), 0.0);
        EXPECT_REPORT(fail, NE_REAL_INT, "x", 0.0, "nu", -1, "x > 0.0 when nu < 0");
        i(-1.0, 2, &fail);
        EXPECT_REPORT(fail, NE_REAL_INT, "x", -1.0, "nu", 2, "x >= 0.0 when nu > 0");
        for (const Integer nu : {0, 4, -4, INT32_MIN}) {
            i(1.0, nu, &fail);
            EXPECT_REPORT(fail, NE_INT, "nu", nu, "1 <= abs(nu) <= 3");
        }
    }
    for (const auto k : {s18edc, s18efc}) {
        k(0.0, 1, &fail);
        EXPECT_REPORT(fail, NE_REAL, "x", 0.0, "x > 0.0");
        k(1.0, 0, &fail);
        EXPECT_REPORT(fail, NE_INT, "nu", 0, "1 <= abs(nu) <= 3");
    }
    for (const auto k : {s18egc, s18ehc}) {
        double b[1] = {99.0};
        k(-1.0, 9, 9, -1, b, &fail);
        EXPECT_REPORT(fail, NE_REAL, "x", -1.0, "x > 0.0");
        const Integer pairs[][2] = {{1, 1}, {-1, 2}, {1, 5}, {2, 4}, {0, 0}, {3, 2}};
        for (const auto &[ia, ja] : pairs) {
            k(1.0, ia, ja, -1, b, &fail);
            EXPECT_REPORT(fail, NE_INT_2, "ia", ia, "ja", ja, "ia and ja must constitute a valid pair (ia,ja)");
        }
        for (const Integer nl : {-1, 101}) {
            k(1.0, 0, 3, nl, b, &fail);
            EXPECT_REPORT(fail, NE_INT, "nl", nl, "0 <= nl <= 100");
        }
        EXPECT_EQ(b[0], 99.0);
    }
    for (const auto sequence : {s18ejc, s18ekc}) {
        Complex b[1] = {{99.0, 99.0}};
        sequence(0.0, 2.0, -1, b, &fail);
        EXPECT_REPORT(fail, NE_REAL_INT, "x", 0.0, "nl", -1, "x != 0.0 when nl < 0");
        for (const double a : {-0.1, 1.0}) {
            sequence(1.0, a, 999, b, &fail);
            EXPECT_REPORT(fail, NE_REAL, "a", a, "0.0 <= a < 1.0");
        }
        for (const Integer nl : {102, -102, INT32_MIN}) {
            sequence(1.0, 0.5, nl, b, &fail);
            EXPECT_REPORT(fail, NE_INT, "nl", nl, "abs(nl) <= 101");
        }
        EXPECT_EQ(b[0].re, 99.0);
    }
    double x[1] = {99.0};
    s17alc(-1.0, 0, 0, 0.0, x, &fail);
    EXPECT_REPORT(fail, NE_REAL, "a", -1.0, "a >= 0.0");
    s17alc(100001.0, 0, 0, 0.0, x, &fail);
    EXPECT_REPORT(fail, NE_REAL, "a", 100001.0, "a <= 100000.0");
    s17alc(1.0, 0, 0, 0.0, x, &fail);
    EXPECT_REPORT(fail, NE_INT, "n", 0, "n >= 1");
    s17alc(1.0, 1, 5, 0.0, x, &fail);
    EXPECT_REPORT(fail, NE_INT, "mode", 5, "1 <= mode <= 4");
    s17alc(1.0, 1, 4, 0.0, x, &fail);
    EXPECT_REPORT(fail, NE_REAL, "rel", 0.0, "rel > 0");
    EXPECT_EQ(x[0], 99.0);
}

TEST(BesselZeros, Values)
{
    for (const ZeroValue &v : kZeroValues) {
        std::vector<double> x(v.k);
        Record fail;
        s17alc(v.a, v.k, v.mode, 1e-12, x.data(), &fail);
        EXPECT_SUCCESS(fail);
        EXPECT_LE(ulps(x.back(), v.zero), kUlps) << v.a << " " << v.mode << " " << v.k;
    }
}

// Zeros of J and Y of order 1/2 are multiples of pi and of pi/2: errors do not add up, and none is left out.
TEST(BesselZeros, ManyOfHalfOrder)
{
    constexpr Integer kCount = 20000;
    constexpr long double kPi = 3.14159265358979323846264338327950288L;
    std::vector<double> j(kCount), y(kCount);
    s17alc(0.5, kCount, 1, 1e-12, j.data(), nullptr);
    s17alc(0.5, kCount, 2, 1e-12, y.data(), nullptr);
    for (Integer k = 0; k < kCount; ++k) {
        ASSERT_LE(ulps(j[k], static_cast<double>(kPi * (k + 1))), kUlps + 1.0) << k;
        ASSERT_LE(ulps(y[k], static_cast<double>(kPi * (k + 0.5L))), kUlps + 1.0) << k;
    }
}

// For the largest order: zeros of the four kinds interlace, a < j'_1 < y_1 < y'_1 < j_1 < j'_2 < ..., and the first ones
// have the distances that the zeros of Airy functions give them (Olver).
TEST(BesselZeros, LargestOrder)
{
    constexpr Integer kCount = 50;
    const double a = 1e5, root = std::cbrt(a / 2.0);
    double x[5][kCount];
    for (const Integer mode : {1, 2, 3, 4}) s17alc(a, kCount, mode, 1e-12, x[mode], nullptr);
    double last = a;
    for (int k = 0; k < kCount; ++k)
        for (const Integer mode : {3, 2, 4, 1}) {
            EXPECT_GT(x[mode][k], last) << mode << " " << k;
            last = x[mode][k];
        }
    const double airy[] = {0.0, 2.338107410459767, 1.173713222709128, 1.018792971647471, 2.294439682614123};
    for (const Integer mode : {1, 2, 3, 4}) EXPECT_NEAR((x[mode][0] - a) / root, airy[mode], 2e-3);
}

} // namespace
} // namespace kor::testing
