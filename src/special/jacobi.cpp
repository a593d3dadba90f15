// Jacobi's elliptic functions as quotients of theta functions; for complex argument by the addition theorem.
#include "special/jacobi.hpp"

#include <cmath>

#include "frame/constants.hpp"
#include "special/theta.hpp"

namespace kor::special {

namespace {

// The arithmetic-geometric mean of 1 and b, 0 < b <= 1.
double mean_with_one(double b)
{
    double a = 1.0;
    while (a - b > kPrecision * a) {
        const double mean = 0.5 * (a + b);
        // The last step is quadratic: once the gap is below sqrt(eps) the arithmetic mean is the limit.
        if (a - b < 0x1p-28 * a) return mean;
        b = std::sqrt(a * b);
        a = mean;
    }
    return a;
}

} // namespace

JacobiElliptic<double> jacobi_elliptic(double u, double m, double complement)
{
    if (m == 0.0) return {std::sin(u), std::cos(u), 1.0};
    if (complement == 0.0) return {std::tanh(u), 1.0 / std::cosh(u), 1.0 / std::cosh(u)};

    // The quarter periods are pi/2 over these means.
    const double mean = mean_with_one(std::sqrt(complement)), other_mean = mean_with_one(std::sqrt(m));
    const auto [sn, cn, dn] = theta_quotients(u * mean / kPi, kPi * mean / other_mean);
    return {sn, cn, dn};
}

JacobiElliptic<std::complex<double>> jacobi_elliptic(std::complex<double> z, double m)
{
    const double u = z.real(), v = z.imag();
    if (m == 0.0) return {std::sin(z), std::cos(z), 1.0};
    const auto [s, c, d] = jacobi_elliptic(u, m, 1.0 - m);
    const auto [s1, c1, d1] = jacobi_elliptic(v, 1.0 - m, m);
    const double denominator = c1 * c1 + m * (s * s1) * (s * s1);
    return {{s * d1 / denominator, c * d * s1 * c1 / denominator},
            {c * c1 / denominator, -s * d * s1 * d1 / denominator},
            {d * c1 * d1 / denominator, -m * s * c * s1 / denominator}};
}

} // namespace kor::special
