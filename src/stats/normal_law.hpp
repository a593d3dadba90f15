// The standard normal law: tails and quantiles.
#pragma once

#include "special/erf.hpp"

namespace kor::stats {

// P(X > x) and P(X <= x), each relative to itself.
inline double normal_upper(double x) { return special::normal_upper_tail(x); }
inline double normal_lower(double x) { return special::normal_upper_tail(-x); }

// Density over P(X > x), the relative slope of the upper tail.
double normal_hazard(double x);

// The x >= 0 with P(X > x) = q, 0 < q <= 1/2.
double normal_upper_quantile(double q);

// The x >= 0 with P(0 < X < x) = half, 0 <= half < 1/2: keeps its digits as half goes to 0.
double normal_central_quantile(double half);

// The x >= 0 with P(|X| > x) = q, 0 < q < 1.
double normal_two_sided_quantile(double q);

// The x with P(X <= x) = p, 0 < p < 1.
double normal_quantile(double p);

} // namespace kor::stats
