// The portable sort of doubles: quicksort whose partition has no branch that depends on the data.
#include "sort/sort_doubles.hpp"

#include <algorithm>

#include "sort/heap_sort.hpp"
#include "sort/pending_parts.hpp"

namespace kor::sort {

namespace {

constexpr std::ptrdiff_t kShort = 24;      // insertion sort up to here
constexpr std::ptrdiff_t kLong = 128;      // from here on the pivot is the median of three medians of three
constexpr std::ptrdiff_t kBadFraction = 8; // a partition is bad when its smaller part is less than this fraction

void insertion_sort(double *a, std::ptrdiff_t n)
{
    for (std::ptrdiff_t i = 1; i < n; ++i) {
        const double value = a[i];
        std::ptrdiff_t j = i;
        for (; j > 0 && value < a[j - 1]; --j) a[j] = a[j - 1];
        a[j] = value;
    }
}

double median(double x, double y, double z) { return std::max(std::min(x, y), std::min(std::max(x, y), z)); }

double choose_pivot(const double *a, std::ptrdiff_t n)
{
    const double *const middle = a + n / 2;
    if (n < kLong) return median(a[0], *middle, a[n - 1]);
    const std::ptrdiff_t step = n / 8;
    return median(median(a[0], a[step], a[2 * step]), median(*(middle - step), *middle, *(middle + step)),
                  median(a[n - 1 - 2 * step], a[n - 1 - step], a[n - 1]));
}

// Moves the elements that belong left to the front, and returns their count. Every element changes places with the first
// of the others, which is itself if there are none: no branch.
template <class BelongsLeft>
std::ptrdiff_t partition(double *a, std::ptrdiff_t n, BelongsLeft belongs_left)
{
    std::ptrdiff_t left = 0;
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        const double value = a[i];
        a[i] = a[left];
        a[left] = value;
        left += belongs_left(value);
    }
    return left;
}

} // namespace

void sort_numbers(double *a, std::ptrdiff_t n)
{
    PendingParts pending;
    pending.push({0, n, patience_for(n)});
    while (!pending.empty()) {
        Part part = pending.pop();
        double *const first = a + part.low;
        const std::ptrdiff_t size = part.size();
        if (size <= kShort) {
            insertion_sort(first, size);
            continue;
        }
        if (part.patience == 0) {
            heap_sort(
                size, [=](auto i, auto j) { return first[i] < first[j]; },
                [=](auto i, auto j) { std::swap(first[i], first[j]); });
            continue;
        }
        const double pivot = choose_pivot(first, size);
        const std::ptrdiff_t less = partition(first, size, [=](double value) { return value < pivot; });
        const std::ptrdiff_t equal = partition(first + less, size - less, [=](double value) { return value == pivot; });
        const std::ptrdiff_t greater = size - less - equal;
        if (std::max(less, greater) > size - size / kBadFraction) --part.patience;

        const Part below{part.low, part.low + less, part.patience},
            above{part.high - greater, part.high, part.patience};
        pending.push(less > greater ? below : above);
        pending.push(less > greater ? above : below);
    }
}

} // namespace kor::sort
