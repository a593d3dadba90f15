// Packed Hermitian sequences: Re z_k at k, Im z_k at n - k, for 0 <= k <= n/2; z_0 and, for even n, z_{n/2} are real.
#pragma once

#include "transforms/stages.hpp"

namespace kor::transforms {

inline void conjugate_packed(Index n, double *x)
{
    for (Index k = n / 2 + 1; k < n; ++k) x[k] = -x[k];
}

} // namespace kor::transforms
