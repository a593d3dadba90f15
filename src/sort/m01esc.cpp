// m01esc: rearranges elements of any type in place, by a list of indices.
#include <kor/m01.h>

#include "sort/arguments.hpp"
#include "sort/permutation.hpp"
#include "sort/spare_element.hpp"

void m01esc(void *vec, Integer n, Integer size, Integer stride, Integer indices[], KorError *fail)
{
    using namespace kor::sort;
    const kor::Report report{"m01esc", fail};
    if (!count_is_right(report, n) || !layout_is_right(report, n, size, stride)) return;

    const SpareElement spare{n, size};
    if (!spare) return report.error<NE_ALLOC_FAIL>();
    if (rearrange({vec, stride}, n, static_cast<std::size_t>(size), indices, spare.data()) != Permuted::done)
        return report.error<NE_BAD_RANK>("indices");
    report.success();
}
