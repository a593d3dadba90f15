// What the routines on distributions share: the pair of tails, and the meaning of `tail`.
#pragma once

#include <kor.h>

namespace kor::stats {

// P(X <= x) and P(X > x), each relative to itself.
struct Tails {
    double lower, upper;
};

inline bool one_sided(Integer tail) { return tail == Kor_LowerTail || tail == Kor_UpperTail; }

inline bool one_or_two_sided(Integer tail)
{
    return one_sided(tail) || tail == Kor_TwoTailSignif || tail == Kor_TwoTailConfid;
}

} // namespace kor::stats
