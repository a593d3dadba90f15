// Jacobi's theta functions.
#pragma once

namespace kor::special {

// theta_k(pi x, q), k = 0 (which is theta_4), 1, 2, 3 or 4, 0 <= q < 1, x finite; within 2 ulp, zero where it underflows.
double theta(int k, double x, double q);

} // namespace kor::special
