// Every sampler against a plain program that takes one uniform number at a time: the deviates, and how many numbers they
// took. Deviates agree to rounding of the elementary functions.
#include <cmath>
#include <functional>
#include <limits>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <kor/g05.h>

#include "support/expect_report.hpp"
#include "support/ulp.hpp"

namespace kor::testing {
namespace {

constexpr Integer kSeed = 31;
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kUntouched = 99.0;

struct Row {
    std::string sampler;
    std::vector<double> parameters, deviates;
    double next;
};
const Row kRows[] = {
#include "samplers_data.inc"
};

using Values = std::vector<double>;

// `one` n times over.
Values repeated(std::size_t n, const std::function<double()> &one)
{
    Values values(n);
    for (double &value : values) value = one();
    return values;
}

Values draw(const Row &row)
{
    const Values &p = row.parameters;
    const std::size_t n = row.deviates.size();
    const auto count = static_cast<Integer>(n);
    Record fail;
    Values x(n);
    Integer status = 0;
    if (row.sampler == "exponential") return repeated(n, [&] { return g05dbc(p[0]); });
    if (row.sampler == "normal") return repeated(n, [&] { return g05ddc(p[0], p[1]); });
    if (row.sampler == "cauchy") return repeated(n, [&] { return g05dfc(p[0], p[1]); });
    if (row.sampler == "half_gamma") return repeated(n, [&] { return g05dgc(p[0], p[1], &fail); });
    if (row.sampler == "poisson") return repeated(n, [&] { return g05drc(p[0], &status); });
    if (row.sampler == "integer")
        return repeated(n, [&] { return g05dyc(static_cast<Integer>(p[0]), static_cast<Integer>(p[1])); });
    if (row.sampler == "box_muller") {
        Values all(static_cast<std::size_t>(p[2]));
        g05fdc(p[0], p[1], static_cast<Integer>(all.size()), all.data());
        return Values(all.end() - count, all.end());
    }
    if (row.sampler == "gamma") {
        g05ffc(p[0], p[1], count, x.data(), &fail);
        EXPECT_SUCCESS(fail);
        return x;
    }
    if (row.sampler == "beta") {
        g05fec(p[0], p[1], count, x.data(), &fail);
        EXPECT_SUCCESS(fail);
        return x;
    }
    if (row.sampler == "permutation") {
        std::vector<Integer> index(n);
        for (std::size_t i = 0; i < n; ++i) index[i] = static_cast<Integer>(i);
        g05ehc(index.data(), count, &fail);
        EXPECT_SUCCESS(fail);
        return Values(index.begin(), index.end());
    }
    if (row.sampler == "subset") {
        std::vector<Integer> population(static_cast<std::size_t>(p[0])), chosen(n);
        for (std::size_t i = 0; i < population.size(); ++i) population[i] = static_cast<Integer>(i);
        g05ejc(population.data(), static_cast<Integer>(p[0]), chosen.data(), count, &fail);
        EXPECT_SUCCESS(fail);
        return Values(chosen.begin(), chosen.end());
    }
    if (row.sampler == "arma") {
        const auto order = static_cast<Integer>(p[0]), average = static_cast<Integer>(p[1]);
        g05hac(order, average, &p[2], &p[2 + order], p[2 + order + average], count, x.data(), &fail);
        EXPECT_SUCCESS(fail);
        return x;
    }
    ADD_FAILURE() << "no sampler " << row.sampler;
    return x;
}

TEST(Samplers, AgreeWithOneNumberAtATime)
{
    for (const Row &row : kRows) {
        g05cbc(kSeed);
        const Values x = draw(row);
        std::string name = row.sampler;
        for (const double p : row.parameters) name += " " + std::to_string(p);
        // Small shapes raise a number to a power of 1/shape, and its last bits with it.
        double smallest = 1.0;
        if (row.sampler == "gamma" || row.sampler == "beta")
            for (std::size_t i = 0; i < (row.sampler == "beta" ? 2u : 1u); ++i)
                smallest = std::min(smallest, row.parameters[i]);
        const double tolerance = 4e-15 / smallest;
        for (std::size_t i = 0; i < x.size(); ++i) {
            if (row.sampler == "box_muller") {
                EXPECT_LE(std::fabs(x[i] - row.deviates[i]), 4 * 0x1p-53 * (std::fabs(row.deviates[i]) + 2.0)) << name;
            } else {
                EXPECT_NEAR(x[i], row.deviates[i], tolerance * std::fabs(row.deviates[i]) + 1e-320)
                    << name << ", " << i;
            }
        }
        EXPECT_EQ(g05cac(), row.next) << name << ": count of uniform numbers";
    }
}

TEST(Samplers, BulkIsTheSameHoweverItIsCut)
{
    const std::map<std::string, std::function<void(Integer, double *)>> bulk = {
        {"uniform", [](Integer n, double *x) { g05fac(-1.5, 2.25, n, x); }},
        {"normal", [](Integer n, double *x) { g05fdc(1.5, 2.25, n, x); }},
        {"gamma 0.3", [](Integer n, double *x) { g05ffc(0.3, 2.25, n, x, nullptr); }},
        {"gamma 1", [](Integer n, double *x) { g05ffc(1.0, 2.25, n, x, nullptr); }},
        {"gamma 4.2", [](Integer n, double *x) { g05ffc(4.2, 2.25, n, x, nullptr); }},
        {"beta 0.3", [](Integer n, double *x) { g05fec(0.3, 2.25, n, x, nullptr); }},
        {"beta 1.3", [](Integer n, double *x) { g05fec(1.3, 2.25, n, x, nullptr); }},
    };
    constexpr Integer kAll = 3000;
    for (const auto &[name, sample] : bulk) {
        Values whole(kAll), pieces(kAll);
        g05cbc(kSeed);
        sample(kAll, whole.data());
        const double next = g05cac();
        g05cbc(kSeed);
        for (Integer at = 0, piece = 1; at < kAll; piece = piece * 7 % 311) {
            piece = std::min(piece, kAll - at);
            sample(piece, pieces.data() + at);
            at += piece;
        }
        EXPECT_EQ(pieces, whole) << name;
        EXPECT_EQ(g05cac(), next) << name;
        // Uniform numbers one at a time are the same numbers.
        if (name == "uniform") {
            g05cbc(kSeed);
            for (const double x : whole) ASSERT_EQ(g05dac(2.25, -1.5), x);
        }
    }
}

TEST(Samplers, SpareNormalStartsTheNextRun)
{
    double odd[3], even[4], whole[7];
    g05cbc(kSeed);
    g05fdc(0.0, 1.0, 7, whole);
    const double spare = get_dg05ca();
    g05cbc(kSeed);
    g05fdc(0.0, 1.0, 3, odd);
    EXPECT_EQ(get_dg05ca(), whole[3]);
    g05fdc(2.0, 3.0, 4, even);
    EXPECT_EQ(even[0], 2.0 + 3.0 * whole[3]) << "the spare is kept without mean and deviation";
    EXPECT_EQ(get_dg05ca(), spare);
    g05fdc(2.0, 3.0, 0, even);
    g05fdc(2.0, 3.0, -4, even);
    EXPECT_EQ(get_dg05ca(), spare) << "nothing asked, nothing done";
    g05fdc(0.0, 1.0, 1, even);
    EXPECT_EQ(get_dg05ca(), 256.0);
}

TEST(Samplers, UniformRangeIsOrderedAndClosed)
{
    const double awkward[][2] = {{0.1, 0.1},        {-7.3, -7.3}, {0.0, 0.0},  {1.0, 1.0 + 0x1p-52},
                                 {-1e308, 1.7e308}, {5.0, -2.0},  {0.0, -3.0}, {1e-310, 3e-310}};
    double x[500];
    for (const auto &[a, b] : awkward) {
        g05fac(a, b, 500, x);
        for (const double value : x) {
            ASSERT_GE(value, std::fmin(a, b));
            ASSERT_LE(value, std::fmax(a, b));
        }
    }
    g05fac(0.0, 1.0, 0, nullptr);
    g05fac(0.0, 1.0, -1, nullptr);
    g05fac(kNan, 1.0, 3, x);
    EXPECT_TRUE(std::isnan(x[0]));
}

TEST(Samplers, IntegersReachBothEndsAndNoFurther)
{
    for (const auto &[a, b] :
         {std::pair<Integer, Integer>{-3, 4}, {4, -3}, {2147483645, 2147483647}, {-2147483647 - 1, -2147483645}}) {
        std::map<Integer, int> seen;
        for (int i = 0; i < 400; ++i) ++seen[g05dyc(a, b)];
        EXPECT_EQ(seen.begin()->first, std::min(a, b));
        EXPECT_EQ(seen.rbegin()->first, std::max(a, b));
        EXPECT_EQ(seen.size(), static_cast<std::size_t>(std::abs(b - a)) + 1);
    }
    bool low = false, high = false;
    for (int i = 0; i < 4000; ++i) {
        const Integer k = g05dyc(-2147483647 - 1, 2147483647);
        low |= k < -2000000000;
        high |= k > 2000000000;
    }
    EXPECT_TRUE(low && high);
}

TEST(Samplers, ExtremeParametersEndAndStayInRange)
{
    Record fail;
    double x[200];
    for (const double shape : {5e-324, 1e-310, 1e-300, 1e-3, 1.0 - 0x1p-53, 1.0 + 0x1p-52, 1e15, 1e100, 1e300}) {
        g05ffc(shape, 1.0, 200, x, &fail);
        EXPECT_SUCCESS(fail);
        for (const double value : x) {
            ASSERT_GE(value, 0.0) << shape;
            ASSERT_LE(value, shape > 1e30 ? 1.0001 * shape : 40.0 * (shape + 40.0)) << shape;
        }
        for (const double other : {5e-324, 1e-305, 1e-3, 1.0, 1.0 + 0x1p-52, 30.0, 1e100, 1e300}) {
            g05fec(shape, other, 200, x, &fail);
            EXPECT_SUCCESS(fail);
            for (const double value : x) ASSERT_TRUE(value >= 0.0 && value <= 1.0) << shape << " " << other;
        }
    }
    // Two vanishing parameters: 0 and 1, in their ratio.
    double ones = 0.0;
    g05fec(4e-310, 4e-310, 200, x, &fail);
    for (const double value : x) {
        ASSERT_TRUE(value == 0.0 || value == 1.0);
        ones += value;
    }
    EXPECT_NEAR(ones, 100.0, 45.0); // 6.4 standard deviations
    EXPECT_EQ(g05dgc(0.0, 3.0, &fail), 0.0);
    EXPECT_EQ(g05dbc(0.0), 0.0);
}

TEST(Samplers, RefuseBadArguments)
{
    Record fail;
    double x = kUntouched;
    for (const double a : {0.0, -1.0}) {
        g05ffc(a, 0.0, 1, &x, &fail);
        EXPECT_REPORT(fail, NE_REAL_ARG_LE, "a", "0.0", "a", a);
        g05ffc(1.0, a, 1, &x, &fail);
        EXPECT_REPORT(fail, NE_REAL_ARG_LE, "b", "0.0", "b", a);
        g05fec(a, 0.0, 1, &x, &fail);
        EXPECT_REPORT(fail, NE_REAL_ARG_LE, "a", "0.0", "a", a);
        g05fec(1.0, a, 1, &x, &fail);
        EXPECT_REPORT(fail, NE_REAL_ARG_LE, "b", "0.0", "b", a);
    }
    for (const Integer n : {0, -1}) {
        g05ffc(2.0, 1.0, n, &x, &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_LE, "n", "0", "n", n);
        g05fec(2.0, 1.0, n, &x, &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_LE, "n", "0", "n", n);
        g05ehc(nullptr, n, &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", n);
        g05ejc(nullptr, n, nullptr, n, &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", n);
        g05ejc(nullptr, 1, nullptr, n, &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "m", "1", "m", n);
    }
    g05ejc(nullptr, 3, nullptr, 4, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_GT, "m", 4, "n", 3, "m", "n");
    for (const double huge : {1.1e300, kInfinity}) {
        g05ffc(huge, 1.0, 1, &x, &fail);
        EXPECT_REPORT(fail, NE_REAL_ARG_GT, "a", "1.0e300", "a", huge);
        g05fec(1.0, huge, 1, &x, &fail);
        EXPECT_REPORT(fail, NE_REAL_ARG_GT, "b", "1.0e300", "b", huge);
    }
    g05ffc(kNan, 1.0, 1, &x, &fail);
    EXPECT_EQ(fail.code, NE_REAL_ARG_LE);
    g05fec(1.0, kNan, 1, &x, &fail);
    EXPECT_EQ(fail.code, NE_REAL_ARG_LE);
    EXPECT_EQ(x, kUntouched);

    EXPECT_EQ(g05dgc(-0.5, -1.0, &fail), 0.0);
    EXPECT_REPORT(fail, NE_REAL_ARG_LT, "2*g", "0.0", "2*g", -1.0);
    EXPECT_EQ(g05dgc(0.6, -1.0, &fail), 0.0);
    EXPECT_REPORT(fail, NE_REAL_ARG_NON_INTEGRAL, "2*g");
    EXPECT_EQ(fail.code, 551);
    EXPECT_EQ(g05dgc(1.0, -1.0, &fail), 0.0);
    EXPECT_REPORT(fail, NE_REAL_ARG_LT, "b", "0.0", "b", -1.0);
    g05dgc(1e12, 1.0, &fail);
    EXPECT_REPORT(fail, NE_REAL_ARG_GT, "2*g", "2147483647.0", "2*g", 2e12);
    g05dgc(kNan, 1.0, &fail);
    EXPECT_EQ(fail.code, NE_REAL_ARG_NON_INTEGRAL);
    g05dgc(1.5 + 4e-7, 1.0, &fail);
    EXPECT_SUCCESS(fail) << "within 1e-6 of an integer";
    g05dgc(1.5 + 6e-7, 1.0, &fail);
    EXPECT_EQ(fail.code, NE_REAL_ARG_NON_INTEGRAL);
}

TEST(Samplers, PermutationReportsInCapitals)
{
    static std::string name;
    Record fail;
    fail.handler = [](const char *, Integer, const char *routine) { name = routine; };
    g05ehc(nullptr, 0, &fail);
    EXPECT_EQ(name, "G05EHC");
}

TEST(Samplers, WholePopulationAndSingleElements)
{
    Record fail;
    const Integer population[] = {7, -3, 7, 12};
    Integer chosen[4] = {};
    g05ejc(population, 4, chosen, 4, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_TRUE(std::equal(chosen, chosen + 4, population));
    Integer one = 5;
    g05ehc(&one, 1, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_EQ(one, 5);
}

TEST(Samplers, PoissonSaysWhatIsWrongOnStandardOutput)
{
    Integer status = -1;
    for (const double mean : {0.0, -2.5}) {
        ::testing::internal::CaptureStdout();
        EXPECT_EQ(g05drc(mean, &status), 0);
        char line[100];
        std::snprintf(line, sizeof line, " ** On entry, ALAMDA.le.ZERO : ALAMDA = %13.5e\n", mean);
        EXPECT_EQ(::testing::internal::GetCapturedStdout(), line);
        EXPECT_EQ(status, 1);
    }
    ::testing::internal::CaptureStdout();
    EXPECT_EQ(g05drc(1.1e9, &status), 0);
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), " ** On entry, 2*ALAMDA.gt.MAXINT : ALAMDA =   1.10000e+09\n");
    EXPECT_EQ(status, 2);
    ::testing::internal::CaptureStdout();
    g05drc(kNan, &status);
    EXPECT_EQ(status, 1);
    g05drc(kInfinity, &status);
    EXPECT_EQ(status, 2);
    ::testing::internal::GetCapturedStdout();
    g05drc(1073741823.5, &status);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(g05drc(5e-324, &status), 0);
    EXPECT_EQ(status, 0);
}

} // namespace
} // namespace kor::testing
