// Sorts short sequences: a merge sort of handles, from both ends at once, on whose comparisons no branch depends.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include <kor.h>

namespace kor::sort {

// The first if the condition holds, else the second, without a branch.
template <class T>
T *select(bool condition, T *first, T *second)
{
    const auto x = reinterpret_cast<std::uintptr_t>(first), y = reinterpret_cast<std::uintptr_t>(second);
    return reinterpret_cast<T *>(y ^ ((x ^ y) & (0 - static_cast<std::uintptr_t>(condition))));
}
inline Integer select(bool condition, Integer first, Integer second)
{
    return second ^ ((first ^ second) & -static_cast<Integer>(condition));
}

// The first position from low to high - 1 of which the condition does not hold, as it does of those before.
template <class Condition>
std::ptrdiff_t partition_point(std::ptrdiff_t low, std::ptrdiff_t high, Condition condition)
{
    while (low < high) {
        const std::ptrdiff_t middle = low + (high - low) / 2;
        if (condition(middle))
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

// What is sorted is a `Sequence`:
//   Handle               a name of an element that stays good while others move: a pointer to it, an index
//   at(i)                the handle of what stands in position i
//   scan(i, step)        a copyable function that returns the handles of positions i, i + step, ... in turn
//   before(a, b)         whether the element of handle a must come before that of b
//   kMayTie              whether neither of two elements may have to come before the other
//   swap(i, j)           exchanges what stands in two positions
//   arrange(low, h, n)   positions low, low+1, ... receive h[0], h[1], ..., those that stand there now in another order
// However inconsistent before() is, the same elements are there at the end, and it has seen no others.
template <class Sequence>
class ShortSort {
    using Handle = typename Sequence::Handle;

  public:
    static constexpr std::ptrdiff_t kMost = 128;

    explicit ShortSort(const Sequence &sequence) : sequence_{sequence} {}

    // Sorts positions low to low + n - 1; n is at most kMost. Stable.
    void sort(std::ptrdiff_t low, std::ptrdiff_t n) const
    {
        Handle handle[kMost], merged[kMost];
        for (std::ptrdiff_t i = 0; i < n; ++i) handle[i] = sequence_.at(low + i);
        std::ptrdiff_t run = 1;
        while (run < n && !sequence_.before(handle[run], handle[run - 1])) ++run;
        if (run >= n) return;
        if (run < n / 2) {
            sequence_.arrange(low, sort_handles(handle, n), n);
            return;
        }
        const Handle *rest = sort_handles(handle + run, n - run);
        if (rest != handle + run) std::copy(rest, rest + (n - run), handle + run);
        merge_handles(handle, run, n, merged);
        sequence_.arrange(low, merged, n);
    }

    // Merges what is in order from low to middle - 1 and from middle to high - 1, no more than kMost in all. Stable.
    void merge(std::ptrdiff_t low, std::ptrdiff_t middle, std::ptrdiff_t high) const
    {
        Handle handle[kMost], merged[kMost];
        for (std::ptrdiff_t i = low; i < high; ++i) handle[i - low] = sequence_.at(i);
        merge_handles(handle, middle - low, high - low, merged);
        sequence_.arrange(low, merged, high - low);
    }

    // Sorts up to kMost handles. Stable. The result is in `a` or in a place of its own.
    const Handle *sort_handles(Handle *a, std::ptrdiff_t n) const
    {
        std::ptrdiff_t run = 0;
        for (; run + 4 <= n; run += 4) sort_four(a + run);
        sort_up_to_three(a + run, n - run);

        Handle *from = a, *to = spare_;
        for (run = 4; run < n; run *= 2) {
            std::ptrdiff_t i = 0;
            for (; i + run < n; i += 2 * run) merge_handles(from + i, run, std::min(2 * run, n - i), to + i);
            std::copy(from + i, from + std::max(i, n), to + i);
            std::swap(from, to);
        }
        return from;
    }

  private:
    static constexpr std::ptrdiff_t kLongRun = 16; // it pays to ask whether two such runs are in order as they stand

    // These and merge_handles() make a permutation of their input whatever before() says.
    void sort_four(Handle *h) const
    {
        const bool swap01 = sequence_.before(h[1], h[0]), swap23 = sequence_.before(h[3], h[2]);
        const Handle a = h[swap01], b = h[!swap01], c = h[2 + swap23], d = h[3 - swap23];
        const bool c_before_a = sequence_.before(c, a), d_before_b = sequence_.before(d, b);
        const Handle left = select(c_before_a, a, select(d_before_b, c, b));
        const Handle right = select(d_before_b, d, select(c_before_a, b, c));
        const bool swap_middle = sequence_.before(right, left);
        h[0] = select(c_before_a, c, a);
        h[1] = select(swap_middle, right, left);
        h[2] = select(swap_middle, left, right);
        h[3] = select(d_before_b, b, d);
    }

    void sort_up_to_three(Handle *h, std::ptrdiff_t n) const
    {
        if (n < 2) return;
        const bool swap01 = sequence_.before(h[1], h[0]);
        const Handle a = h[swap01], b = h[!swap01];
        h[0] = a;
        h[1] = b;
        if (n < 3) return;
        const Handle c = h[2];
        const bool c_before_a = sequence_.before(c, a), c_before_b = c_before_a | sequence_.before(c, b);
        h[0] = select(c_before_a, c, a);
        h[1] = select(c_before_a, a, select(c_before_b, c, b));
        h[2] = select(c_before_b, b, c);
    }

    // Merges a[0..middle) and a[middle..n), neither of them empty.
    void merge_handles(const Handle *a, std::ptrdiff_t middle, std::ptrdiff_t n, Handle *merged) const
    {
        const Sequence sequence = sequence_;
        if (middle >= kLongRun && !sequence.before(a[middle], a[middle - 1])) {
            std::copy(a, a + n, merged);
            return;
        }
        const Handle *left = a, *left_end = a + middle, *right = left_end, *right_end = a + n;
        Handle *front = merged, *back = merged + n;
        // From both ends at once, for so many steps that neither sequence can be at its end.
        for (std::ptrdiff_t steps = std::min(middle, n - middle); steps > 0; --steps) {
            const bool take_right = sequence.before(*right, *left);
            *front++ = *select(take_right, right, left);
            right += take_right;
            left += !take_right;

            const bool take_left = sequence.before(right_end[-1], left_end[-1]);
            *--back = select(take_left, left_end, right_end)[-1];
            left_end -= take_left;
            right_end -= !take_left;
        }
        // Both ends have taken the same element: before() contradicts itself.
        if (left > left_end || right > right_end) {
            std::copy(a, a + n, merged);
            return;
        }
        while (left < left_end && right < right_end) {
            const bool take_right = sequence.before(*right, *left);
            *front++ = *select(take_right, right, left);
            right += take_right;
            left += !take_right;
        }
        std::copy(right, right_end, std::copy(left, left_end, front));
    }

    const Sequence sequence_;
    mutable Handle spare_[kMost];
};

} // namespace kor::sort
