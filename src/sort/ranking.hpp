// The order of elements that keep their place.
#pragma once

#include "sort/elements.hpp"

namespace kor::sort {

// indices[k] = which element is the k-th in order, from 0; equal elements stay in their order. Needs no memory beyond
// `indices`. Whatever the comparator says, the result is a permutation of 0 to n-1.
void order_elements(Elements elements, Integer n, Comparator compare, Integer order, Integer *indices);

} // namespace kor::sort
