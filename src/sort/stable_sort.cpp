// Sorts elements of any size by a comparator: bottom-up merges between the array and a buffer.
#include "sort/stable_sort.hpp"

#include <algorithm>

#include "sort/element_sequence.hpp"
#include "sort/run_merge.hpp"

namespace kor::sort {

namespace {

template <class Sequence>
class MergeSort {
  public:
    MergeSort(const Sequence &sequence, unsigned char *buffer) : array_{sequence}, buffer_{sequence}
    {
        buffer_.elements.first = buffer;
        buffer_.elements.stride = static_cast<std::ptrdiff_t>(sequence.width.size());
    }

    void sort(std::ptrdiff_t n) const
    {
        const ShortSort<Sequence> short_sort{array_};
        std::ptrdiff_t run = ShortSort<Sequence>::kMost;
        static_assert(kFewElements <= ShortSort<Sequence>::kMost);
        if (n <= kFewElements) return short_sort.sort(0, n);
        const RunMerge<Sequence> runs{array_};
        const std::ptrdiff_t sorted = runs.merge_leading_runs(n);
        if (sorted == n) return;

        // An even number of passes, so that the last one ends in the array.
        int passes = 0;
        while ((run << passes) < n - sorted) ++passes;
        if (passes % 2 != 0) run /= 2;
        for (std::ptrdiff_t i = sorted; i < n; i += run) short_sort.sort(i, std::min(run, n - i));
        for (; run < n - sorted; run *= 4) {
            merge_pass(array_, buffer_, sorted, n, run);
            merge_pass(buffer_, array_, sorted, n, 2 * run);
        }
        runs.merge(0, sorted, n);
    }

  private:
    // Merges runs of length `run` two by two.
    void merge_pass(const Sequence &from, const Sequence &to, std::ptrdiff_t low, std::ptrdiff_t high,
                    std::ptrdiff_t run) const
    {
        for (; low < high; low += 2 * run)
            merge(from, to, low, std::min(low + run, high), std::min(low + 2 * run, high));
    }

    void copy(const Sequence &from, const Sequence &to, std::ptrdiff_t low, std::ptrdiff_t high) const
    {
        for (std::ptrdiff_t i = low; i < high; ++i) copy_element(from.width, to.at(i), from.at(i));
    }

    void merge(const Sequence &from, const Sequence &to, std::ptrdiff_t low, std::ptrdiff_t middle,
               std::ptrdiff_t high) const
    {
        const auto before = [&](std::ptrdiff_t i, std::ptrdiff_t j) { return from.before(from.at(i), from.at(j)); };
        if (middle == high || !before(middle, middle - 1)) return copy(from, to, low, high);
        // What is in its place already, at the front and at the end.
        const std::ptrdiff_t begin = partition_point(low, middle, [&](auto i) { return !before(middle, i); });
        const std::ptrdiff_t end = partition_point(middle, high, [&](auto i) { return before(i, middle - 1); });
        copy(from, to, low, begin);
        copy(from, to, end, high);
        merge_overlap(from, to, begin, middle, end);
    }

    // From both ends at once, as in ShortSort.
    void merge_overlap(const Sequence from, const Sequence to, std::ptrdiff_t low, std::ptrdiff_t middle,
                       std::ptrdiff_t high) const
    {
        const std::ptrdiff_t stride = from.elements.stride, step = to.elements.stride;
        const auto stride_if = [stride](bool condition) { return stride & -static_cast<std::ptrdiff_t>(condition); };
        unsigned char *left = from.at(low), *right = from.at(middle), *front = to.at(low);
        unsigned char *left_last = from.at(middle - 1), *right_last = from.at(high - 1), *back = to.at(high - 1);
        const std::ptrdiff_t steps = std::min(middle - low, high - middle);
        std::ptrdiff_t from_right = 0; // so many of the elements taken
        for (std::ptrdiff_t i = 0; i < steps; ++i) {
            const bool take_right = from.before(right, left);
            copy_element(from.width, front, select(take_right, right, left));
            front += step;
            right += stride_if(take_right);
            left += stride_if(!take_right);

            const bool take_left = from.before(right_last, left_last);
            copy_element(from.width, back, select(take_left, left_last, right_last));
            back -= step;
            left_last -= stride_if(take_left);
            right_last -= stride_if(!take_left);
            from_right += take_right + !take_left;
        }
        std::ptrdiff_t left_count = middle - low - (2 * steps - from_right), right_count = high - middle - from_right;
        // Both ends have taken the same element: the comparator contradicts itself.
        if (left_count < 0 || right_count < 0) return copy(from, to, low, high);
        while (left_count > 0 && right_count > 0) {
            const bool take_right = from.before(right, left);
            copy_element(from.width, front, select(take_right, right, left));
            front += step;
            right += stride_if(take_right);
            left += stride_if(!take_right);
            right_count -= take_right;
            left_count -= !take_right;
        }
        for (; left_count > 0; --left_count, left += stride, front += step) copy_element(from.width, front, left);
        for (; right_count > 0; --right_count, right += stride, front += step) copy_element(from.width, front, right);
    }

    Sequence array_, buffer_;
};

template <bool descending, class Width>
void merge_sort(Width width, Elements elements, Integer n, Comparator compare, unsigned char *buffer)
{
    const ElementSequence<Width, descending> sequence{width, elements, compare, buffer};
    MergeSort{sequence, buffer}.sort(n);
}

} // namespace

void merge_sort_elements(Elements elements, Integer n, std::size_t size, Comparator compare, Integer order,
                         unsigned char *buffer)
{
    with_width(size, [&](auto width) {
        if (order == Kor_Descending)
            merge_sort<true>(width, elements, n, compare, buffer);
        else
            merge_sort<false>(width, elements, n, compare, buffer);
    });
}

} // namespace kor::sort
