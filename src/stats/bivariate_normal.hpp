// The bivariate normal law.
#pragma once

namespace kor::stats {

// P(X <= x, Y <= y), X and Y standard normal with correlation rho, -1 <= rho <= 1. Absolute error a few 1e-16.
double bivariate_normal_lower(double x, double y, double rho);

} // namespace kor::stats
