// m01ctc: sorts elements of any type in place, by a comparator; equal elements keep their order.
#include <kor/m01.h>

#include "frame/workspace.hpp"
#include "sort/arguments.hpp"
#include "sort/permutation.hpp"
#include "sort/ranking.hpp"
#include "sort/spare_element.hpp"
#include "sort/stable_sort.hpp"

void m01ctc(void *vec, Integer n, Integer size, Integer stride, Integer (*compare)(const void *a, const void *b),
            Integer order, KorError *fail)
{
    using namespace kor::sort;
    const kor::Report report{"m01ctc", fail};
    if (!sort_arguments_are_right(report, n, size, stride, order)) return;
    if (n < 2) return report.success();

    const Elements elements{vec, stride};
    const auto bytes = static_cast<std::size_t>(size);
    if (n > kFewElements && size <= kMergedSize) {
        const kor::Workspace<unsigned char> buffer{kor::Count{n} * size};
        if (!buffer) return report.error<NE_ALLOC_FAIL>();
        merge_sort_elements(elements, n, bytes, compare, order, buffer.data());
        return report.success();
    }
    const SpareElement spare{n, size};
    if (!spare) return report.error<NE_ALLOC_FAIL>();
    if (n <= kFewElements) {
        merge_sort_elements(elements, n, bytes, compare, order, spare.data());
    } else {
        const kor::Workspace<Integer> indices{n};
        if (!indices) return report.error<NE_ALLOC_FAIL>();
        order_elements(elements, n, compare, order, indices.data());
        rearrange(elements, n, bytes, indices.data(), spare.data());
    }
    report.success();
}
