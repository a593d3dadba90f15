// Discrete Fourier transforms by their definition, in extended precision.
#pragma once

#include <cmath>
#include <complex>
#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

#include <gtest/gtest.h>

namespace kor::testing {

using Real = long double;
using ComplexVector = std::vector<std::complex<Real>>;
using Doubles = std::vector<double>;

inline constexpr Real kPiLong = 3.141592653589793238462643383279502884L;
inline constexpr double kEpsilon = 0x1p-52;

// exp(-2 pi i t / n), t = 0..n-1.
inline ComplexVector roots_of_unity(std::int64_t n)
{
    ComplexVector roots(static_cast<std::size_t>(n));
    for (std::int64_t t = 0; t < n; ++t) {
        // Octant by octant, so that the long double sees small angles only.
        std::int64_t a = 8 * t;
        const bool below = a > 4 * n;
        if (below) a = 8 * n - a;
        const bool left = a > 2 * n;
        if (left) a = 4 * n - a;
        const bool steep = a > n;
        if (steep) a = 2 * n - a;
        const Real angle = kPiLong * static_cast<Real>(a) / static_cast<Real>(4 * n);
        Real c = std::cos(angle), s = std::sin(angle);
        if (steep) std::swap(c, s);
        roots[static_cast<std::size_t>(t)] = {left ? -c : c, below ? s : -s};
    }
    return roots;
}

// n^-1/2 sum_j x_j exp(-2 pi i j k / n), n > 1; for n = 1 the library leaves x as it is, which is the same.
inline std::complex<Real> transform_at(std::int64_t k, const ComplexVector &x, const ComplexVector &roots)
{
    const std::uint64_t n = x.size();
    std::complex<Real> sum = 0;
    std::uint64_t t = 0;
    for (std::uint64_t j = 0; j < n; ++j) {
        const auto &w = roots[t];
        sum += std::complex<Real>{x[j].real() * w.real() - x[j].imag() * w.imag(),
                                  x[j].real() * w.imag() + x[j].imag() * w.real()};
        if ((t += static_cast<std::uint64_t>(k)) >= n) t -= n;
    }
    return sum / std::sqrt(static_cast<Real>(n));
}

// Element k of a packed Hermitian sequence.
inline std::complex<double> unpacked(const double *x, std::int64_t n, std::int64_t k)
{
    if (k == 0 || 2 * k == n) return x[k];
    return 2 * k < n ? std::complex<double>{x[k], x[n - k]} : std::complex<double>{x[n - k], -x[k]};
}

inline Doubles random_doubles(std::size_t count, unsigned seed)
{
    std::mt19937_64 generator{seed};
    std::normal_distribution<double> normal;
    Doubles values(count);
    for (double &value : values) value = normal(generator);
    return values;
}

// Accumulates an error in the L2 norm, relative to the norm of the exact values, in units of 2^-52.
class RelativeError {
  public:
    void add(std::complex<double> computed, std::complex<Real> exact)
    {
        error_ += std::norm(std::complex<Real>{computed} - exact);
        norm_ += std::norm(exact);
    }
    double in_epsilons() const
    {
        if (norm_ == 0) return error_ == 0 ? 0.0 : INFINITY;
        return static_cast<double>(std::sqrt(error_ / norm_)) / kEpsilon;
    }

  private:
    Real error_ = 0, norm_ = 0;
};

// What a transform of length n may be off: in proportion to log n, but for the few roundings of the shortest ones.
inline double allowed(std::int64_t n) { return std::max(1.0, 0.4 * std::log2(static_cast<double>(n))); }

} // namespace kor::testing
