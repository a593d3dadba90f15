// Normal scores: expected values of the order statistics of a normal sample.
#pragma once

#include <kor.h>

namespace kor::stats {

struct NormalScore {
    double value, error; // error: an estimate of its size, which is not too small
};

// Of the i-th smallest of n, 1 <= i <= n.
NormalScore expected_normal_score(Integer i, Integer n);

} // namespace kor::stats
