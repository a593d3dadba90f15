// The kernel of the sort of doubles on vectors, for any instruction set that has minimum, maximum and permutation of lanes.
//
// Short parts are sorted in registers: the columns of a matrix of vectors by a network, then, the matrix transposed, runs
// are merged two by two with bitonic networks. Longer parts are partitioned in place, a block of vectors at a time, with no
// branch on the data except for the end to read from.
//
// `Lanes` (lanes_avx512.hpp, lanes_avx2.hpp) is a vector of doubles: V, width, all, first, load, store, load_some,
// store_some, broadcast, min, max, less, not_at_most, split, reverse, transpose, sort_bitonic. Two elements that are equal,
// or of which one is a NaN, come out of min(a, b) and max(a, b) one each.
//
// M. Blacher, J. Giesen, P. Sanders, J. Wassenberg, Vectorized and performance-portable quicksort, Softw. Pract. Exper. 52
// (2022) 2684-2699; B. Bramas, A novel hybrid quicksort algorithm vectorized using AVX-512 on Intel Skylake, Int. J. Adv.
// Comput. Sci. Appl. 8 (2017) no. 10.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "sort/quicksort_doubles.hpp"

namespace kor::sort {
namespace { // each including file compiles it for a target of its own

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// ---- In registers ------------------------------------------------------------------------------------------------------

template <class L>
KOR_INLINE void exchange(typename L::V &a, typename L::V &b)
{
    const typename L::V low = L::min(a, b);
    b = L::max(a, b);
    a = low;
}

struct RowPair {
    unsigned char low, high;
};

// Networks of fewest exchanges: Knuth, section 5.3.4; that of 16 is due to M. W. Green, in the arrangement of least depth.
template <int rows>
constexpr RowPair kNetwork[1] = {};
template <>
constexpr RowPair kNetwork<4>[] = {{0, 1}, {2, 3}, {0, 2}, {1, 3}, {1, 2}};
template <>
constexpr RowPair kNetwork<8>[] = {{0, 2}, {1, 3}, {4, 6}, {5, 7}, {0, 4}, {1, 5}, {2, 6}, {3, 7}, {0, 1}, {2, 3},
                                   {4, 5}, {6, 7}, {2, 4}, {3, 5}, {1, 4}, {3, 6}, {1, 2}, {3, 4}, {5, 6}};
template <>
constexpr RowPair kNetwork<16>[] = {
    {0, 13},  {1, 12}, {2, 15},  {3, 14},  {4, 8},   {5, 6}, {7, 11},  {9, 10},  {0, 5},   {1, 7},   {2, 9},   {3, 4},
    {6, 13},  {8, 14}, {10, 15}, {11, 12}, {0, 1},   {2, 3}, {4, 5},   {6, 8},   {7, 9},   {10, 11}, {12, 13}, {14, 15},
    {0, 2},   {1, 3},  {4, 10},  {5, 11},  {6, 7},   {8, 9}, {12, 14}, {13, 15}, {1, 2},   {3, 12},  {4, 6},   {5, 7},
    {8, 10},  {9, 11}, {13, 14}, {1, 4},   {2, 6},   {5, 8}, {7, 10},  {9, 13},  {11, 14}, {2, 4},   {3, 6},   {9, 12},
    {11, 13}, {3, 5},  {6, 8},   {7, 9},   {10, 12}, {3, 4}, {5, 6},   {7, 8},   {9, 10},  {11, 12}, {6, 7},   {8, 9}};

template <class L, int rows>
KOR_INLINE void sort_columns(typename L::V *row)
{
#pragma GCC unroll 64
    for (const RowPair &pair : kNetwork<rows>) exchange<L>(row[pair.low], row[pair.high]);
}

// Sorts `rows` vectors that hold one bitonic sequence: exchanges at halving distances.
template <class L, int rows>
KOR_INLINE void sort_bitonic(typename L::V *row)
{
#pragma GCC unroll 4
    for (int distance = rows / 2; distance > 0; distance /= 2)
#pragma GCC unroll 16
        for (int i = 0; i < rows; ++i)
            if ((i & distance) == 0) exchange<L>(row[i], row[i + distance]);
#pragma GCC unroll 8
    for (int i = 0; i < rows; i += 2) L::sort_bitonic(row[i], row[i + 1]);
}

// Merges two sorted sequences of rows/2 vectors each.
template <class L, int rows>
KOR_INLINE void merge_halves(typename L::V *row)
{
    typename L::V backwards[rows / 2];
#pragma GCC unroll 8
    for (int i = 0; i < rows / 2; ++i) backwards[i] = L::reverse(row[rows - 1 - i]);
#pragma GCC unroll 8
    for (int i = 0; i < rows / 2; ++i) row[rows / 2 + i] = backwards[i];
    sort_bitonic<L, rows>(row);
}

template <class L, int rows, int run>
KOR_INLINE void merge_all(typename L::V *row)
{
    if constexpr (run < rows) {
#pragma GCC unroll 8
        for (int i = 0; i < rows; i += 2 * run) merge_halves<L, 2 * run>(row + i);
        merge_all<L, rows, 2 * run>(row);
    }
}

// Sorts `rows` vectors into one sequence.
template <class L, int rows>
KOR_INLINE void sort_registers(typename L::V *row)
{
    constexpr int blocks = rows / L::width; // a column is a run of so many vectors when the matrix is transposed
    sort_columns<L, rows>(row);
#pragma GCC unroll 4
    for (int block = 0; block < blocks; ++block) L::transpose(row + block * L::width);
    typename L::V run[rows];
#pragma GCC unroll 16
    for (int i = 0; i < rows; ++i) run[i] = row[(i % blocks) * L::width + i / blocks];
    merge_all<L, rows, blocks>(run);
#pragma GCC unroll 16
    for (int i = 0; i < rows; ++i) row[i] = run[i];
}

// Vector i of an array of n doubles, with infinities behind its end.
template <class L>
KOR_INLINE std::ptrdiff_t lanes_present(std::ptrdiff_t n, int i)
{
    const std::ptrdiff_t count = n - i * L::width;
    return count < 0 ? 0 : (count > L::width ? L::width : count);
}
template <class L>
KOR_INLINE typename L::V load_present(const double *a, std::ptrdiff_t n, int i)
{
    return L::load_some(a + i * L::width, lanes_present<L>(n, i), L::broadcast(kInfinity));
}
template <class L>
KOR_INLINE void store_present(double *a, std::ptrdiff_t n, int i, typename L::V v)
{
    L::store_some(a + i * L::width, lanes_present<L>(n, i), v);
}

// Sorts n doubles, more than half of what `rows` vectors hold and at most all of it.
template <class L, int rows>
__attribute__((noinline)) void sort_block(double *a, std::ptrdiff_t n)
{
    typename L::V row[rows];
#pragma GCC unroll 8
    for (int i = 0; i < rows / 2; ++i) row[i] = L::load(a + i * L::width);
#pragma GCC unroll 8
    for (int i = rows / 2; i < rows; ++i) row[i] = load_present<L>(a, n, i);
    sort_registers<L, rows>(row);
#pragma GCC unroll 8
    for (int i = 0; i < rows / 2; ++i) L::store(a + i * L::width, row[i]);
#pragma GCC unroll 8
    for (int i = rows / 2; i < rows; ++i) store_present<L>(a, n, i, row[i]);
}

// Sorts n doubles, more than `rows` vectors hold and at most rows + rest: two blocks, then merged.
template <class L, int rows, int rest>
__attribute__((noinline)) void sort_two_blocks(double *a, std::ptrdiff_t n)
{
    constexpr std::ptrdiff_t first = rows * L::width;
    typename L::V row[rows];
    alignas(64) double backwards[rest * L::width];
    sort_block<L, rows>(a, first);
#pragma GCC unroll 16
    for (int i = 0; i < rest; ++i) row[i] = load_present<L>(a + first, n - first, i);
    sort_registers<L, rest>(row);
#pragma GCC unroll 16
    for (int i = 0; i < rest; ++i) L::store(backwards + (rest - 1 - i) * L::width, L::reverse(row[i]));

        // If the second block is the shorter one, infinities would fill it up: the front of the first has no partners.
#pragma GCC unroll 16
    for (int i = 0; i < rows; ++i) row[i] = L::load(a + i * L::width);
#pragma GCC unroll 16
    for (int i = 0; i < rest; ++i) {
        typename L::V high = L::load(backwards + i * L::width);
        exchange<L>(row[rows - rest + i], high);
        L::store(backwards + i * L::width, high);
    }
    sort_bitonic<L, rows>(row);
#pragma GCC unroll 16
    for (int i = 0; i < rows; ++i) L::store(a + i * L::width, row[i]);
#pragma GCC unroll 16
    for (int i = 0; i < rest; ++i) row[i] = L::load(backwards + i * L::width);
    sort_bitonic<L, rest>(row);
#pragma GCC unroll 16
    for (int i = 0; i < rest; ++i) store_present<L>(a + first, n - first, i, row[i]);
}

// ---- Partition ---------------------------------------------------------------------------------------------------------

// Moves what is less than the pivot to the front, what is greater, and NaNs, to the end. What is equal goes with the greater,
// or, if `drop_equal`, nowhere: the caller fills the space between the two. n is at least twice what a block holds.
template <class L, bool drop_equal>
Counts partition_vectors(double *const a, const std::ptrdiff_t n, const double pivot_value)
{
    using V = typename L::V;
    constexpr int unroll = 4; // vectors for which one decides from which end to read
    constexpr std::ptrdiff_t block = unroll * L::width;
    const V pivot = L::broadcast(pivot_value);

    double *left = a, *right = a + n; // what lies outside is placed
    const auto place = [&](V v) __attribute__((always_inline))
    {
        const unsigned less = L::less(v, pivot);
        if constexpr (drop_equal) {
            const unsigned greater = L::not_at_most(v, pivot);
            L::store(left, L::split(v, less));
            L::store(right - L::width, L::split(v, ~greater & L::all));
            left += __builtin_popcount(less);
            right -= __builtin_popcount(greater);
        } else {
            const V sides = L::split(v, less);
            L::store(left, sides);
            L::store(right - L::width, sides);
            const int count = __builtin_popcount(less);
            left += count;
            right -= L::width - count;
        }
    };

    // Blocks from both ends are held back, so that there is always room for what is placed next.
    V held[2 * unroll];
#pragma GCC unroll 4
    for (int i = 0; i < unroll; ++i) {
        held[i] = L::load(a + i * L::width);
        held[unroll + i] = L::load(a + n - block + i * L::width);
    }
    double *unread = a + block, *unread_end = a + n - block;
    while (unread_end - unread >= block) {
        const bool from_left = unread - left <= right - unread_end;
        const double *const source = from_left ? unread : unread_end - block;
        unread += from_left ? block : 0;
        unread_end -= from_left ? 0 : block;
        V v[unroll];
#pragma GCC unroll 4
        for (int i = 0; i < unroll; ++i) v[i] = L::load(source + i * L::width);
#pragma GCC unroll 4
        for (int i = 0; i < unroll; ++i) place(v[i]);
    }

    // What is left in the middle is less than a block; the vector that is not full is placed first, while there is room.
    const std::ptrdiff_t rest_count = unread_end - unread, full = rest_count / L::width, odd = rest_count % L::width;
    V rest[unroll];
    for (int i = 0; i < full; ++i) rest[i] = L::load(unread + i * L::width);
    const V last = L::load_some(unread + full * L::width, odd, pivot);
    const unsigned valid = L::first(odd);
    const unsigned less = L::less(last, pivot) & valid,
                   greater = ~less & valid & (drop_equal ? L::not_at_most(last, pivot) : L::all);
    L::store(left, L::split(last, less));
    L::store(right - L::width, L::split(last, ~greater & L::all));
    left += __builtin_popcount(less);
    right -= __builtin_popcount(greater);
    for (int i = 0; i < full; ++i) place(rest[i]);
#pragma GCC unroll 8
    for (int i = 0; i < 2 * unroll - 1; ++i) place(held[i]);
    if constexpr (drop_equal) {
        // The two stores could overlap now: room for less than two vectors may be left.
        double value[L::width];
        L::store(value, held[2 * unroll - 1]);
        for (const double x : value) {
            if (x < pivot_value)
                *left++ = x;
            else if (!(x <= pivot_value))
                *--right = x;
        }
    } else {
        place(held[2 * unroll - 1]); // into a space of exactly its width
    }
    return {left - a, a + n - right};
}

// ---- The kernel --------------------------------------------------------------------------------------------------------

// Median of a sample, one element of each of so many stretches of equal length.
template <class L, int rows>
Pivot median_of_sample(const double *a, std::ptrdiff_t n, Positions &positions)
{
    constexpr int size = rows * L::width;
    alignas(64) double sample[size];
    const std::ptrdiff_t stretch = n / size;
    positions.advance();
    for (int i = 0; i < size; ++i) sample[i] = a[i * stretch + positions.choose(i, stretch)];
    sort_block<L, rows>(sample, size);
    const double value = sample[size / 2];
    return {value, value == sample[size / 2 - 1] || value == sample[size / 2 + 1]};
}

// `Small` is another kind of lanes, for what does not fill those of the first kind; the two may be the same.
template <class L, class Small>
struct VectorKernel {
    using Lanes = L;
    static constexpr std::ptrdiff_t kShort = 32 * L::width;
    static constexpr std::ptrdiff_t kBitonicBlock = 16 * L::width;

