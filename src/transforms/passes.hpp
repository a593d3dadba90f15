// Sequences of passes, from one array to another by way of two blocks.
#pragma once

#include "transforms/kernels.hpp"

namespace kor::transforms {

// An array whose rows stand `row` apart.
struct Array {
    Sequence at;
    Index row;
};

inline constexpr Array kNone{{nullptr, nullptr}, 0};

inline Sequence shifted(Sequence x, Index by) { return {x.re + by, x.im != nullptr ? x.im + by : nullptr}; }

// Makes the passes numbered first, .., last, upwards or downwards: pass(number, from, to). They lead from `in` to `out`
// by way of the two blocks, or, without `out`, to one of the blocks: to the array that is returned.
template <class Pass>
Array run_passes(int first, int last, Array in, Array out, Array block0, Array block1, Pass pass)
{
    const int step = first <= last ? 1 : -1;
    Array from = in;
    for (int i = first;; i += step) {
        const bool is_last = i == last;
        const Array to = is_last && out.at.re != nullptr ? out : from.at.re == block0.at.re ? block1 : block0;
        pass(i, from, to);
        from = to;
        if (is_last) return to;
    }
}

} // namespace kor::transforms
