// m01dsc: the ranks of elements of any type, by a comparator.
#include <kor/m01.h>

#include "sort/arguments.hpp"
#include "sort/permutation.hpp"
#include "sort/ranking.hpp"

void m01dsc(const void *vec, Integer n, Integer stride, Integer (*compare)(const void *a, const void *b), Integer order,
            Integer ranks[], KorError *fail)
{
    using namespace kor::sort;
    const kor::Report report{"m01dsc", fail};
    if (!order_is_right(report, order) || !count_is_right(report, n)) return;
    if (!stride_is_right(report, stride, greatest_stride(n, kMaxBytes), "p (p = %ld)")) return;

    order_elements({vec, stride}, n, compare, order, ranks);
    invert_good_permutation(ranks, n);
    report.success();
}
