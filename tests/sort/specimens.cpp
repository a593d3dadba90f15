#include <iterator>

#include <kor/m01.h>

#include "support/specimen.hpp"

namespace {

// So wide that the routines want heap memory for it.
struct Wide {
    double key;
    char rest[300];
};

const Wide kUnsorted[] = {{3.0, "c"}, {1.0, "a"}, {2.0, "b"}, {0.5, "z"}, {2.0, "second"}};
constexpr Integer kCount = 5;
constexpr Integer kSize = sizeof(Wide);

Integer by_key(const void *a, const void *b)
{
    const double x = static_cast<const Wide *>(a)->key, y = static_cast<const Wide *>(b)->key;
    return (x > y) - (x < y);
}

} // namespace

KOR_SPECIMEN(m01cac)
{
    double x[40];
    for (int i = 0; i < 40; ++i) x[i] = (i * 17) % 40;
    call([&](KorError *fail) { m01cac(x, 40, Kor_Descending, fail); });
    outputs(x, 40);
}

KOR_SPECIMEN(m01csc)
{
    Wide x[kCount];
    std::copy(std::begin(kUnsorted), std::end(kUnsorted), x);
    call([&](KorError *fail) { m01csc(x, kCount, kSize, kSize, by_key, Kor_Ascending, fail); });
    outputs(x, kCount);
}

KOR_SPECIMEN(m01ctc)
{
    Wide x[kCount];
    std::copy(std::begin(kUnsorted), std::end(kUnsorted), x);
    call([&](KorError *fail) { m01ctc(x, kCount, kSize, kSize, by_key, Kor_Descending, fail); });
    outputs(x, kCount);
}

KOR_SPECIMEN(m01cuc)
{
    struct Item {
        double key;
        Item *next;
    } items[3] = {{2.0, &items[1]}, {3.0, &items[2]}, {1.0, nullptr}};
    void *head = items;
    const auto compare = [](const void *a, const void *b) -> Integer {
        const double x = static_cast<const Item *>(a)->key, y = static_cast<const Item *>(b)->key;
        return (x > y) - (x < y);
    };
    call([&](KorError *fail) { m01cuc(&head, offsetof(Item, next), compare, Kor_Ascending, fail); });
    for (auto *item = static_cast<Item *>(head); item != nullptr; item = item->next) outputs(item->key);
}

KOR_SPECIMEN(m01dsc)
{
    Integer ranks[kCount] = {};
    call([&](KorError *fail) { m01dsc(kUnsorted, kCount, kSize, by_key, Kor_Ascending, ranks, fail); });
    outputs(ranks, kCount);
}

KOR_SPECIMEN(m01esc)
{
    Wide x[kCount];
    std::copy(std::begin(kUnsorted), std::end(kUnsorted), x);
    Integer indices[kCount] = {1, 0, 3, 4, 2};
    call([&](KorError *fail) { m01esc(x, kCount, kSize, kSize, indices, fail); });
    outputs(x, kCount);
}

KOR_SPECIMEN(m01fsc)
{
    const Wide sorted[] = {{1.0, ""}, {2.0, ""}, {2.0, ""}, {3.0, ""}};
    const Wide key{2.0, ""};
    void *match = nullptr;
    Integer found = 0;
    call(
        [&](KorError *fail) { found = m01fsc(&key, sorted, 4, kSize, by_key, Kor_Ascending, Kor_Last, &match, fail); });
    const std::ptrdiff_t where = match != nullptr ? static_cast<const Wide *>(match) - sorted : -1;
    outputs(found, where);
}

KOR_SPECIMEN(m01zac)
{
    Integer rank[] = {2, 0, 1, 3};
    call([&](KorError *fail) { m01zac(rank, 4, fail); });
    outputs(rank, 4);
}

KOR_SPECIMEN_WITHOUT_RECORD(m01zbc)
{
    Integer rank[] = {3, 1, 2, 4}, ifail = 1;
    call([&](KorError *) { m01zbc(rank, 1, 4, &ifail); });
    outputs(rank, 4);
    outputs(ifail);
}
