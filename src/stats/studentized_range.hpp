// The studentized range: the range of r standard normal variables, divided by an independent S, v S^2 a chi-squared variable
// with v degrees of freedom.
#pragma once

#include "stats/tail_solver.hpp"
#include "stats/tails.hpp"

namespace kor::stats {

// q > 0, v >= 1, r >= 2.
Tails studentized_range(double q, double v, double r);

// The q with the given tail.
Quantile studentized_range_quantile(Target target, double v, double r);

} // namespace kor::stats
