// Sorting by a comparator: arrays (m01csc, m01ctc) and lists (m01cuc).
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

using Sort = decltype(&m01csc);
constexpr Integer kOrders[] = {Kor_Ascending, Kor_Descending};

// m01ctc may compare copies.
Integer (*comparator_for(Sort sort))(const void *, const void *)
{
    return sort == m01csc ? Records::compare : Records::compare_copies;
}

std::vector<int> stable_order(const std::vector<int> &keys, Integer order)
{
    std::vector<int> indices(keys.size());
    std::iota(indices.begin(), indices.end(), 0);
    std::stable_sort(indices.begin(), indices.end(), [&](int i, int j) {
        const int x = keys[static_cast<std::size_t>(i)], y = keys[static_cast<std::size_t>(j)];
        return order == Kor_Descending ? x > y : x < y;
    });
    return indices;
}

void expect_sorted(Sort sort, const std::vector<int> &keys, int size, int stride, Integer order, const char *what)
{
    Records records{keys, size, stride};
    Record fail;
    sort(records.first(), records.count(), size, stride, comparator_for(sort), order, &fail);
    ASSERT_EQ(fail.code, NE_NOERROR) << fail.message;
    const std::vector<int> expected = stable_order(keys, order);
    std::vector<int> expected_keys;
    for (const int i : expected) expected_keys.push_back(keys[static_cast<std::size_t>(i)]);
    ASSERT_EQ(records.keys(), expected_keys)
        << what << ", n = " << keys.size() << ", size " << size << ", stride " << stride;
    ASSERT_TRUE(records.intact()) << what << ", n = " << keys.size() << ", size " << size << ", stride " << stride;
    if (sort == m01ctc && size >= 8) {
        ASSERT_EQ(records.origins(), expected) << what << ", n = " << keys.size();
    }
}

TEST(SortElements, AgreesWithTheStableSortOnAllShapesAndSizes)
{
    for (const Shape &shape : shapes())
        for (const int n : sizes_to_test(140, {256, 300, 1000, 5000}))
            for (const Sort sort : {m01csc, m01ctc})
                for (const Integer order : kOrders)
                    expect_sorted(sort, keys_of(shape, std::max(n, 0)), n % 2 == 0 ? 8 : 12, 12, order, shape.name);
}

TEST(SortElements, AllSizesAndStrides)
{
    for (int size = 1; size <= 300; size += size < 40 ? 1 : 13)
        for (const int stride : {size, -size, size + 1, -(2 * size + 3)})
            for (const Sort sort : {m01csc, m01ctc})
                for (const Integer order : kOrders) {
                    std::vector<int> keys = keys_of(shapes()[1], 150);
                    if (size < 8)
                        for (int &key : keys) key &= 0xFF;
                    expect_sorted(sort, keys, size, stride, order, "random");
                }
}

TEST(SortElements, NeverQuadratic)
{
    constexpr int n = 20000;
    const double enough =
        3.0 * n * std::log2(n); // heapsort takes 2 n log2 n, after some quicksort; n^2/2 is 40 times this
    for (const Sort sort : {m01csc, m01ctc}) {
        Adversary adversary{n};
        std::vector<int> indices(n);
        std::iota(indices.begin(), indices.end(), 0);
        Record fail;
        sort(indices.data(), n, sizeof(int), sizeof(int), Adversary::compare, Kor_Ascending, &fail);
        EXPECT_SUCCESS(fail);
        EXPECT_LT(adversary.comparisons, enough);

        for (const Shape &shape : shapes()) {
            Records records{keys_of(shape, n), 8, 8};
            Records::comparisons() = 0;
            sort(records.first(), n, 8, 8, comparator_for(sort), Kor_Ascending, &fail);
            EXPECT_LT(Records::comparisons(), enough) << shape.name;
        }
    }
}

