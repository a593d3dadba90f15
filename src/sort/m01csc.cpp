// m01csc: sorts elements of any type in place, by a comparator; equal elements may change their order.
#include <kor/m01.h>

#include "sort/arguments.hpp"
#include "sort/sort_elements.hpp"
#include "sort/spare_element.hpp"

void m01csc(void *vec, Integer n, Integer size, Integer stride, Integer (*compare)(const void *a, const void *b),
            Integer order, KorError *fail)
{
    using namespace kor::sort;
    const kor::Report report{"m01csc", fail};
    if (!sort_arguments_are_right(report, n, size, stride, order)) return;
    if (n < 2) return report.success();

    const SpareElement spare{n, size};
    if (!spare) return report.error<NE_ALLOC_FAIL>();
    sort_elements({vec, stride}, n, static_cast<std::size_t>(size), compare, order, spare.data());
    report.success();
}
