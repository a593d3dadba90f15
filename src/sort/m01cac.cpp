// m01cac: sorts an array of doubles in place.
#include <kor/m01.h>

#include <algorithm>

#include "sort/arguments.hpp"
#include "sort/sort_doubles.hpp"

void m01cac(double vec[], Integer n, Integer order, KorError *fail)
{
    using namespace kor::sort;
    const kor::Report report{"m01cac", fail};
    if (n == 1) return report.success(); // whatever the order
    if (!order_is_right(report, order)) return;
    if (n == 0) return report.error<NE_INT_ARG_LT>("n", "1", "n", n);
    if (!count_is_right(report, n)) return;

    const std::ptrdiff_t numbers = sort_doubles(vec, n);
    // Descending order is ascending order reversed, equal values included; NaNs stay behind.
    if (order == Kor_Descending) std::reverse(vec, vec + numbers);
    report.success();
}
