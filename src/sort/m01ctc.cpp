// m01ctc: sorts elements of any type in place, by a comparator; equal elements keep their order.
#include <kor/m01.h>

#include "frame/workspace.hpp"
#include "sort/arguments.hpp"
#include "sort/permutation.hpp"
#include "sort/ranking.hpp"
#include "sort/spare_element.hpp"

void m01ctc(void *vec, Integer n, Integer size, Integer stride, Integer (*compare)(const void *a, const void *b),
            Integer order, KorError *fail)
{
    using namespace kor::sort;
    const kor::Report report{"m01ctc", fail};
    if (!sort_arguments_are_right(report, n, size, stride, order)) return;
    if (n < 2) return report.success();

    const kor::Workspace<Integer> ranks{n};
    const SpareElement spare{n, size};
    if (!ranks || !spare) return report.error<NE_ALLOC_FAIL>();

    const Elements elements{vec, stride};
    rank_elements(elements, n, compare, order, ranks.data());
    invert_permutation(ranks.data(), n);
    if (rearrange(elements, n, static_cast<std::size_t>(size), ranks.data(), spare.data()) != Permuted::done)
        return report.error<NE_INTERNAL_ERROR>();
    report.success();
}
