// The non-central t law: (Z + delta) / S, S^2 a chi-squared variable divided by its degrees of freedom.
#pragma once

#include "stats/noncentral_laws.hpp"
#include "stats/tails.hpp"

namespace kor::stats {

struct NoncentralTails {
    Tails tails;
    bool converged; // within the number of evaluations allowed
};

// t and delta finite, df > 0.
NoncentralTails noncentral_t(double t, double df, double delta, MixtureLimits limits);

} // namespace kor::stats
