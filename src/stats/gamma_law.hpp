// The standard gamma law of shape a, and with it the chi-squared and Poisson laws.
#pragma once

#include "stats/tail_solver.hpp"

namespace kor::stats {

// a > 0, x >= 0.
Tails gamma_tails(double a, double x);

// The x with the given tail, target in (0, 1). 0 where x is below the smallest number.
Quantile gamma_quantile(double a, Target target);

} // namespace kor::stats
