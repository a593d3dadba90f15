// The binomial, Poisson and hypergeometric laws.
#pragma once

#include <kor.h>

namespace kor::stats {

// P(X <= k), P(X > k) and P(X = k), each relative to itself.
struct DiscreteTails {
    double at_most, above, equal;
};

// n trials, 0 <= k <= n, 0 < p < 1.
DiscreteTails binomial(Integer n, double p, Integer k);

// Mean lambda > 0, k >= 0.
DiscreteTails poisson(double lambda, Integer k);

// l draws from n objects of which m are marked, k within max(0, l + m - n) .. min(l, m).
DiscreteTails hypergeometric(Integer n, Integer l, Integer m, Integer k);

} // namespace kor::stats
