// Sorts elements of any size in place, by a comparator.
#pragma once

#include "sort/elements.hpp"

namespace kor::sort {

// Equal elements may change their order; `spare` is room for one element. Whatever the comparator says, it sees elements
// of the array alone, and the same elements are there at the end.
void sort_elements(Elements elements, Integer n, std::size_t size, Comparator compare, Integer order,
                   unsigned char *spare);

} // namespace kor::sort