TEST(SortElements, ALyingComparatorDoesNoHarm)
{
    static std::mt19937 random{3};
    using Liar = Integer (*)(const void *, const void *);
    const Liar liars[] = {
        [](const void *, const void *) -> Integer { return static_cast<int>(random() % 3) - 1; },
        [](const void *, const void *) -> Integer { return -1; },
        [](const void *, const void *) -> Integer { return 1; },
        [](const void *, const void *) -> Integer { return INT32_MIN; },
        [](const void *a, const void *b) -> Integer { return -Records::compare_copies(a, b) % 2; },
    };
    for (const Liar compare : liars)
        for (const int n : sizes_to_test(80, {300, 2000}))
            for (const Sort sort : {m01csc, m01ctc}) {
                std::vector<int> keys = keys_of(shapes()[0], n);
                Records records{keys, 8, 8};
                Record fail;
                sort(records.first(), n, 8, 8, compare, Kor_Descending, &fail);
                EXPECT_SUCCESS(fail);
                std::vector<int> after = records.keys();
                std::sort(after.begin(), after.end());
                std::sort(keys.begin(), keys.end());
                ASSERT_EQ(after, keys);
            }
}

TEST(SortElements, Refusals)
{
    struct Case {
        Integer n, size, stride, order, code;
        std::string message;
    };
    const Case cases[] = {
        {3, 0, 0, Kor_First, NE_BAD_PARAM, message_of(NE_BAD_PARAM, "order")},
        {3, 0, 0, Kor_Ascending, NE_INT_ARG_LT, message_of(NE_INT_ARG_LT, "size", "1", "size", 0)},
        {3, -4, 8, Kor_Ascending, NE_INT_ARG_LT, message_of(NE_INT_ARG_LT, "size", "1", "size", -4)},
        {3, 715827883, 0, Kor_Ascending, NE_INT_ARG_GT,
         message_of(NE_INT_ARG_GT, "size", "715827882", "size", 715827883)},
        {3, 4, -3, Kor_Ascending, NE_2_INT_ARG_LT,
         message_of(NE_2_INT_ARG_LT, "|stride|", 3, "size", 4, "|stride|", "size")},
        {3, 4, 0, Kor_Ascending, NE_2_INT_ARG_LT,
         message_of(NE_2_INT_ARG_LT, "|stride|", 0, "size", 4, "|stride|", "size")},
        {3, 4, -715827883, Kor_Ascending, NE_INT_ARG_GT,
         message_of(NE_INT_ARG_GT, "|stride|", "715827882", "stride", -715827883)},
        {3, 4, INT32_MIN, Kor_Ascending, NE_INT_ARG_GT,
         message_of(NE_INT_ARG_GT, "|stride|", "715827882", "stride", INT32_MIN)},
        // A count out of range is reported, and then the size, whose limit is 0.
        {-1, 4, 4, Kor_Ascending, NE_INT_ARG_GT, message_of(NE_INT_ARG_GT, "size", "0", "size", 4)},
        {268435456, 8, 8, Kor_Ascending, NE_INT_ARG_GT, message_of(NE_INT_ARG_GT, "size", "7", "size", 8)},
        {268435456, 4, 8, Kor_Ascending, NE_INT_ARG_GT, message_of(NE_INT_ARG_GT, "|stride|", "7", "stride", 8)},
        {268435456, 4, 4, Kor_Ascending, NE_INT_ARG_GT, message_of(NE_INT_ARG_GT, "n", "268435455", "n", 268435456)},
    };
    for (const Sort sort : {m01csc, m01ctc})
        for (const Case &c : cases) {
            int x[] = {3, 1, 2};
            Record fail;
            static std::vector<Integer> reports;
            reports.clear();
            fail.handler = [](const char *, Integer code, const char *) { reports.push_back(code); };
            sort(x, c.n, c.size, c.stride, Adversary::compare, c.order, &fail);
            EXPECT_EQ(fail.code, c.code);
            EXPECT_EQ(fail.message, c.message);
            const bool two_reports = (c.n < 0 || c.n > 268435455) && !(c.size == 4 && c.stride == 4 && c.n > 0);
            EXPECT_EQ(reports.size(), two_reports ? 2u : 1u) << c.message;
            EXPECT_EQ(reports.front(), two_reports ? NE_INT_ARG_GT : c.code);
            EXPECT_EQ(x[0] * 100 + x[1] * 10 + x[2], 312);
        }
    // Nothing to sort: success, but the arguments are tested.
    for (const Sort sort : {m01csc, m01ctc}) {
        Record fail;
        sort(nullptr, 0, INT32_MAX, INT32_MAX, Adversary::compare, Kor_Descending, &fail);
        EXPECT_SUCCESS(fail);
        sort(nullptr, 0, 8, 4, Adversary::compare, Kor_Descending, &fail);
        EXPECT_EQ(fail.code, NE_2_INT_ARG_LT);
    }
}

