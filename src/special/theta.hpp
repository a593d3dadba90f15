// Jacobi's theta functions.
#pragma once

namespace kor::special {

// theta_k(pi x, q), k = 0 (which is theta_4), 1, 2, 3 or 4, 0 <= q < 1, x finite; within 2 ulp, zero where it underflows.
double theta(int k, double x, double q);

// theta_1, theta_2 and theta_3 divided by theta_4, all of pi x and of nome exp(-h), h > 0, each quotient times the constant
// that makes it an elliptic function: theta_3/theta_2, theta_4/theta_2 and theta_4/theta_3 at 0. A few eps.
struct ThetaQuotients {
    double sn, cn, dn;
};
ThetaQuotients theta_quotients(double x, double h);

} // namespace kor::special
