// Sorts a bitonic sequence of any length in place.
//
// Exchanges at halving distances: K. E. Batcher, Sorting networks and their applications, AFIPS 32 (1968) 307-314; passes
// over memory from the greatest distance on, the last distances block by block in registers.
//
// Written for any kernel (see quicksort_doubles.hpp), and compiled for its instruction set by the file that includes it.
#pragma once

#include <bit>
#include <cstddef>
#include <limits>

namespace kor::sort {
namespace { // each including file compiles it for a target of its own

// A sequence of any length is seen as part of one whose length is a power of two. What is missing would be the least
// elements, before the present ones, or the greatest, behind them: they never move.
template <class Kernel>
class BitonicMerge {
    using L = typename Kernel::Lanes;

  public:
    // Descending and then ascending: greatest elements are missing behind the end. Ascending and then descending: least
    // elements are missing before the beginning.
    BitonicMerge(double *a, std::ptrdiff_t n, bool descending_first)
        : a_{a}, length_{static_cast<std::ptrdiff_t>(std::bit_ceil(static_cast<std::size_t>(n < kBlock ? kBlock : n)))},
          begin_{descending_first ? 0 : length_ - n}, end_{begin_ + n}
    {
    }

    void sort() const
    {
        // Long distances in passes over everything; then piece by piece, in the cache.
        const std::ptrdiff_t piece = length_ < kPiece ? length_ : kPiece;
        exchange_down_to(piece, 0, length_, length_);
        for (std::ptrdiff_t start = begin_ & -piece; start < end_; start += piece) {
            exchange_down_to(kBlock, start, start + piece, piece);
            for (std::ptrdiff_t block = start; block < start + piece; block += kBlock) sort_block(block);
        }
    }

  private:
    static constexpr std::ptrdiff_t kPiece = 1 << 14; // 128 KiB: half of a small second-level cache
    static constexpr std::ptrdiff_t kBlock = Kernel::kBitonicBlock;

    double *at(std::ptrdiff_t position) const { return a_ + (position - begin_); }

    // Exchanges between start and stop, sequences of `length`, at the distances length/2, ..., shortest.
    void exchange_down_to(std::ptrdiff_t shortest, std::ptrdiff_t start, std::ptrdiff_t stop,
                          std::ptrdiff_t length) const
    {
        for (; length > 2 * shortest; length /= 4)
            for (std::ptrdiff_t s = start; s < stop; s += length) exchange_quarters(s, length / 4);
        if (length > shortest)
            for (std::ptrdiff_t s = start; s < stop; s += length) exchange_halves(s, length / 2);
    }

    // One distance; elements without a partner stay.
    void exchange_halves(std::ptrdiff_t start, std::ptrdiff_t distance) const
    {
        std::ptrdiff_t i = start > begin_ ? start : begin_;
        const std::ptrdiff_t stop = start + distance < end_ - distance ? start + distance : end_ - distance;
        for (; i + L::width <= stop; i += L::width) {
            const auto x = L::load(at(i)), y = L::load(at(i + distance));
            L::store(at(i), L::min(x, y));
            L::store(at(i + distance), L::max(x, y));
        }
        for (; i < stop; ++i) {
            const double x = *at(i), y = *at(i + distance);
            const bool ordered = x < y;
            *at(i) = ordered ? x : y;
            *at(i + distance) = ordered ? y : x;
        }
    }

    // Two distances, 2 quarter and quarter, in one pass.
    void exchange_quarters(std::ptrdiff_t start, std::ptrdiff_t quarter) const
    {
        if (start < begin_ || start + 4 * quarter > end_) {
            exchange_halves(start, 2 * quarter);
            exchange_halves(start, quarter);
            exchange_halves(start + 2 * quarter, quarter);
            return;
        }
        for (double *p = at(start); p != at(start + quarter); p += L::width) {
            const auto a = L::load(p), b = L::load(p + quarter);
            const auto c = L::load(p + 2 * quarter), d = L::load(p + 3 * quarter);
            const auto ac = L::min(a, c), ca = L::max(a, c), bd = L::min(b, d), db = L::max(b, d);
            L::store(p, L::min(ac, bd));
            L::store(p + quarter, L::max(ac, bd));
            L::store(p + 2 * quarter, L::min(ca, db));
            L::store(p + 3 * quarter, L::max(ca, db));
        }
    }

    // All distances within a block.
    void sort_block(std::ptrdiff_t block) const
    {
        if (block >= begin_ && block + kBlock <= end_) return Kernel::sort_bitonic_block(at(block));
        if (block + kBlock <= begin_ || block >= end_) return;
        constexpr double infinity = std::numeric_limits<double>::infinity();
        double filled_up[kBlock];
        for (std::ptrdiff_t i = 0; i < kBlock; ++i)
            filled_up[i] = block + i < begin_ ? -infinity : (block + i < end_ ? *at(block + i) : infinity);
        Kernel::sort_bitonic_block(filled_up);
        for (std::ptrdiff_t i = 0; i < kBlock; ++i)
            if (block + i >= begin_ && block + i < end_) *at(block + i) = filled_up[i];
    }

    double *a_; // the element at position begin_
    std::ptrdiff_t length_, begin_, end_;
};

} // namespace
} // namespace kor::sort