struct Item {
    char odd;
    int key, origin;
    Item *next;
};

Integer by_item_key(const void *a, const void *b)
{
    const int x = static_cast<const Item *>(a)->key, y = static_cast<const Item *>(b)->key;
    return (x > y) - (x < y);
}

std::vector<Item> linked(const std::vector<int> &keys)
{
    std::vector<Item> items(keys.size());
    for (std::size_t i = 0; i < keys.size(); ++i)
        items[i] = {'x', keys[i], static_cast<int>(i), i + 1 < keys.size() ? &items[i + 1] : nullptr};
    return items;
}

std::vector<int> origins_of(const void *head)
{
    std::vector<int> origins;
    for (auto item = static_cast<const Item *>(head); item != nullptr; item = item->next)
        origins.push_back(item->origin);
    return origins;
}

TEST(SortList, StableInBothDirections)
{
    for (const Shape &shape : shapes())
        for (const int n : sizes_to_test(70, {128, 1000}))
            for (const Integer order : kOrders) {
                const std::vector<int> keys = keys_of(shape, n);
                std::vector<Item> items = linked(keys);
                void *head = items.data();
                if (n == 0) head = nullptr;
                Record fail;
                m01cuc(&head, offsetof(Item, next), by_item_key, order, &fail);
                EXPECT_SUCCESS(fail);
                ASSERT_EQ(origins_of(head), stable_order(keys, order)) << shape.name << ", n = " << n;
            }
}

TEST(SortList, FindsLoopsAndLeavesThemAlone)
{
    for (const int n : {1, 2, 3, 10, 1000})
        for (const int back_to : {0, n / 3, n - 1}) {
            std::vector<Item> items = linked(keys_of(shapes()[0], n));
            items.back().next = &items[static_cast<std::size_t>(back_to)];
            void *head = items.data();
            Record fail;
            m01cuc(&head, offsetof(Item, next), by_item_key, Kor_Ascending, &fail);
            EXPECT_REPORT(fail, NE_CH_LOOP);
            EXPECT_EQ(head, items.data());
            for (std::size_t i = 0; i + 1 < items.size(); ++i) EXPECT_EQ(items[i].next, &items[i + 1]);
        }
}

TEST(SortList, Refusals)
{
    Record fail;
    void *head = nullptr;
    m01cuc(&head, 0, by_item_key, Kor_First, &fail);
    EXPECT_SUCCESS(fail) << "an empty list has no order";
    std::vector<Item> items = linked({2, 1});
    head = items.data();
    m01cuc(&head, offsetof(Item, next), by_item_key, Kor_First, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "order");
    EXPECT_EQ(origins_of(head), (std::vector<int>{0, 1}));
    // Any comparator will do for a list as well.
    items = linked(keys_of(shapes()[0], 1000));
    head = items.data();
    m01cuc(
        &head, offsetof(Item, next), [](const void *, const void *) -> Integer { return 1; }, Kor_Ascending, &fail);
    EXPECT_EQ(origins_of(head).size(), 1000u);
}

} // namespace
} // namespace kor::testing
