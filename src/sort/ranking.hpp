// Ranks of elements.
#pragma once

#include "sort/elements.hpp"

namespace kor::sort {

// ranks[i] = rank of element i, from 0; equal elements rank in their order. Needs no memory beyond `ranks`. Whatever the
// comparator says, the ranks are a permutation of 0 to n-1.
void rank_elements(Elements elements, Integer n, Comparator compare, Integer order, Integer *ranks);

} // namespace kor::sort
