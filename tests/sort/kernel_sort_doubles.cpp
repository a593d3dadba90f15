// The kernels of the sort of doubles, each by itself: the processor chooses only one of them.
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

#include "sort/quicksort_doubles.hpp"
#include "sort/shapes.hpp"
#include "sort/sort_doubles.hpp"

namespace kor::sort {
namespace {

using Sort = std::ptrdiff_t (*)(double *, std::ptrdiff_t);

// A kernel that always chooses the worst pivot: what is left is the safeguard.
struct OneLane {
    static constexpr int width = 1;
    static double load(const double *p) { return *p; }
    static void store(double *p, double v) { *p = v; }
    static double min(double a, double b) { return a < b ? a : b; }
    static double max(double a, double b) { return a < b ? b : a; }
    static double reverse(double v) { return v; }
    static unsigned not_at_most(double a, double b) { return !(a <= b); }
    static unsigned negative_zeros(double v) { return v == 0.0 && std::signbit(v); }
};
struct WorstPivots {
    using Lanes = OneLane;
    static constexpr std::ptrdiff_t kShort = 8, kBitonicBlock = 1;
    static long partitions;
    static void sort_short(double *a, std::ptrdiff_t n) { insertion_sort(a, n); }
    static void sort_bitonic_block(double *) {}
    static Pivot choose_pivot(const double *a, std::ptrdiff_t n, Positions &)
    {
        ++partitions;
        return {*std::min_element(a, a + n), false};
    }
    static Counts partition(double *a, std::ptrdiff_t n, double pivot)
    {
        const auto less = std::partition(a, a + n, [=](double x) { return x < pivot; }) - a;
        return {less, n - less};
    }
    static Counts partition_three_ways(double *a, std::ptrdiff_t n, double pivot)
    {
        const auto less = partition(a, n, pivot).less;
        const auto greater = a + n - std::partition(a + less, a + n, [=](double x) { return x == pivot; });
        return {less, greater};
    }
};
long WorstPivots::partitions = 0;

std::vector<std::pair<const char *, Sort>> kernels()
{
    std::vector<std::pair<const char *, Sort>> all = {{"portable", sort_doubles_portable}};
#ifdef KOR_SORT_ON_VECTORS
    if (__builtin_cpu_supports("x86-64-v3")) all.push_back({"AVX2", sort_doubles_avx2});
    if (__builtin_cpu_supports("x86-64-v4")) all.push_back({"AVX-512", sort_doubles_avx512});
#endif
    all.push_back({"worst pivots", sort_numbers<WorstPivots>});
    return all;
}

// Sorts a copy, right before the end of its memory and right behind its beginning, where the sanitizer watches.
void expect_sorted(Sort sort, const std::vector<double> &values, const std::string &what)
{
    const auto as_bits = [](std::vector<double> v) {
        std::vector<uint64_t> bits;
        for (const double x : v) bits.push_back(std::bit_cast<uint64_t>(x));
        std::sort(bits.begin(), bits.end());
        return bits;
    };
    std::vector<double> sorted = values;
    const auto numbers = sort(sorted.data(), static_cast<std::ptrdiff_t>(sorted.size()));
    const auto end = sorted.begin() + numbers;
    const auto ascends = [](double x, double y) { return x < y || (x == y && std::signbit(x) && !std::signbit(y)); };
    ASSERT_TRUE(std::is_sorted(sorted.begin(), end, ascends)) << what;
    ASSERT_TRUE(std::none_of(sorted.begin(), end, [](double x) { return std::isnan(x); })) << what;
    ASSERT_TRUE(std::all_of(end, sorted.end(), [](double x) { return std::isnan(x); })) << what;
    ASSERT_EQ(as_bits(sorted), as_bits(values)) << what << ": other values than before";
}

TEST(SortNumbers, EveryKernelSortsEveryShape)
{
    for (const auto &[name, sort] : kernels())
        for (const testing::Shape &shape : testing::shapes())
            for (const int n : testing::sizes_to_test(150, {192, 256, 384, 512, 1000, 2048, 10000, 40000})) {
                if (n < 2) continue;
                std::vector<double> values;
                for (const int key : testing::keys_of(shape, n)) values.push_back(key - n / 3);
                for (std::size_t i = 0; i < values.size(); i += 2)
                    if (values[i] == 0.0) values[i] = -0.0;
                expect_sorted(sort, values, std::string{name} + ", " + shape.name + ", n = " + std::to_string(n));
            }
}

TEST(SortNumbers, EveryKernelMovesNansToTheEnd)
{
    std::mt19937 random{11};
    for (const auto &[name, sort] : kernels())
        for (const unsigned one_in : {1u, 2u, 10u, 500u})
            for (const int n : testing::sizes_to_test(70, {129, 257, 1000, 20000}))
                for (const bool ascending : {false, true}) {
                    if (n < 2) continue;
                    std::vector<double> values;
                    for (int i = 0; i < n; ++i) {
                        const bool is_nan = random() % one_in == 0;
                        const double x = ascending ? i : static_cast<double>(random() % 1000);
                        values.push_back(is_nan ? std::numeric_limits<double>::quiet_NaN() : x);
                    }
                    expect_sorted(sort, values, std::string{name} + ", n = " + std::to_string(n));
                }
}

TEST(SortNumbers, EveryKernelMergesRunsOfAllLengths)
{
    // Two runs of every pair of directions, overlapping in part; and a sorted front with a disorderly tail.
    std::mt19937 random{12};
    for (const auto &[name, sort] : kernels())
        for (const int left : {1, 3, 100, 600, 1000, 5000})
            for (const int right : {1, 2, 65, 513, 1024, 4000})
                for (int directions = 0; directions < 5; ++directions) {
                    std::vector<double> values;
                    for (int i = 0; i < left; ++i) values.push_back(directions & 1 ? 3 * (left - i) : 3 * i);
                    for (int i = 0; i < right; ++i) {
                        const int tidy = directions & 2 ? 2 * (right - i) + 500 : 2 * i + 500;
                        values.push_back(directions == 4 ? static_cast<int>(random() % 3000) : tidy);
                    }
                    expect_sorted(sort, values,
                                  std::string{name} + ", runs " + std::to_string(left) + " and " +
                                      std::to_string(right));
                }
}

TEST(SortNumbers, BadPartitionsAreGivenUpSoon)
{
    std::vector<double> values;
    for (const int key : testing::keys_of(testing::shapes()[0], 5000)) values.push_back(key);
    WorstPivots::partitions = 0;
    expect_sorted(sort_numbers<WorstPivots>, values, "worst pivots");
    EXPECT_LE(WorstPivots::partitions, 2 * std::log2(5000.0));
}

} // namespace
} // namespace kor::sort
