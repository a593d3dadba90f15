// Sorts elements of any size by a comparator; equal elements keep their order.
#pragma once

#include "sort/elements.hpp"

namespace kor::sort {

// Elements up to this size are moved again and again while they are merged, and want a buffer of n elements; of wider ones
// the indices are sorted, and each element is moved once.
inline constexpr Integer kMergedSize = 64;

// `buffer` is room for n elements of `size` bytes, at most kMergedSize. The comparator sees elements of the array or of the
// buffer; whatever it says, the same elements are there at the end.
void merge_sort_elements(Elements elements, Integer n, std::size_t size, Comparator compare, Integer order,
                         unsigned char *buffer);

} // namespace kor::sort
