// Student's t law.
#pragma once

#include "stats/tail_solver.hpp"

namespace kor::stats {

// P(|T| <= t) and P(|T| > t), t >= 0, df > 0.
Tails t_two_sided(double t, double df);

// The t >= 0 with P(|T| > t) = target.probability (upper) or P(|T| <= t) = target.probability.
Quantile t_two_sided_quantile(Target target, double df);

} // namespace kor::stats
