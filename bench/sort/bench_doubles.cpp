// Sorting doubles beside the best vectorised sort, and beside those that make the most of order that is there.
#include <kor/m01.h>

#include "sort/arrays.hpp"
#include "support/ratio_table.hpp"

#ifdef KOR_HAVE_HIGHWAY
#include <hwy/contrib/sort/vqsort.h>
#endif
#ifdef KOR_HAVE_BOOST
#include <boost/sort/pdqsort/pdqsort.hpp>
#include <boost/sort/spinsort/spinsort.hpp>
#endif

namespace {

using kor::bench::Arrays;

const kor::bench::Heading heading{"Sorting doubles, time an element", "elements out of place"};

void sort_kor(double *x, std::size_t n)
{
    static KorError fail{};
    m01cac(x, static_cast<Integer>(n), Kor_Ascending, &fail);
}

template <class Sort>
void entry(const std::string &work, const char *who, const std::shared_ptr<Arrays<double>> &arrays, Sort sort)
{
    kor::bench::add_with_setup(
        work + "/" + who, [arrays] { arrays->restore(); }, [arrays, sort] { arrays->sort_all(sort); },
        {.error = arrays->faults(sort), .items = static_cast<double>(arrays->total())});
}

void entries(const kor::bench::KeyShape &shape, std::size_t n)
{
    const std::string work = std::string{shape.name} + ", n = " + std::to_string(n);
    const auto arrays = std::make_shared<Arrays<double>>(shape, n);
    entry(work, "KOR", arrays, sort_kor);
#ifdef KOR_HAVE_HIGHWAY
    static hwy::Sorter vqsort;
    entry(work, "VQSort", arrays, [](double *x, std::size_t count) { vqsort(x, count, hwy::SortAscending()); });
#endif
#ifdef KOR_HAVE_BOOST
    entry(work, "pdqsort", arrays, [](double *x, std::size_t count) { boost::sort::pdqsort(x, x + count); });
    entry(work, "spinsort", arrays, [](double *x, std::size_t count) { boost::sort::spinsort(x, x + count); });
#endif
    entry(work, "std::sort", arrays, [](double *x, std::size_t count) { std::sort(x, x + count); });
}

const bool registered = [] {
    for (const std::size_t n : {16, 64, 256, 1000, 10000, 100000, 1000000, 10000000}) entries(kor::bench::kRandom, n);
    for (const auto &shape : kor::bench::kStructured)
        for (const std::size_t n : {16, 100, 1000, 100000}) entries(shape, n);
    return true;
}();

} // namespace
