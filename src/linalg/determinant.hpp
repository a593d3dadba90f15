// Determinants beyond the range of doubles: a mantissa with 1/16 <= |mantissa| < 1 and an exponent of 2.
#pragma once

#include <cmath>

#include "linalg/scalar.hpp"

namespace kor::linalg {

// mantissa 2^exponent. The exponent moves in steps of 4, so the factors 16 are exact. A complex mantissa is measured by
// its greater part. A product of 0 is 0 with exponent 0; one that is not finite stays as it comes.
template <Scalar T>
struct Determinant {
    T mantissa = one<T>();
    Integer exponent = 0;

    void multiply(T factor)
    {
        // A factor far from 1 is brought near it first: the plain product would lose digits below the normal range.
        constexpr double kModest = 0x1p60;
        const double size = largest_part(factor);
        if ((size > kModest || size < 1.0 / kModest) && size > 0.0 && std::isfinite(size)) {
            int power;
            std::frexp(size, &power);
            power &= ~3;
            factor = scaled(factor, -power);
            exponent += power;
        }
        mantissa = mantissa * factor;
        normalise();
    }
    void negate() { mantissa = -mantissa; }

  private:
    static double scaled(double x, int power) { return std::ldexp(x, power); }
    static Complex scaled(Complex z, int power) { return {std::ldexp(z.re, power), std::ldexp(z.im, power)}; }

    void normalise()
    {
        const double size = largest_part(mantissa);
        if (size == 0.0) exponent = 0;
        if (size == 0.0 || !std::isfinite(size)) return;
        for (; largest_part(mantissa) >= 1.0; exponent += 4) mantissa = mantissa * 0.0625;
        for (; largest_part(mantissa) < 0.0625; exponent -= 4) mantissa = mantissa * 16.0;
    }
};

} // namespace kor::linalg
