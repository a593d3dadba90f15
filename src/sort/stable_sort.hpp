// Sorts elements of any size by a comparator; equal elements keep their order.
#pragma once

#include "sort/elements.hpp"

namespace kor::sort {

// Many elements are merged again and again, by way of a buffer, if they are not wider than this; of wider ones the indices are
// better sorted, and each element moved once.
inline constexpr Integer kMergedSize = 128;

// Up to so many elements are sorted without a buffer, by way of pointers to them.
inline constexpr Integer kFewElements = 128;

// `buffer` is room for n elements of `size` bytes, or, if they are few, for one. The comparator sees elements of the array or
// of the buffer; whatever it says, the same elements are there at the end.
void merge_sort_elements(Elements elements, Integer n, std::size_t size, Comparator compare, Integer order,
                         unsigned char *buffer);

} // namespace kor::sort
