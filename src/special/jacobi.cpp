// Jacobi's elliptic functions, by descending Landen transformations; for complex argument by the addition theorem.
#include "special/jacobi.hpp"

#include <cmath>

#include "frame/constants.hpp"

namespace kor::special {

namespace {

constexpr int kMaxLevels = 40; // the moduli fall quadratically; the smallest complement takes ten

} // namespace

JacobiElliptic<double> jacobi_elliptic(double u, double m, double complement)
{
    if (complement == 0.0) return {std::tanh(u), 1.0 / std::cosh(u), 1.0 / std::cosh(u)};

    // The modulus of the next level is k1 = (a - b)/(a + b), of the arithmetic-geometric mean of 1 and sqrt(complement).
    double a = 1.0, b = std::sqrt(complement), k1[kMaxLevels], less_k1[kMaxLevels];
    double c_square = m; // a^2 - b^2
    int level = 0;
    while (level < kMaxLevels && c_square > kPrecision * kPrecision * a * a) {
        const double sum = a + b;
        k1[level] = c_square / (sum * sum);
        less_k1[level] = 2.0 * b / sum;
        const double next = 0.5 * sum;
        c_square = 0.25 * c_square * k1[level];
        b = std::sqrt(a * b);
        a = next;
        ++level;
    }
    // Functions of modulus zero, then back up. Every sum is of positive terms.
    double s = std::sin(a * u), c = std::cos(a * u), d = 1.0;
    while (level-- > 0) {
        const double square = s * s, denominator = 1.0 + k1[level] * square;
        const double next_d = (c * c + less_k1[level] * square) / denominator;
        s = (1.0 + k1[level]) * s / denominator;
        c = c * d / denominator;
        d = next_d;
    }
    return {s, c, d};
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
