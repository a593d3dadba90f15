// A function on [-1, 1] by its Chebyshev series of degree 24, and how far that of degree 12 is from it.
#pragma once

#include <array>
#include <cmath>

namespace kor::quadrature {

inline constexpr int kChebyshevDegree = 24;
inline constexpr int kChebyshevPoints = kChebyshevDegree + 1;

// cos(k pi/24), k = 0..12.
inline constexpr std::array<double, 13> kCosines = {1.0,
                                                    0.99144486137381041114,
                                                    0.96592582628906828675,
                                                    0.92387953251128675613,
                                                    0.86602540378443864676,
                                                    0.79335334029123516458,
                                                    0.70710678118654752440,
                                                    0.60876142900872063942,
                                                    0.5,
                                                    0.38268343236508977173,
                                                    0.25881904510252076235,
                                                    0.13052619222005159155,
                                                    0.0};

// cos(k pi/24) for any k >= 0.
constexpr double cosine24(int k)
{
    k %= 48;
    if (k > 24) k = 48 - k;
    return k <= 12 ? kCosines[k] : -kCosines[24 - k];
}

struct ChebyshevExpansion {
    double c[kChebyshevPoints]; // f = sum of c_k T_k

    // The series of degree 12 through every second point: T_(24-k) equals T_k there.
    double coarse(int k) const { return k < kChebyshevDegree / 2 ? c[k] + c[kChebyshevDegree - k] : c[k]; }

    double sum_of_moduli() const
    {
        double sum = 0.0;
        for (const double x : c) sum += std::fabs(x);
        return sum;
    }

    // Integrals of both series against a weight whose moments, the integrals of T_k, are given.
    double fine_integral(const double *moments, int first = 0, int step = 1) const
    {
        double sum = 0.0;
        for (int k = first; k <= kChebyshevDegree; k += step) sum += c[k] * moments[k];
        return sum;
    }
    double coarse_integral(const double *moments, int first = 0, int step = 1) const
    {
        double sum = 0.0;
        for (int k = first; k <= kChebyshevDegree / 2; k += step) sum += coarse(k) * moments[k];
        return sum;
    }
};

// From the values at the points cos(j pi/24), j = 0..24.
ChebyshevExpansion expand(const double *values);

// Samples f(centre + h x) there.
template <class Function>
ChebyshevExpansion expand_on(const Function &f, double centre, double h)
{
    double values[kChebyshevPoints];
    for (int j = 0; j <= kChebyshevDegree / 2; ++j) {
        const double offset = h * kCosines[j];
        values[j] = f(centre + offset);
        if (j < kChebyshevDegree / 2) values[kChebyshevDegree - j] = f(centre - offset);
    }
    return expand(values);
}

} // namespace kor::quadrature
