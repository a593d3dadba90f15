// The order of elements that keep their place: their indices are sorted.
#include "sort/ranking.hpp"

#include <numeric>
#include <utility>

#include "sort/comparison_sort.hpp"

namespace kor::sort {

namespace {

// Of two equal elements the one of the smaller index comes first: so the sort is stable, though it moves indices about.
template <bool descending>
struct IndexSequence {
    using Handle = Integer;
    static constexpr bool kMayTie = false;

    Elements elements;
    Comparator compare;
    Integer *indices;

    Handle at(std::ptrdiff_t i) const { return indices[i]; }
    auto scan(std::ptrdiff_t i, std::ptrdiff_t step) const
    {
        return [p = indices + i, step]() mutable { return *std::exchange(p, p + step); };
    }
    bool before(Handle a, Handle b) const
    {
        const Integer sign = compare(elements[a], elements[b]);
        return sorts_before<descending>(sign) | ((sign == 0) & (a < b));
    }
    void swap(std::ptrdiff_t i, std::ptrdiff_t j) const { std::swap(indices[i], indices[j]); }
    void arrange(std::ptrdiff_t low, const Handle *handle, std::ptrdiff_t n) const
    {
        std::copy_n(handle, n, indices + low);
    }
};

} // namespace

void order_elements(Elements elements, Integer n, Comparator compare, Integer order, Integer *indices)
{
    std::iota(indices, indices + n, 0);
    if (order == Kor_Descending) {
        const IndexSequence<true> sequence{elements, compare, indices};
        ComparisonSort{sequence}.sort(n);
    } else {
        const IndexSequence<false> sequence{elements, compare, indices};
        ComparisonSort{sequence}.sort(n);
    }
}

} // namespace kor::sort
