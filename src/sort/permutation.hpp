// Permutations in place: inversion, and the rearrangement of elements.
#pragma once

#include "sort/elements.hpp"

namespace kor::sort {

enum class Permuted { done, out_of_range, repeated };

// Inverts the permutation of the integers from `base` (0 or more) to base + n - 1 in rank[0..n-1]. `rank` is untouched
// unless all is well.
Permuted invert_permutation(Integer *rank, Integer n, Integer base = 0);

// The same for what is known to be a permutation of 0 to n-1.
void invert_good_permutation(Integer *rank, Integer n);

// Position i receives element indices[i]; `spare` is room for one element. `indices` leaves as it came. An index out of
// range is found before anything moves; when one is repeated the elements are in some other order, all there.
Permuted rearrange(Elements elements, Integer n, std::size_t size, Integer *indices, unsigned char *spare);

} // namespace kor::sort
