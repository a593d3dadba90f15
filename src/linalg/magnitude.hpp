// The greatest modulus in a matrix, by which a NaN or an infinity is noticed before any work, and a scaling chosen.
#pragma once

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "linalg/scalar.hpp"

namespace kor::linalg {

// The order of the bits of non-negative numbers is that of the numbers, with infinity and then NaN above all.
class Magnitude {
  public:
    void take(std::ptrdiff_t n, const double *x)
    {
        constexpr std::int64_t kAllButSign = 0x7fffffffffffffff;
        std::int64_t greatest = bits_;
        for (std::ptrdiff_t i = 0; i < n; ++i)
            greatest = std::max(greatest, std::bit_cast<std::int64_t>(x[i]) & kAllButSign);
        bits_ = greatest;
    }
    void take(std::ptrdiff_t n, const Complex *x) { take(2 * n, &x->re); }

    double value() const { return std::bit_cast<double>(bits_); }
    bool is_finite() const { return std::isfinite(value()); }

    // A power of two that brings the magnitude near to 1; 1 if squares of elements neither overflow nor underflow as they
    // are.
    double scaling() const
    {
        constexpr double kSmall = 0x1p-300, kGreat = 0x1p300;
        const double greatest = value();
        if (greatest == 0.0 || (greatest > kSmall && greatest < kGreat)) return 1.0;
        return std::ldexp(1.0, -std::max(std::ilogb(greatest), -1021));
    }

  private:
    std::int64_t bits_ = 0;
};

// Columns [0, n) of the rows [0, m).
template <Scalar T>
Magnitude magnitude_of(Integer m, Integer n, const T *a, Integer tda)
{
    Magnitude magnitude;
    for (std::ptrdiff_t i = 0; i < m; ++i) magnitude.take(n, a + i * tda);
    return magnitude;
}

// The lower triangle of a matrix of order n.
template <Scalar T>
Magnitude magnitude_of_lower(Integer n, const T *a, Integer tda)
{
    Magnitude magnitude;
    for (std::ptrdiff_t i = 0; i < n; ++i) magnitude.take(i + 1, a + i * tda);
    return magnitude;
}

} // namespace kor::linalg
