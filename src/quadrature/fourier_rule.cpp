// Rules for integrands with the weight cos(omega x) or sin(omega x).
//
// Where the weight turns through less than a radian or so, a Gauss-Kronrod pair takes it as part of the integrand; elsewhere the
// integrand alone is expanded in Chebyshev polynomials, and their products with the weight are integrated exactly (R. Piessens and
// M. Branders, BIT 15 (1975) 55-65).
#include "quadrature/fourier_rule.hpp"

#include <algorithm>
#include <cmath>

#include "quadrature/gauss_kronrod.hpp"

namespace kor::quadrature {

namespace {

constexpr double kSlowWeight = 2.0; // |omega h| up to which the weight is taken as part of the integrand

// Sine and cosine of omega x, the rounding error of the product included.
Phase phase(double omega, double x)
{
    const double product = omega * x;
    const double rest = std::fma(omega, x, -product);
    const double s = std::sin(product), c = std::cos(product);
    if (!(std::fabs(rest) < 1.0)) return {s, c}; // an infinite product
    return {s + c * rest, c - s * rest};
}

} // namespace

// With e = exp(i p x) and T_n = (T'_(n+1)/(n+1) - T'_(n-1)/(n-1))/2, integration by parts links three moments:
//     2 M_n -+ p (M_(n+1)/(n+1) - M_(n-1)/(n-1)) = -4 (cos p or sin p)/(n^2 - 1),   upper sign and cosine for even n.
// Upwards this is stable up to n = |p|; beyond, the moments are the solution that stays small, from a tridiagonal system.
void compute_moments(double p, Phase end, double *moments)
{
    constexpr int kBeyond = kChebyshevDegree + 40; // from here the system's end is not felt any more at 24
    double m[kBeyond + 1];
    const auto [s, c] = end;
    m[0] = 2.0 * s / p;
    m[1] = 2.0 * (s / p - c) / p;
    m[2] = (2.0 * s - 4.0 * m[1]) / p;
    const auto sign = [](int n) { return n % 2 == 0 ? -1.0 : 1.0; };
    const auto right_side = [=](int n) { return -4.0 * (n % 2 == 0 ? c : s) / (static_cast<double>(n) * n - 1.0); };

    int n = 2;
    for (; n < kChebyshevDegree && n <= std::fabs(p); ++n)
        m[n + 1] = (n + 1) * ((right_side(n) - 2.0 * m[n]) * sign(n) / p + m[n - 1] / (n - 1));
    if (n < kChebyshevDegree) {
        // Unknown are m[n + 1] .. m[kBeyond - 1]; what follows is small.
        const int first = n + 1;
        double above[kBeyond];
        m[kBeyond] = 0.5 * right_side(kBeyond);
        for (int k = first; k < kBeyond; ++k) {
            const double lower = -sign(k) * p / (k - 1), upper = sign(k) * p / (k + 1);
            double diagonal = 2.0, right = right_side(k);
            right -= lower * m[k - 1];
            if (k > first) diagonal -= lower * above[k - 1];
            above[k] = upper / diagonal;
            m[k] = right / diagonal;
        }
        for (int k = kBeyond - 1; k >= first; --k) m[k] -= above[k] * m[k + 1];
    }
    std::copy(m, m + kChebyshevPoints, moments);
}

double FourierRule::weight(double x) const
{
    const Phase at = phase(omega_, x);
    return sine_ ? at.sine : at.cosine;
}

const double *FourierRule::moments_for(double half_width, Integer level)
{
    FourierMoments &moments = level < kLevels ? kept_[level] : other_;
    // Widths of one level may differ by rounding: then they have moments of their own.
    if (moments.half_width != half_width) {
        compute_moments(half_width * omega_, phase(omega_, half_width), moments.m);
        moments.half_width = half_width;
    }
    return moments.m;
}

RuleValue FourierRule::operator()(Integrand f, double a, double b, Integer level)
{
    const double centre = 0.5 * (a + b);
    const double h = 0.5 * (b - a);
    if (!(std::fabs(h * omega_) > kSlowWeight)) {
        evaluations += kPair15.points;
        return apply_pair<kPair15>([&](double x) { return f(x) * weight(x); }, a, b);
    }

    evaluations += kChebyshevPoints;
    const ChebyshevExpansion series = expand_on(f, centre, h);
    const double *const m = moments_for(h, level);
    const double cosine_part = series.fine_integral(m, 0, 2), sine_part = series.fine_integral(m, 1, 2);
    const double cosine_gap = std::fabs(cosine_part - series.coarse_integral(m, 0, 2));
    const double sine_gap = std::fabs(sine_part - series.coarse_integral(m, 1, 2));
    const Phase middle = phase(omega_, centre);
    const double with_cosine = h * (sine_ ? middle.sine : middle.cosine);
    const double with_sine = h * (sine_ ? middle.cosine : -middle.sine);
    const double resabs = series.sum_of_moduli() * std::fabs(h);
    return {with_cosine * cosine_part + with_sine * sine_part,
            unlimited_if_unknown(std::fabs(with_cosine * cosine_gap) + std::fabs(with_sine * sine_gap)), resabs,
            resabs};
}

} // namespace kor::quadrature
