// Sorting doubles: against the standard sort on many shapes and sizes, special values, and the refusals.
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numeric>

#include <gtest/gtest.h>

#include <kor/m01.h>

#include "sort/shapes.hpp"
#include "support/expect_report.hpp"

namespace kor::testing {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::vector<uint64_t> bits_of(const std::vector<double> &values)
{
    std::vector<uint64_t> bits;
    for (const double value : values) bits.push_back(std::bit_cast<uint64_t>(value));
    return bits;
}

std::vector<double> sorted_by_m01cac(std::vector<double> values, Integer order = Kor_Ascending)
{
    Record fail;
    m01cac(values.data(), static_cast<Integer>(values.size()), order, &fail);
    EXPECT_SUCCESS(fail);
    return values;
}

// -0.0 before 0.0: what comparison of doubles does not see.
bool ascends(double x, double y) { return x < y || (x == y && std::signbit(x) && !std::signbit(y)); }

TEST(SortDoubles, AgreesWithTheStandardSortOnAllShapesAndSizes)
{
    for (const Shape &shape : shapes())
        for (const int n : sizes_to_test(300, {512, 1024, 4096, 20000})) {
            if (n == 0) continue;
            std::vector<double> values;
            // Signs, zeros of both kinds, and digits that a sort of integers or of single precision would lose.
            for (const int key : keys_of(shape, n)) values.push_back((key - n / 4) * 1.000000000001);
            for (std::size_t i = 0; i < values.size(); i += 3)
                if (values[i] == 0.0) values[i] = -0.0;
            std::vector<double> expected = values;
            std::sort(expected.begin(), expected.end(), ascends);
            ASSERT_EQ(bits_of(sorted_by_m01cac(values)), bits_of(expected)) << shape.name << ", n = " << n;
            std::reverse(expected.begin(), expected.end());
            ASSERT_EQ(bits_of(sorted_by_m01cac(values, Kor_Descending)), bits_of(expected))
                << shape.name << ", n = " << n;
        }
}

TEST(SortDoubles, NansComeLastInEitherOrderAndNoneIsLost)
{
    std::mt19937 random{5};
    for (const double share : {0.01, 0.3, 0.9, 1.0})
        for (const int n : sizes_to_test(130, {1000, 5000}))
            for (const Integer order : {Kor_Ascending, Kor_Descending}) {
                if (n < 2) continue;
                std::vector<double> values;
                for (int i = 0; i < n; ++i) {
                    const bool is_nan = std::uniform_real_distribution<>{}(random) < share;
                    // NaNs of both signs, each with a payload of its own.
                    const uint64_t nan =
                        static_cast<uint64_t>(random() & 1) << 63 | 0x7ff8000000000000u | static_cast<uint64_t>(i);
                    values.push_back(is_nan ? std::bit_cast<double>(nan) : std::ldexp(random() * 1.0, -16) - 30000.0);
                }
                std::vector<double> result = sorted_by_m01cac(values, order);
                const auto first_nan =
                    std::find_if(result.begin(), result.end(), [](double x) { return std::isnan(x); });
                EXPECT_TRUE(std::all_of(first_nan, result.end(), [](double x) { return std::isnan(x); })) << n;
                if (order == Kor_Ascending)
                    EXPECT_TRUE(std::is_sorted(result.begin(), first_nan)) << n;
                else
                    EXPECT_TRUE(std::is_sorted(result.begin(), first_nan, std::greater{})) << n;
                auto before = bits_of(values), after = bits_of(result);
                std::sort(before.begin(), before.end());
                std::sort(after.begin(), after.end());
                ASSERT_EQ(before, after) << "other values than before, n = " << n;
            }
}

TEST(SortDoubles, ExtremeValues)
{
    const std::vector<double> ascending = {-kInfinity, -1.7e308, -1.0,     -5e-324, -0.0,
                                           0.0,        5e-324,   2.2e-308, 1.0,     kInfinity};
    // Enough copies of each to reach every part of the sort.
    for (const std::size_t copies : {1u, 5u, 40u, 500u}) {
        std::vector<double> expected;
        for (const double value : ascending) expected.insert(expected.end(), copies, value);
        std::vector<double> values = expected;
        std::shuffle(values.begin(), values.end(), std::mt19937{9});
        EXPECT_EQ(bits_of(sorted_by_m01cac(values)), bits_of(expected)) << copies;
    }
}

// M. D. McIlroy, A killer adversary for quicksort (1999), played against medians of fixed positions: organ pipes within
// organ pipes, and permutations that put small values where medians of three look.
TEST(SortDoubles, NoShapeIsQuadratic)
{
    constexpr int n = 400000; // quadratic time would be minutes
    std::vector<double> killer(n);
    for (int i = 0; i < n / 2; ++i) {
        killer[static_cast<std::size_t>(2 * i)] = i;
        killer[static_cast<std::size_t>(2 * i + 1)] = n / 2 + i;
    }
    std::vector<double> expected(n);
    std::iota(expected.begin(), expected.end(), 0.0);
    EXPECT_EQ(sorted_by_m01cac(killer), expected);
    for (const Shape &shape : shapes()) {
        std::vector<double> values;
        for (const int key : keys_of(shape, n)) values.push_back(key);
        values = sorted_by_m01cac(values);
        EXPECT_TRUE(std::is_sorted(values.begin(), values.end())) << shape.name;
    }
}

TEST(SortDoubles, Refusals)
{
    const std::vector<double> before = {3.0, 1.0, 2.0};
    std::vector<double> x = before;
    Record fail;
    m01cac(x.data(), 3, Kor_First, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "order");
    m01cac(x.data(), 0, Kor_First, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "order");
    m01cac(x.data(), 0, Kor_Ascending, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", 0);
    for (const Integer n : {-1, INT32_MIN, 268435456, INT32_MAX}) {
        m01cac(x.data(), n, Kor_Descending, &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_GT, "n", "268435455", "n", n);
    }
    EXPECT_EQ(x, before);
    // One element is in order, whatever the order.
    m01cac(x.data(), 1, Kor_First, &fail);
    EXPECT_SUCCESS(fail);
}

} // namespace
} // namespace kor::testing
