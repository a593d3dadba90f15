// Sorts elements of any size in place, by a comparator: quicksort, safeguarded by heapsort.
#include "sort/sort_elements.hpp"

#include <algorithm>

#include "sort/heap_sort.hpp"
#include "sort/pending_parts.hpp"

namespace kor::sort {

namespace {

constexpr std::ptrdiff_t kShort = 10;      // insertion sort up to here
constexpr std::ptrdiff_t kBadFraction = 8; // a partition is bad when its smaller part is less than this fraction

template <class Width>
struct Sorter {
    Width width;
    Elements elements;
    Comparator compare;
    unsigned char *spare;

    bool before(std::ptrdiff_t i, std::ptrdiff_t j) const { return compare(elements[i], elements[j]) < 0; }
    void swap(std::ptrdiff_t i, std::ptrdiff_t j) const { swap_elements(width, elements[i], elements[j]); }

    void insertion_sort(std::ptrdiff_t low, std::ptrdiff_t high) const
    {
        for (std::ptrdiff_t i = low + 1; i < high; ++i) {
            std::ptrdiff_t place = i;
            while (place > low && before(i, place - 1)) --place;
            if (place == i) continue;
            copy_element(width, spare, elements[i]);
            for (std::ptrdiff_t j = i; j > place; --j) copy_element(width, elements[j], elements[j - 1]);
            copy_element(width, elements[place], spare);
        }
    }

    // The pivot, the median of three, stands in position low; returns where it belongs.
    std::ptrdiff_t partition(std::ptrdiff_t low, std::ptrdiff_t high) const
    {
        const std::ptrdiff_t middle = low + (high - low) / 2, last = high - 1;
        if (before(last, low)) swap(low, last);
        if (before(low, middle)) {
            swap(low, middle);
            if (before(last, low)) swap(low, last);
        }
        std::ptrdiff_t i = low, j = high;
        for (;;) {
            do ++i;
            while (i < high && before(i, low));
            do --j;
            while (j > low && before(low, j));
            if (i >= j) break;
            swap(i, j);
        }
        swap(low, j);
        return j;
    }

    void sort(std::ptrdiff_t n) const
    {
        PendingParts pending;
        pending.push({0, n, patience_for(n)});
        while (!pending.empty()) {
            Part part = pending.pop();
            if (part.size() <= kShort) {
                insertion_sort(part.low, part.high);
                continue;
            }
            if (part.patience == 0) {
                heap_sort(
                    part.size(), [&](auto i, auto j) { return before(part.low + i, part.low + j); },
                    [&](auto i, auto j) { swap(part.low + i, part.low + j); });
                continue;
            }
            const std::ptrdiff_t place = partition(part.low, part.high);
            const std::ptrdiff_t less = place - part.low, greater = part.high - (place + 1);
            if (std::max(less, greater) > part.size() - part.size() / kBadFraction) --part.patience;

            const Part below{part.low, place, part.patience}, above{place + 1, part.high, part.patience};
            pending.push(less > greater ? below : above);
            pending.push(less > greater ? above : below);
        }
    }
};

} // namespace

void sort_elements(Elements elements, Integer n, std::size_t size, Comparator compare, Integer order,
                   unsigned char *spare)
{
    // Descending order is ascending order from the other end.
    if (order == Kor_Descending) elements = elements.reversed(n);
    with_width(size, [&](auto width) { Sorter<decltype(width)>{width, elements, compare, spare}.sort(n); });
}

} // namespace kor::sort
