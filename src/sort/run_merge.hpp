// Sequences that come as a few runs, ascending or descending, are sorted by merging the runs in place.
//
// P.-S. Kim and A. Kutzner, Stable minimum storage merging by symmetric comparisons, ESA 2004, LNCS 3221, 714-723.
#pragma once

#include <algorithm>
#include <cstddef>

#include "sort/short_sort.hpp"

namespace kor::sort {

// `Sequence` is described in short_sort.hpp. All is stable.
template <class Sequence>
class RunMerge {
    using Handle = typename Sequence::Handle;

  public:
    explicit RunMerge(const Sequence &sequence) : sequence_{sequence} {}

    // Sorts positions 0 to n-1 as far as they come in a few long runs, and returns how far that is: n when all is sorted, 0
    // when it is not worth while.
    std::ptrdiff_t merge_leading_runs(std::ptrdiff_t n) const
    {
        struct {
            std::ptrdiff_t end;
            bool descending;
        } run[kMaxRuns];
        const std::ptrdiff_t long_run = n / kMaxRuns;
        std::ptrdiff_t runs = 0, leading = 0; // those up to and with the last long one
        for (std::ptrdiff_t at = 0; at < n; ++runs) {
            if (runs == kMaxRuns || at < (runs - 2) * long_run) break;
            std::ptrdiff_t end = at + 1;
            const bool descending = end < n && before(end, at);
            while (end < n && before(end, end - 1) == descending) ++end;
            run[runs] = {end, descending};
            if (end == n || end - at >= long_run) leading = runs + 1;
            at = end;
        }
        if (leading == 0 || run[leading - 1].end < n / 2) return 0;

        for (std::ptrdiff_t i = 0, begin = 0; i < leading; begin = run[i++].end)
            if (run[i].descending) reverse(begin, run[i].end);
        // Neighbours are merged two by two.
        for (runs = leading; runs > 1;) {
            std::ptrdiff_t merged = 0, begin = 0;
            for (std::ptrdiff_t i = 0; i < runs; i += 2) {
                const std::ptrdiff_t end = run[i + 1 < runs ? i + 1 : i].end;
                merge(begin, run[i].end, end);
                run[merged++].end = begin = end;
            }
            runs = merged;
        }
        return run[0].end;
    }

    // Merges what is in order from low to middle - 1 and from middle to high - 1.
    void merge(std::ptrdiff_t low, std::ptrdiff_t middle, std::ptrdiff_t high) const
    {
        struct {
            std::ptrdiff_t low, middle, high;
        } pending[32]; // each half as long as the one below it
        int depth = 0;
        pending[depth++] = {low, middle, high};
        while (depth > 0) {
            --depth;
            std::ptrdiff_t first = pending[depth].low, end = pending[depth].high;
            const std::ptrdiff_t second = pending[depth].middle;
            if (first == second || second == end || !before(second, second - 1)) continue;
            // What is in its place already, at the front and at the end.
            first = partition_point(first, second, [&](auto i) { return !before(second, i); });
            end = partition_point(second, end, [&](auto i) { return before(i, second - 1); });
            if (end - first <= ShortSort<Sequence>::kMost) {
                short_sort_.merge(first, second, end);
                continue;
            }
            if (second - first == 1 || end - second == 1) {
                rotate(first, second, end);
                continue;
            }
            // Of the first half of the result so many come from the first run.
            const std::ptrdiff_t half = (end - first) / 2, length = second - first;
            const std::ptrdiff_t taken =
                partition_point(std::max<std::ptrdiff_t>(0, half - (end - second)), std::min(half, length),
                                [&](auto i) { return !before(second + half - 1 - i, first + i); });
            rotate(first + taken, second, second + half - taken);
            pending[depth++] = {first, first + taken, first + half};
            pending[depth++] = {first + half, first + half + (length - taken), end};
        }
    }

  private:
    static constexpr std::ptrdiff_t kMaxRuns = 8;

    bool before(std::ptrdiff_t i, std::ptrdiff_t j) const { return sequence_.before(sequence_.at(i), sequence_.at(j)); }

    void reverse(std::ptrdiff_t low, std::ptrdiff_t high) const
    {
        for (--high; low < high; ++low, --high) sequence_.swap(low, high);
    }

    // Exchanges what stands from low to middle - 1 with what stands from middle to high - 1, by swaps of blocks.
    void rotate(std::ptrdiff_t low, std::ptrdiff_t middle, std::ptrdiff_t high) const
    {
        std::ptrdiff_t left = middle - low, right = high - middle;
        while (left > 0 && right > 0) {
            const std::ptrdiff_t block = std::min(left, right);
            if (left <= right) { // the left part goes to its place
                for (std::ptrdiff_t i = 0; i < block; ++i) sequence_.swap(low + i, low + left + i);
                low += block;
                right -= block;
            } else { // the right part does
                for (std::ptrdiff_t i = 0; i < block; ++i) sequence_.swap(low + left - block + i, low + left + i);
                left -= block;
            }
        }
    }

    const Sequence sequence_;
    ShortSort<Sequence> short_sort_{sequence_};
};

} // namespace kor::sort
