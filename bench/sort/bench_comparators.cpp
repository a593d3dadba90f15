// Sorting and ranking by a comparator, which all call by the same pointer, beside the best sorts of Boost and of the standard
// libraries. The calls are those for one array.
#include <kor/m01.h>

#include <cstdlib>
#include <numeric>

#include "sort/arrays.hpp"
#include "support/ratio_table.hpp"

#ifdef KOR_HAVE_BOOST
#include <boost/sort/pdqsort/pdqsort.hpp>
#endif

namespace {

using kor::bench::Arrays;

const kor::bench::Heading heading{"Sorting by a comparator, time an element", "elements out of place"};

template <std::size_t bytes>
struct Record {
    double key;
    char rest[bytes - sizeof(double)];
};
template <>
struct Record<8> {
    double key;
};

long calls = 0;

Integer compare(const void *a, const void *b)
{
    const double x = *static_cast<const double *>(a), y = *static_cast<const double *>(b);
    return (x > y) - (x < y);
}
Integer compare_and_count(const void *a, const void *b)
{
    ++calls;
    return compare(a, b);
}
// What the sorts call: through a pointer that the compiler knows nothing of.
Integer (*volatile comparator)(const void *, const void *) = compare;

template <class T>
auto before()
{
    return [call = comparator](const T &x, const T &y) { return call(&x, &y) < 0; };
}

std::vector<Integer> &room(std::size_t n)
{
    static std::vector<Integer> indices;
    indices.resize(n);
    return indices;
}

template <class T, class Sort>
void entry(const std::string &work, const char *who, const std::shared_ptr<Arrays<T>> &arrays, Sort sort,
           bool sorts = true)
{
    arrays->restore();
    calls = 0;
    comparator = compare_and_count;
    arrays->sort_all(sort);
    comparator = compare;
    const double items = static_cast<double>(arrays->total());
    const double arrays_count = items / static_cast<double>(arrays->length());
    kor::bench::add_with_setup(
        work + "/" + who, [arrays] { arrays->restore(); }, [arrays, sort] { arrays->sort_all(sort); },
        {.error = sorts ? arrays->faults(sort) : -1.0,
         .calls = static_cast<double>(calls) / arrays_count,
         .items = items});
}

template <std::size_t bytes>
void entries(const kor::bench::KeyShape &shape, std::size_t n)
{
    using T = Record<bytes>;
    const auto arrays = std::make_shared<Arrays<T>>(shape, n);
    const std::string what = ", " + std::to_string(bytes) + " B, " + shape.name + ", " + std::to_string(n);
    static KorError fail{};

    entry("sort" + what, "KOR", arrays, [](T *x, std::size_t count) {
        m01csc(x, static_cast<Integer>(count), bytes, bytes, comparator, Kor_Ascending, &fail);
    });
#ifdef KOR_HAVE_BOOST
    entry("sort" + what, "pdqsort", arrays,
          [](T *x, std::size_t count) { boost::sort::pdqsort(x, x + count, before<T>()); });
#endif
    entry("sort" + what, "std", arrays, [](T *x, std::size_t count) { std::sort(x, x + count, before<T>()); });
    entry("sort" + what, "qsort", arrays, [](T *x, std::size_t count) { std::qsort(x, count, bytes, comparator); });

    entry("stable" + what, "KOR", arrays, [](T *x, std::size_t count) {
        m01ctc(x, static_cast<Integer>(count), bytes, bytes, comparator, Kor_Ascending, &fail);
    });
    entry("stable" + what, "std", arrays, [](T *x, std::size_t count) { std::stable_sort(x, x + count, before<T>()); });

    entry(
        "ranks" + what, "KOR", arrays,
        [](T *x, std::size_t count) {
            m01dsc(x, static_cast<Integer>(count), bytes, comparator, Kor_Ascending, room(count).data(), &fail);
        },
        false);
    entry(
        "ranks" + what, "std", arrays,
        [](T *x, std::size_t count) {
            std::vector<Integer> &indices = room(count);
            std::iota(indices.begin(), indices.end(), 0);
            std::stable_sort(indices.begin(), indices.end(),
                             [x, call = comparator](Integer i, Integer j) { return call(x + i, x + j) < 0; });
        },
        false);
}

const bool registered = [] {
    for (const std::size_t n : {16, 100, 1000, 10000, 100000, 1000000}) entries<8>(kor::bench::kRandom, n);
    for (const std::size_t n : {16, 1000, 100000}) entries<24>(kor::bench::kRandom, n);
    for (const std::size_t n : {16, 1000, 100000}) entries<128>(kor::bench::kRandom, n);
    for (const auto &shape : kor::bench::kStructured) entries<8>(shape, 10000);
    return true;
}();

} // namespace
