// Heapsort: slow but sure, for parts on which quicksort has gone astray.
#pragma once

#include <cstddef>

namespace kor::sort {

// Sorts positions 0 to n-1 by before(i, j) and swap(i, j).
template <class Before, class Swap>
void heap_sort(std::ptrdiff_t n, Before &&before, Swap &&swap)
{
    const auto sift_down = [&](std::ptrdiff_t parent, std::ptrdiff_t end) {
        for (;;) {
            std::ptrdiff_t child = 2 * parent + 1;
            if (child >= end) return;
            if (child + 1 < end && before(child, child + 1)) ++child;
            if (!before(parent, child)) return;
            swap(parent, child);
            parent = child;
        }
    };
    for (std::ptrdiff_t parent = n / 2; parent-- > 0;) sift_down(parent, n);
    for (std::ptrdiff_t end = n; --end > 0;) {
        swap(0, end);
        sift_down(0, end);
    }
}

} // namespace kor::sort
