// Sorts a sequence in place by quicksort that notes misplaced elements block by block, so that no branch depends on a
// comparison. Heapsort takes over when partitions are bad.
//
// S. Edelkamp and A. Weiss, BlockQuicksort: avoiding branch mispredictions in quicksort, ACM J. Exp. Algorithmics 24 (2019)
// 1.4; O. R. L. Peters, Pattern-defeating quicksort (2021): what to do about equal elements and about order that is there.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "sort/heap_sort.hpp"
#include "sort/pending_parts.hpp"
#include "sort/positions.hpp"
#include "sort/run_merge.hpp"
#include "sort/short_sort.hpp"

namespace kor::sort {

// `Sequence` is described in short_sort.hpp.
template <class Sequence>
class ComparisonSort {
    using Handle = typename Sequence::Handle;

  public:
    explicit ComparisonSort(const Sequence &sequence) : sequence_{sequence} {}

    // Sorts positions 0 to n-1.
    void sort(std::ptrdiff_t n)
    {
        if (n <= ShortSort<Sequence>::kMost) return short_sort_.sort(0, n);
        const std::ptrdiff_t sorted = runs_.merge_leading_runs(n);
        quicksort(sorted, n);
        runs_.merge(0, sorted, n);
    }

  private:
    static constexpr std::ptrdiff_t kBadFraction = 8; // a partition is bad when its smaller part is less than this
    static constexpr std::ptrdiff_t kBlock = 64;

    void quicksort(std::ptrdiff_t low, std::ptrdiff_t high)
    {
        PendingParts pending;
        pending.push({low, high, patience_for(high - low)});
        while (!pending.empty()) {
            Part part = pending.pop();
            if (part.size() <= ShortSort<Sequence>::kMost) {
                short_sort_.sort(part.low, part.size());
                continue;
            }
            if (part.patience == 0) {
                heap_sort(
                    part.size(), [&](auto i, auto j) { return before(part.low + i, part.low + j); },
                    [&](auto i, auto j) { sequence_.swap(part.low + i, part.low + j); });
                continue;
            }
            const Sample sample = take_sample_of(part);
            if (sample.ascending) {
                sort_by_merging(part);
                continue;
            }
            sequence_.swap(part.low, sample.median);
            if constexpr (Sequence::kMayTie) {
                // What stands before the part is not greater than any in it: equal to the pivot, it is equal to all that
                // are not greater than the pivot, and these are in their place.
                if (part.low > low && !before(part.low - 1, part.low)) {
                    const Handle pivot = sequence_.at(part.low);
                    part.low = split(part.low + 1, part.high,
                                     [pivot, sequence = sequence_](Handle h) { return !sequence.before(pivot, h); });
                    pending.push(part);
                    continue;
                }
            }
            const Handle pivot = sequence_.at(part.low);
            const std::ptrdiff_t place =
                split(part.low + 1, part.high,
                      [pivot, sequence = sequence_](Handle h) { return sequence.before(h, pivot); }) -
                1;
            sequence_.swap(part.low, place);

            const std::ptrdiff_t less = place - part.low, greater = part.high - (place + 1);
            if (std::max(less, greater) > part.size() - part.size() / kBadFraction) --part.patience;
            const Part below{part.low, place, part.patience}, above{place + 1, part.high, part.patience};
            pending.push(less > greater ? below : above);
            pending.push(less > greater ? above : below);
        }
    }

    bool before(std::ptrdiff_t i, std::ptrdiff_t j) const { return sequence_.before(sequence_.at(i), sequence_.at(j)); }

    struct Sample {
        std::ptrdiff_t median; // where it stands
        bool ascending;
    };

    // One element of each of so many stretches of equal length.
    template <int size>
    Sample take_sample(const Part &part)
    {
        Handle sample[size], sorted[size];
        std::ptrdiff_t position[size];
        const std::ptrdiff_t stretch = part.size() / size;
        positions_.advance();
        for (int i = 0; i < size; ++i) {
            position[i] = part.low + i * stretch + positions_.choose(i, stretch);
            sample[i] = sequence_.at(position[i]);
        }
        int ascending = 1;
        while (ascending < size && !sequence_.before(sample[ascending], sample[ascending - 1])) ++ascending;
        if (ascending == size) return {position[size / 2], true};
        std::copy(sample, sample + size, sorted);
        const Handle median = short_sort_.sort_handles(sorted, size)[size / 2];
        return {position[std::find(sample, sample + size, median) - sample], false};
    }

    // A larger sample gives better parts, and costs more.
    Sample take_sample_of(const Part &part)
    {
        if (part.size() < 256) return take_sample<5>(part);
        if (part.size() < 4096) return take_sample<15>(part);
        return take_sample<31>(part);
    }

    // What is in order on the whole: few elements take part in the merges of neighbouring runs.
    void sort_by_merging(const Part &part) const
    {
        std::ptrdiff_t run = ShortSort<Sequence>::kMost;
        for (std::ptrdiff_t i = part.low; i < part.high; i += run) short_sort_.sort(i, std::min(run, part.high - i));
        for (; run < part.size(); run *= 2)
            for (std::ptrdiff_t i = part.low; i < part.high - run; i += 2 * run)
                runs_.merge(i, i + run, std::min(i + 2 * run, part.high));
    }

    // ---- Partition -----------------------------------------------------------------------------------------------------

    // Offsets, in a block at one end of what is not yet known, of elements that belong to the other side.
    struct Misplaced {
        std::uint8_t offset[kBlock];
        std::ptrdiff_t base = 0;
        int first = 0, end = 0;

        int count() const { return end - first; }
        template <class Scan, class IsMisplaced>
        void find(std::ptrdiff_t at, std::ptrdiff_t size, Scan scan, IsMisplaced is_misplaced)
        {
            base = at;
            first = 0;
            int found = 0;
#pragma GCC unroll 4
            for (std::ptrdiff_t i = 0; i < size; ++i) {
                offset[found] = static_cast<std::uint8_t>(i);
                found += is_misplaced(scan());
            }
            end = found;
        }
    };

    // Moves what belongs to the front of low to high - 1 there, and returns the first position behind it.
    template <class BelongsToFront>
    std::ptrdiff_t split(std::ptrdiff_t low, std::ptrdiff_t high, BelongsToFront belongs_to_front) const
    {
        Misplaced left, right;
        for (;;) {
            if (left.count() == 0) {
                const std::ptrdiff_t unknown = high - low;
                const std::ptrdiff_t size = std::min(kBlock, right.count() == 0 ? (unknown + 1) / 2 : unknown);
                left.find(low, size, sequence_.scan(low, 1), [=](Handle h) { return !belongs_to_front(h); });
                low += size;
            }
            if (right.count() == 0) {
                const std::ptrdiff_t size = std::min(kBlock, high - low);
                right.find(high - 1, size, sequence_.scan(high - 1, -1), belongs_to_front);
                high -= size;
            }
            for (int pairs = std::min(left.count(), right.count()); pairs > 0; --pairs)
                sequence_.swap(left.base + left.offset[left.first++], right.base - right.offset[right.first++]);
            if (low == high && (left.count() == 0 || right.count() == 0)) break;
        }
        // One side may have some left over: they change places with its last ones.
        while (left.count() > 0) sequence_.swap(left.base + left.offset[--left.end], --low);
        while (right.count() > 0) sequence_.swap(right.base - right.offset[--right.end], low++);
        return low;
    }

    const Sequence sequence_;
    ShortSort<Sequence> short_sort_{sequence_};
    RunMerge<Sequence> runs_{sequence_};
    Positions positions_;
};

} // namespace kor::sort
