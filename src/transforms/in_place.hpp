// Transforms of one sequence in place, without tables from the caller.
#pragma once

#include "transforms/in_place_factors.hpp"
#include "transforms/sequence.hpp"

namespace kor::transforms {

// Lengths up to this are transformed in one go, through arrays on the stack (about 170 kB in all).
inline constexpr Index kLargestBlock = 2048;

// The length as a product of dimensions d_1 d_2 ... d_k, mirror images of each other but for the middle ones. Element
// (i_1, .., i_k), i_1 the slowest, of the permuted sequence is element (i_k, .., i_1) of the sequence itself.
//
// A transform then works on contiguous blocks that span the last dimensions, each in one go, and goes over the data
// once more for each of the dimensions before those.
struct Dimensions {
    static constexpr int kMost = 16;

    // `factors` are those of n, found good.
    Dimensions(Index n, InPlaceFactors factors);

    Index n;
    Index size[kMost];
    int count = 0;
    int mirrored = 0; // dimensions at either end that are mirror images
    Index mirrored_product = 1;
    int block_from = 0; // the first dimension of the blocks
    Index block = 1;    // their size
};

// c06eay: from the sequence to the permuted sequence; and back.
void c06eay(const Dimensions &, double *x);
void c06eay_inverse(const Dimensions &, double *x);

// The transforms of length n, their results multiplied by `scale`; `factors` are those of n, found good.
void transform_longer_in_place(Index n, InPlaceFactors factors, Kind kind, Sequence x, double scale);
inline void transform_in_place(Index n, InPlaceFactors factors, Kind kind, Sequence x, double scale)
{
    if (has_butterfly(kind, n)) return transform_whole(kind, n, x, scale);
    transform_longer_in_place(n, factors, kind, x, scale);
}

} // namespace kor::transforms
