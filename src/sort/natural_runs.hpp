// Data that come as a few runs, ascending or descending, are sorted in near-linear time by merging the runs in place.
//
// Written for any kernel (see quicksort_doubles.hpp), and compiled for its instruction set by the file that includes it.
#pragma once

#include <bit>
#include <cstddef>
#include <cstring>

#include "sort/bitonic_merge.hpp"
#include "sort/count_below.hpp"

namespace kor::sort {
namespace { // each including file compiles it for a target of its own

constexpr std::ptrdiff_t kMaxRuns = 8;
constexpr std::ptrdiff_t kFew = 512;     // at most so many elements are merged one by one into others,
constexpr std::ptrdiff_t kFewOfMany = 8; // if those are so many times as many

// Which of the lanes at i are followed by an element out of order. A NaN is in no order.
template <class L, bool descending = false>
inline unsigned breaks_at(const double *a, std::ptrdiff_t i)
{
    const auto here = L::load(a + i), next = L::load(a + i + 1);
    return descending ? L::not_at_most(next, here) : L::not_at_most(here, next);
}

// Where the run ends that begins at `from`: the first position that does not continue it.
template <class L, bool descending>
std::ptrdiff_t end_of_run(const double *a, std::ptrdiff_t from, std::ptrdiff_t n)
{
    std::ptrdiff_t i = from;
    for (; i + L::width < n; i += L::width)
        if (const unsigned breaks = breaks_at<L, descending>(a, i)) return i + 1 + std::countr_zero(breaks);
    if (n - from > L::width) { // the last few, with some before them once more
        const unsigned breaks = breaks_at<L, descending>(a, n - 1 - L::width);
        return breaks != 0 ? n - L::width + std::countr_zero(breaks) : n;
    }
    for (; i + 1 < n; ++i)
        if (!(descending ? a[i + 1] <= a[i] : a[i] <= a[i + 1])) break;
    return i + 1;
}

template <class L>
void reverse(double *a, std::ptrdiff_t n)
{
    std::ptrdiff_t i = 0, j = n;
    for (; j - i >= 2 * L::width; i += L::width, j -= L::width) {
        const auto front = L::load(a + i), back = L::load(a + j - L::width);
        L::store(a + i, L::reverse(back));
        L::store(a + j - L::width, L::reverse(front));
    }
    for (--j; i < j; ++i, --j) {
        const double value = a[i];
        a[i] = a[j];
        a[j] = value;
    }
}

inline void move(double *to, const double *from, std::ptrdiff_t n)
{
    std::memmove(to, from, static_cast<std::size_t>(n) * sizeof(double));
}

// Merges ascending a[0..middle) and a[middle..n) when the second is short.
inline void merge_few_from_right(double *a, std::ptrdiff_t middle, std::ptrdiff_t n)
{
    double few[kFew];
    std::ptrdiff_t left = middle;
    move(few, a + middle, n - middle);
    for (std::ptrdiff_t i = n - middle; i > 0; --i) {
        const std::ptrdiff_t place = count_below<true>(a, left, few[i - 1]);
        move(a + place + i, a + place, left - place);
        a[place + i - 1] = few[i - 1];
        left = place;
    }
}

// The same when the first is short.
inline void merge_few_from_left(double *a, std::ptrdiff_t middle, std::ptrdiff_t n)
{
    double few[kFew];
    std::ptrdiff_t right = middle;
    move(few, a, middle);
    for (std::ptrdiff_t i = 0; i < middle; ++i) {
        const std::ptrdiff_t gap = right - (middle - i);
        const std::ptrdiff_t taken = count_below<false>(a + right, n - right, few[i]);
        move(a + gap, a + right, taken);
        a[gap + taken] = few[i];
        right += taken;
    }
}

// Merges ascending a[0..middle) and a[middle..n), neither of them empty, in place.
template <class Kernel>
void merge_runs(double *a, std::ptrdiff_t middle, std::ptrdiff_t n)
{
    using L = typename Kernel::Lanes;
    // What is in its place already, at the front and at the end.
    const std::ptrdiff_t front = count_below<true>(a, middle, a[middle]);
    if (front == middle) return;
    n = middle + count_below<false>(a + middle, n - middle, a[middle - 1]) - front;
    middle -= front;
    a += front;

    const std::ptrdiff_t left = middle, right = n - middle;
    if (right <= kFew && right * kFewOfMany <= left) return merge_few_from_right(a, middle, n);
    if (left <= kFew && left * kFewOfMany <= right) return merge_few_from_left(a, middle, n);
    const bool left_is_shorter = left < right;
    if (left_is_shorter)
        reverse<L>(a, middle);
    else
        reverse<L>(a + middle, right);
    BitonicMerge<Kernel>{a, n, left_is_shorter}.sort();
}

// Sorts the front of a as far as it comes in a few long runs, and returns how far that is: n when all is sorted, 0 when it
// is not worth while.
template <class Kernel>
std::ptrdiff_t merge_leading_runs(double *a, std::ptrdiff_t n)
{
    using L = typename Kernel::Lanes;
    struct {
        std::ptrdiff_t end;
        bool descending;
    } run[kMaxRuns];
    const std::ptrdiff_t long_run = n / kMaxRuns;
    std::ptrdiff_t runs = 0, leading = 0; // those up to and with the last long one
    for (std::ptrdiff_t at = 0; at < n; ++runs) {
        if (runs == kMaxRuns || at < (runs - 2) * long_run) break;
        std::ptrdiff_t end = end_of_run<L, false>(a, at, n);
        bool descending = false;
        if (end - at < long_run) {
            const std::ptrdiff_t down = end_of_run<L, true>(a, at, n);
            descending = down > end;
            if (descending) end = down;
        }
        if (end == at + 1 && a[at] != a[at]) break; // a NaN
        run[runs] = {end, descending};
        if (end == n || end - at >= long_run) leading = runs + 1;
        at = end;
    }
    if (leading == 0 || run[leading - 1].end < n / 2) return 0;

    for (std::ptrdiff_t i = 0, begin = 0; i < leading; begin = run[i++].end)
        if (run[i].descending) reverse<L>(a + begin, run[i].end - begin);
    // Neighbours are merged two by two.
    for (runs = leading; runs > 1;) {
        std::ptrdiff_t merged = 0, begin = 0;
        for (std::ptrdiff_t i = 0; i < runs; i += 2) {
            const std::ptrdiff_t end = run[i + 1 < runs ? i + 1 : i].end;
            if (run[i].end < end) merge_runs<Kernel>(a + begin, run[i].end - begin, end - begin);
            run[merged++].end = begin = end;
        }
        runs = merged;
    }
    return run[0].end;
}

} // namespace
} // namespace kor::sort