    static void sort_short(double *a, std::ptrdiff_t n)
    {
        if (n <= 2 * Small::width) {
            insertion_sort(a, n);
        } else if (n <= 4 * Small::width) {
            sort_block<Small, 4>(a, n);
        } else if (n <= 8 * Small::width) {
            sort_block<Small, 8>(a, n);
        } else if (n <= 16 * Small::width) {
            sort_block<Small, 16>(a, n);
        } else if (n <= 16 * L::width) {
            sort_block<L, 16>(a, n);
        } else if (n <= 24 * L::width) {
            sort_two_blocks<L, 16, 8>(a, n);
        } else {
            sort_two_blocks<L, 16, 16>(a, n);
        }
    }

    static void sort_bitonic_block(double *a)
    {
        typename L::V row[16];
#pragma GCC unroll 16
        for (int i = 0; i < 16; ++i) row[i] = L::load(a + i * L::width);
        sort_bitonic<L, 16>(row);
#pragma GCC unroll 16
        for (int i = 0; i < 16; ++i) L::store(a + i * L::width, row[i]);
    }

    // A larger sample gives better parts, and costs more.
    static Pivot choose_pivot(const double *a, std::ptrdiff_t n, Positions &positions)
    {
        if (n < 1024) return median_of_sample<Small, 4>(a, n, positions);
        if (n < 10000) return median_of_sample<Small, 8>(a, n, positions);
        return median_of_sample<L, 8>(a, n, positions);
    }

    static Counts partition(double *a, std::ptrdiff_t n, double pivot)
    {
        return partition_vectors<L, false>(a, n, pivot);
    }

    static Counts partition_three_ways(double *a, std::ptrdiff_t n, double pivot)
    {
        // All that is equal is alike, except for the signs of zeros.
        const std::ptrdiff_t negative = pivot == 0.0 ? count_negative_zeros(a, n) : 0;
        const Counts counts = partition_vectors<L, true>(a, n, pivot);
        const std::ptrdiff_t equal = n - counts.less - counts.greater;
        if (pivot == 0.0)
            write_zeros(a + counts.less, equal, negative);
        else
            for (double *p = a + counts.less; p < a + counts.less + equal; ++p) *p = pivot;
        return counts;
    }
};

} // namespace
} // namespace kor::sort
