// Ranks (m01dsc), permutations (m01zac, m01zbc, m01esc) and search (m01fsc).
#include <cmath>
#include <numeric>

#include <gtest/gtest.h>

#include <kor/m01.h>

#include "sort/adversary.hpp"
#include "sort/records.hpp"
#include "sort/shapes.hpp"
#include "support/expect_report.hpp"

namespace kor::testing {
namespace {

constexpr Integer kOrders[] = {Kor_Ascending, Kor_Descending};
constexpr Integer kMostCount = 268435455;

std::vector<Integer> stable_ranks(const std::vector<int> &keys, Integer order)
{
    std::vector<Integer> indices(keys.size()), ranks(keys.size());
    std::iota(indices.begin(), indices.end(), 0);
    std::stable_sort(indices.begin(), indices.end(), [&](Integer i, Integer j) {
        const int x = keys[static_cast<std::size_t>(i)], y = keys[static_cast<std::size_t>(j)];
        return order == Kor_Descending ? x > y : x < y;
    });
    for (std::size_t i = 0; i < indices.size(); ++i)
        ranks[static_cast<std::size_t>(indices[i])] = static_cast<Integer>(i);
    return ranks;
}

std::vector<Integer> shuffled(Integer n, unsigned seed)
{
    std::vector<Integer> permutation(static_cast<std::size_t>(n));
    std::iota(permutation.begin(), permutation.end(), 0);
    std::shuffle(permutation.begin(), permutation.end(), std::mt19937{seed});
    return permutation;
}

TEST(Ranks, AgreeWithTheStableSortOnAllShapesAndSizes)
{
    for (const Shape &shape : shapes())
        for (const int n : sizes_to_test(140, {256, 1000, 5000, 20000}))
            for (const Integer order : kOrders)
                for (const int stride : {8, -8}) {
                    const std::vector<int> keys = keys_of(shape, n);
                    Records records{keys, 8, stride};
                    std::vector<Integer> ranks(keys.size());
                    Record fail;
                    Records::comparisons() = 0;
                    m01dsc(records.first(), n, stride, Records::compare, order, ranks.data(), &fail);
                    EXPECT_SUCCESS(fail);
                    ASSERT_EQ(ranks, stable_ranks(keys, order)) << shape.name << ", n = " << n;
                    // Sorting takes n log2 n - 1.44 n at least on average; order that is there takes n.
                    const bool in_order = order == Kor_Ascending && std::is_sorted(keys.begin(), keys.end());
                    const double most = in_order ? n : 1.1 * n * std::log2(n + 1.0) + 2.0;
                    EXPECT_LE(Records::comparisons(), most) << shape.name << ", n = " << n;
                }
}

TEST(Ranks, ALyingComparatorStillGivesAPermutation)
{
    static std::mt19937 random{3};
    for (const int n : {2, 3, 17, 100, 5000}) {
        std::vector<Integer> ranks(static_cast<std::size_t>(n), -1);
        Record fail;
        m01dsc(
            ranks.data(), n, 4,
            [](const void *, const void *) -> Integer { return static_cast<int>(random() % 3) - 1; }, Kor_Ascending,
            ranks.data(), &fail);
        EXPECT_SUCCESS(fail);
        std::sort(ranks.begin(), ranks.end());
        for (int i = 0; i < n; ++i) ASSERT_EQ(ranks[static_cast<std::size_t>(i)], i);
    }
}

// As in the test of sorting: whatever pivot is chosen, it turns out to be bad.
TEST(Ranks, NeverQuadratic)
{
    constexpr int n = 20000;
    Adversary adversary{n};
    std::vector<int> elements(n);
    std::iota(elements.begin(), elements.end(), 0);
    std::vector<Integer> ranks(n);
    Record fail;
    m01dsc(elements.data(), n, sizeof(int), Adversary::compare, Kor_Ascending, ranks.data(), &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_LT(adversary.comparisons, 3.0 * n * std::log2(n));
}

TEST(Ranks, Refusals)
{
    Integer ranks[] = {7, 7, 7};
    const int x[] = {3, 1, 2};
    Record fail;
    m01dsc(x, -1, 0, Records::compare, Kor_First, ranks, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "order");
    for (const Integer n : {-1, kMostCount + 1}) {
        m01dsc(x, n, 0, Records::compare, Kor_Ascending, ranks, &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_GT, "n", "268435455", "n", n);
    }
    m01dsc(x, 3, 0, Records::compare, Kor_Ascending, ranks, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_EQ, "stride", "0", "stride", 0);
    m01dsc(x, 3, -715827883, Records::compare, Kor_Ascending, ranks, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_GT, "|stride|", "p (p = 715827882)", "stride", -715827883);
    EXPECT_EQ(ranks[0] + ranks[1] + ranks[2], 21);
    m01dsc(nullptr, 0, INT32_MAX, Records::compare, Kor_Ascending, nullptr, &fail);
    EXPECT_SUCCESS(fail);
}

TEST(Permutation, InverseUndoesIt)
{
    for (const Integer n : {0, 1, 2, 3, 10, 1000})
        for (unsigned seed = 0; seed < 5; ++seed) {
            const std::vector<Integer> permutation = shuffled(n, seed);
            std::vector<Integer> inverse = permutation;
            Record fail;
            m01zac(inverse.data(), n, &fail);
            EXPECT_SUCCESS(fail);
            for (std::size_t i = 0; i < permutation.size(); ++i)
                ASSERT_EQ(inverse[static_cast<std::size_t>(permutation[i])], static_cast<Integer>(i));

            // The same between other bounds, behind elements that are not part of it.
            for (const Integer m1 : {1, 5}) {
                if (n == 0) continue; // no such bounds
                std::vector<Integer> shifted(static_cast<std::size_t>(m1 - 1), -99);
                for (const Integer p : permutation) shifted.push_back(p + m1);
                Integer ifail = 1;
                m01zbc(shifted.data(), m1, m1 + n - 1, &ifail);
                EXPECT_EQ(ifail, 0);
                for (std::size_t i = 0; i < permutation.size(); ++i)
                    ASSERT_EQ(shifted[i + static_cast<std::size_t>(m1) - 1], inverse[i] + m1);
                EXPECT_TRUE(m1 == 1 || shifted[0] == -99);
            }
        }
}

TEST(Permutation, WhatIsNoneIsRefusedAndLeftAlone)
{
    struct Case {
        std::vector<Integer> rank;
        Integer status; // of m01zbc, for the same values with 1 added
    };
    const Case cases[] = {
        {{0, 1, 3}, 2}, {{-1, 1, 2}, 2}, {{1, 0, 1 << 30}, 2}, {{INT32_MIN, 0, 1}, 2},
        {{0, 0, 1}, 3}, {{1, 2, 2}, 3},  {{2, 2, 2, 2}, 3},    {{1, 0, 3, 4, 3}, 3},
    };
    for (const Case &c : cases) {
        const auto n = static_cast<Integer>(c.rank.size());
        std::vector<Integer> rank = c.rank;
        Record fail;
        m01zac(rank.data(), n, &fail);
        EXPECT_REPORT(fail, NE_BAD_RANK, "rank");
        EXPECT_EQ(rank, c.rank);

        for (Integer &value : rank) ++value;
        const std::vector<Integer> before = rank;
        Integer ifail = 1;
        m01zbc(rank.data(), 1, n, &ifail);
        EXPECT_EQ(ifail, c.status);
        EXPECT_EQ(rank, before);

        // Rearrangement moves elements until it finds out, but loses none, and gives the indices back.
        std::vector<Integer> indices = c.rank;
        std::vector<int> keys(c.rank.size());
        std::iota(keys.begin(), keys.end(), 10);
        Records records{keys, 20, 20};
        m01esc(records.first(), n, 20, 20, indices.data(), &fail);
        EXPECT_REPORT(fail, NE_BAD_RANK, "indices");
        EXPECT_EQ(indices, c.rank);
        std::vector<int> after = records.keys();
        if (c.status == 2) {
            EXPECT_EQ(after, keys) << "an index out of range is found beforehand";
        }
        std::sort(after.begin(), after.end());
        EXPECT_EQ(after, keys);
        EXPECT_TRUE(records.intact());
    }
    Integer rank[] = {1, 2, 3};
    for (const auto &[m1, m2] : {std::pair{0, 3}, {3, 2}, {-5, -2}}) {
        Integer ifail = 1;
        m01zbc(rank, m1, m2, &ifail);
        EXPECT_EQ(ifail, 1);
    }
    ::testing::internal::CaptureStdout();
    Integer ifail = -1;
    m01zbc(rank, 0, 3, &ifail);
    EXPECT_NE(::testing::internal::GetCapturedStdout().find("M01ZBC"), std::string::npos);
    for (const Integer n : {-1, kMostCount + 1}) {
        Record fail;
        m01zac(rank, n, &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_GT, "n", "268435455", "n", n);
    }
}

TEST(Rearrangement, PositionReceivesTheElementOfItsIndex)
{
    for (const int n : {0, 1, 2, 3, 50})
        for (const int size : {8, 12, 16, 100, 256, 257, 300})
            for (const int stride : {size, -size, size + 5}) {
                std::vector<int> keys(static_cast<std::size_t>(n));
                std::iota(keys.begin(), keys.end(), 0);
                const std::vector<Integer> permutation = shuffled(n, 7);
                std::vector<Integer> indices = permutation;
                Records records{keys, size, stride};
                Record fail;
                m01esc(records.first(), n, size, stride, indices.data(), &fail);
                EXPECT_SUCCESS(fail);
                EXPECT_EQ(indices, permutation);
                EXPECT_EQ(records.origins(), permutation);
                EXPECT_TRUE(records.intact());
            }
}

TEST(Rearrangement, RanksTurnedIntoIndicesSort)
{
    std::vector<double> x = {2.5, -1.0, 7.25, 0.5, 2.5};
    const auto compare = [](const void *a, const void *b) -> Integer {
        const double u = *static_cast<const double *>(a), v = *static_cast<const double *>(b);
        return (u > v) - (u < v);
    };
    Integer index[5];
    Record fail;
    m01dsc(x.data(), 5, 8, compare, Kor_Ascending, index, &fail);
    m01zac(index, 5, &fail);
    m01esc(x.data(), 5, 8, 8, index, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_EQ(x, (std::vector<double>{-1.0, 0.5, 2.5, 2.5, 7.25}));
}

TEST(Rearrangement, Refusals)
{
    int x[] = {1, 2, 3};
    Integer indices[] = {2, 1, 0};
    Record fail;
    m01esc(x, -1, 0, 0, indices, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_GT, "n", "268435455", "n", -1);
    m01esc(x, 3, 0, 4, indices, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "size", "1", "size", 0);
    m01esc(x, 3, INT32_MAX, 4, indices, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_GT, "size", "715827882", "size", INT32_MAX);
    m01esc(x, 3, 4, -3, indices, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "|stride|", 3, "size", 4, "|stride|", "size");
    m01esc(x, 3, 4, INT32_MIN, indices, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_GT, "|stride|", "715827882", "stride", INT32_MIN);
    EXPECT_EQ(x[0] * 100 + x[1] * 10 + x[2], 123);
    EXPECT_EQ(indices[0] * 100 + indices[1] * 10 + indices[2], 210);
}

TEST(Search, FindsFirstAndLastAndTheNeighbours)
{
    for (int n = 0; n <= 40; ++n)
        for (const int repeats : {1, 2, 3, 50})
            for (const Integer order : kOrders)
                for (const int stride : {8, -12}) {
                    std::vector<int> keys;
                    for (int i = 0; i < n; ++i) keys.push_back(2 * (i / repeats));
                    if (order == Kor_Descending) std::reverse(keys.begin(), keys.end());
                    Records records{keys, 8, stride};
                    const auto at = [&](std::ptrdiff_t i) { return records.first() + i * stride; };
                    const auto sorts_before = [&](int x, int y) { return order == Kor_Ascending ? x < y : x > y; };
                    for (int wanted = -1; wanted <= 2 * n + 1; ++wanted) {
                        const auto first =
                            std::lower_bound(keys.begin(), keys.end(), wanted, sorts_before) - keys.begin();
                        const auto behind =
                            std::upper_bound(keys.begin(), keys.end(), wanted, sorts_before) - keys.begin();
                        static int key;
                        key = wanted;
                        const auto compare = [](const void *a, const void *b) -> Integer {
                            EXPECT_EQ(a, &key) << "the key comes first";
                            return key - Records::key(b, 8);
                        };
                        Record fail;
                        fail.code = NE_INTERNAL_ERROR;
                        void *match = &fail;
                        EXPECT_EQ(m01fsc(&key, records.first(), n, stride, compare, order, Kor_First, &match, &fail),
                                  first != behind);
                        EXPECT_EQ(match, first < n ? at(first) : nullptr);
                        EXPECT_EQ(m01fsc(&key, records.first(), n, stride, compare, order, Kor_Last, &match, &fail),
                                  first != behind);
                        EXPECT_EQ(match, behind > 0 ? at(behind - 1) : nullptr);
                        EXPECT_EQ(fail.code, NE_NOERROR);
                    }
                }
}

TEST(Search, OnlyAFindIsReported)
{
    static int reports;
    Record fail;
    fail.handler = [](const char *, Integer, const char *) { ++reports; };
    const double x[] = {1.0, 3.0};
    const auto compare = [](const void *a, const void *b) -> Integer {
        const double u = *static_cast<const double *>(a), v = *static_cast<const double *>(b);
        return (u > v) - (u < v);
    };
    void *match;
    for (const auto &[key, found] : {std::pair{3.0, 1}, {2.0, 0}}) {
        reports = 0;
        EXPECT_EQ(m01fsc(&key, x, 2, 8, compare, Kor_Ascending, Kor_Last, &match, &fail), found);
        EXPECT_EQ(reports, found);
    }
}

TEST(Search, Refusals)
{
    const int x[] = {1, 2, 3};
    Record fail;
    void *match = &fail;
    EXPECT_EQ(m01fsc(x, x, -1, 0, Records::compare, Kor_First, Kor_Ascending, &match, &fail), 0);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "order");
    EXPECT_EQ(m01fsc(x, x, -1, 0, Records::compare, Kor_Ascending, Kor_Ascending, &match, &fail), 0);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "final");
    EXPECT_EQ(m01fsc(x, x, -1, 0, Records::compare, Kor_Ascending, Kor_First, &match, &fail), 0);
    EXPECT_REPORT(fail, NE_INT_ARG_GT, "n", "268435455", "n", -1);
    EXPECT_EQ(m01fsc(x, x, 3, 0, Records::compare, Kor_Ascending, Kor_First, &match, &fail), 0);
    EXPECT_REPORT(fail, NE_INT_ARG_EQ, "stride", "0", "stride", 0);
    EXPECT_EQ(m01fsc(x, x, 3, 357913942, Records::compare, Kor_Ascending, Kor_First, &match, &fail), 0);
    EXPECT_REPORT(fail, NE_INT_ARG_GT, "|stride|", "357913941", "stride", 357913942);
    EXPECT_EQ(match, &fail);
}

} // namespace
} // namespace kor::testing
