// The sort of doubles, for any kernel: runs are merged, all else is sorted by quicksort, safeguarded by heapsort.
//
// A `Kernel` is what depends on the instruction set:
//   Lanes                        a vector of doubles: V, width, load, store, min, max, reverse, not_at_most, negative_zeros
//   kShort, sort_short(a, n)     sorts up to kShort numbers
//   kBitonicBlock, sort_bitonic_block(a)   sorts so many numbers that are a bitonic sequence
//   choose_pivot(a, n, positions)
//   partition(a, n, pivot), partition_three_ways(a, n, pivot)
//
// It is compiled for an instruction set by the file that includes it: everything here has internal linkage, so that no
// copy for one set is taken for another's.
//
// D. R. Musser, Introspective sorting and selection algorithms, Softw. Pract. Exper. 27 (1997) 983-993.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#include "sort/count_below.hpp"
#include "sort/heap_sort.hpp"
#include "sort/natural_runs.hpp"
#include "sort/pending_parts.hpp"
#include "sort/positions.hpp"

namespace kor::sort {
namespace { // each including file compiles it for a target of its own

struct Pivot {
    double value;
    bool repeated; // in the sample: worth a part of its own
};

// How many elements a partition has moved to the front and to the end. Between them lie what is equal to the pivot.
struct Counts {
    std::ptrdiff_t less, greater;
};

inline std::ptrdiff_t count_negative_zeros(const double *a, std::ptrdiff_t n)
{
    std::ptrdiff_t count = 0;
    for (std::ptrdiff_t i = 0; i < n; ++i) count += std::bit_cast<uint64_t>(a[i]) == std::bit_cast<uint64_t>(-0.0);
    return count;
}

template <class L>
bool any_negative_zero(const double *a, std::ptrdiff_t n)
{
    std::ptrdiff_t i = 0;
    unsigned found = 0;
    for (; i + L::width <= n; i += L::width) found |= L::negative_zeros(L::load(a + i));
    return found != 0 || count_negative_zeros(a + i, n - i) > 0;
}

// Of n elements those before `sorted` are in order.
inline void insertion_sort(double *a, std::ptrdiff_t n, std::ptrdiff_t sorted = 1)
{
    for (std::ptrdiff_t i = sorted; i < n; ++i) {
        const double value = a[i];
        if (!(value < a[i - 1])) continue;
        std::ptrdiff_t j = i;
        do a[j] = a[j - 1];
        while (--j > 0 && value < a[j - 1]);
        a[j] = value;
    }
}

// Returns how many are numbers.
template <class L>
std::ptrdiff_t move_nans_to_end(double *a, std::ptrdiff_t n)
{
    std::ptrdiff_t numbers = 0;
    for (; numbers + L::width <= n; numbers += L::width) {
        const auto v = L::load(a + numbers);
        if (L::not_at_most(v, v) != 0) break;
    }
    for (std::ptrdiff_t i = numbers; i < n; ++i) {
        const double value = a[i];
        a[i] = a[numbers];
        a[numbers] = value;
        numbers += value == value;
    }
    return numbers;
}

// Sorts what is not a NaN, and returns how many that are. A partition moves NaNs to the end, since none is less than a
// pivot: only the last part has any, and need be searched for them.
template <class Kernel>
__attribute__((noinline)) std::ptrdiff_t quicksort(double *a, std::ptrdiff_t n)
{
    constexpr std::ptrdiff_t bad_fraction = 8; // a partition is bad when its smaller part is less than this
    Positions positions;
    PendingParts pending;
    pending.push({0, n, patience_for(n)});
    while (!pending.empty()) {
        Part part = pending.pop();
        double *const first = a + part.low;
        const bool is_short = part.size() <= Kernel::kShort, is_hopeless = part.patience == 0;
        Pivot pivot{};
        if (!is_short && !is_hopeless) pivot = Kernel::choose_pivot(first, part.size(), positions);
        const bool sort_at_once = is_short || is_hopeless || pivot.value != pivot.value;
        if (sort_at_once && part.high == n)
            n = part.high = part.low + move_nans_to_end<typename Kernel::Lanes>(first, part.size());

        const std::ptrdiff_t size = part.size();
        if (size <= Kernel::kShort) {
            Kernel::sort_short(first, size);
        } else if (is_hopeless) {
            heap_sort(
                size, [=](auto i, auto j) { return first[i] < first[j]; },
                [=](auto i, auto j) {
                    const double value = first[i];
                    first[i] = first[j];
                    first[j] = value;
                });
        } else if (sort_at_once) {
            pending.push(part); // the pivot was a NaN: once more without
        } else {
            Counts counts{0, size};
            if (!pivot.repeated) counts = Kernel::partition(first, size, pivot.value);
            if (counts.less == 0) counts = Kernel::partition_three_ways(first, size, pivot.value);
            const auto [less, greater] = counts;
            if ((less > greater ? less : greater) > size - size / bad_fraction) --part.patience;

            const Part below{part.low, part.low + less, part.patience},
                above{part.high - greater, part.high, part.patience};
            pending.push(less > greater ? below : above);
            pending.push(less > greater ? above : below);
        }
    }
    return n;
}

// n zeros, so many of them negative, the negative ones first.
inline void write_zeros(double *a, std::ptrdiff_t n, std::ptrdiff_t negative)
{
    for (std::ptrdiff_t i = 0; i < n; ++i) a[i] = i < negative ? -0.0 : 0.0;
}

// Comparisons do not tell the zeros apart: this does, in n ascending elements.
inline void order_zeros(double *a, std::ptrdiff_t n)
{
    if (n == 0 || a[0] > 0.0 || a[n - 1] < 0.0) return;
    double *const zeros = a + count_below<false>(a, n, 0.0);
    const std::ptrdiff_t count = count_below<true>(zeros, a + n - zeros, 0.0);
    const std::ptrdiff_t negative = count_negative_zeros(zeros, count);
    if (negative > 0 && negative < count) write_zeros(zeros, count, negative);
}

// Sorts what is not a NaN, moves NaNs to the end, and returns how many are not: of few elements.
template <class Kernel>
std::ptrdiff_t sort_few_numbers(double *a, std::ptrdiff_t n)
{
    using L = typename Kernel::Lanes;
    constexpr std::ptrdiff_t fewest = 24; // two runs of so many are merged by insertion as quickly as by anything else
    n = move_nans_to_end<L>(a, n);
    const std::ptrdiff_t run = end_of_run<L, false>(a, 0, n);
    if (run < n) {
        if (n <= fewest && end_of_run<L, false>(a, run, n) == n)
            insertion_sort(a, n, run);
        else if (end_of_run<L, true>(a, 0, n) == n)
            reverse<L>(a, n);
        else if (n <= Kernel::kShort)
            Kernel::sort_short(a, n);
        else
            quicksort<Kernel>(a, n);
    }
    if (any_negative_zero<L>(a, n)) order_zeros(a, n);
    return n;
}

// Sorts what is not a NaN, moves NaNs to the end, and returns how many are not: of any number of elements.
template <class Kernel>
std::ptrdiff_t sort_numbers(double *a, std::ptrdiff_t n)
{
    constexpr std::ptrdiff_t few = 128; // it would take as long to look for runs as to sort
    if (n <= few) return sort_few_numbers<Kernel>(a, n);
    std::ptrdiff_t numbers = merge_leading_runs<Kernel>(a, n);
    if (numbers < n) {
        const std::ptrdiff_t sorted = numbers, rest = quicksort<Kernel>(a + sorted, n - sorted);
        numbers += rest;
        if (sorted > 0 && rest > 0) merge_runs<Kernel>(a, sorted, numbers);
    }
    order_zeros(a, numbers);
    return numbers;
}

} // namespace
} // namespace kor::sort
