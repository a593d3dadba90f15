// Elements of an array as a sequence to be sorted (see short_sort.hpp).
#pragma once

#include <cstddef>
#include <utility>

#include "sort/permutation.hpp"
#include "sort/short_sort.hpp"

namespace kor::sort {

template <class Width, bool descending>
struct ElementSequence {
    using Handle = unsigned char *;
    static constexpr bool kMayTie = true;

    Width width;
    Elements elements;
    Comparator compare;
    unsigned char *spare; // room for one element

    Handle at(std::ptrdiff_t i) const { return elements[i]; }
    auto scan(std::ptrdiff_t i, std::ptrdiff_t step) const
    {
        return
            [h = elements[i], distance = step * elements.stride]() mutable { return std::exchange(h, h + distance); };
    }
    bool before(const unsigned char *a, const unsigned char *b) const
    {
        return sorts_before<descending>(compare(a, b));
    }
    void swap(std::ptrdiff_t i, std::ptrdiff_t j) const { swap_elements(width, elements[i], elements[j]); }

    void arrange(std::ptrdiff_t low, const Handle *handle, std::ptrdiff_t n) const
    {
        // By way of a copy, if that is not large.
        constexpr std::size_t room = 4096;
        if (static_cast<std::size_t>(n) * width.size() <= room) {
            unsigned char copy[room];
            for (std::ptrdiff_t i = 0; i < n; ++i) copy_element(width, copy + i * width.size(), handle[i]);
            for (std::ptrdiff_t i = 0; i < n; ++i) copy_element(width, at(low + i), copy + i * width.size());
            return;
        }
        Integer indices[ShortSort<ElementSequence>::kMost];
        for (std::ptrdiff_t i = 0; i < n; ++i)
            indices[i] = static_cast<Integer>((handle[i] - at(low)) / elements.stride);
        rearrange(elements.from(low), static_cast<Integer>(n), width.size(), indices, spare);
    }
};

} // namespace kor::sort
