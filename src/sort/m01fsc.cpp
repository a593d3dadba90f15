// m01fsc: searches a sorted array by bisection for the first or the last element that is equal to a key.
#include <kor/m01.h>

#include "sort/arguments.hpp"
#include "sort/elements.hpp"

Integer m01fsc(const void *key, const void *vec, Integer n, Integer stride,
               Integer (*compare)(const void *a, const void *b), Integer order, Integer final, void **match,
               KorError *fail)
{
    using namespace kor::sort;
    const kor::Report report{"m01fsc", fail};
    if (!order_is_right(report, order)) return 0;
    if (final != Kor_First && final != Kor_Last) {
        report.error<NE_BAD_PARAM>("final");
        return 0;
    }
    if (!count_is_right(report, n)) return 0;
    if (!stride_is_right(report, stride, greatest_stride(n, kMaxSearchBytes), "%ld")) return 0;

    const Elements elements{vec, stride};
    bool found = false;
    Integer low = 0, high = n; // what lies before `low` sorts before the key, what lies from `high` on behind it
    while (low < high) {
        const Integer middle = low + (high - low) / 2;
        const Integer sign = compare(key, elements[middle]);
        if (sign == 0) found = true;
        const bool key_is_behind = sign == 0 ? final == Kor_Last : (sign > 0) == (order == Kor_Ascending);
        if (key_is_behind)
            low = middle + 1;
        else
            high = middle;
    }

    if (final == Kor_First)
        *match = high < n ? elements[high] : nullptr;
    else
        *match = low > 0 ? elements[low - 1] : nullptr;
    if (found) report.success(); // a key that is not there is no event to report
    return found;
}
