// The F law.
#pragma once

#include "stats/tail_solver.hpp"

namespace kor::stats {

// f >= 0, df1, df2 > 0.
Tails f_tails(double f, double df1, double df2);

// The f with the given tail.
Quantile f_quantile(Target target, double df1, double df2);

} // namespace kor::stats
