// Sorts elements of any size in place, by a comparator.
#include "sort/sort_elements.hpp"

#include "sort/comparison_sort.hpp"
#include "sort/element_sequence.hpp"

namespace kor::sort {

void sort_elements(Elements elements, Integer n, std::size_t size, Comparator compare, Integer order,
                   unsigned char *spare)
{
    // Descending order is ascending order from the other end.
    if (order == Kor_Descending) elements = elements.reversed(n);
    with_width(size, [&](auto width) {
        const ElementSequence<decltype(width), false> sequence{width, elements, compare, spare};
        ComparisonSort{sequence}.sort(n);
    });
}

} // namespace kor::sort
