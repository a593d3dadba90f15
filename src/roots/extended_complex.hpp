// Complex numbers over the widest floating-point type: 64-bit mantissa and 15-bit exponent on Intel processors, so that
// neither polynomials nor their deflation meet the limits of a double.
#pragma once

#include <cmath>

namespace kor::roots {

using Extended = long double;

struct ExtendedComplex {
    Extended re = 0.0L;
    Extended im = 0.0L;

    ExtendedComplex() = default;
    ExtendedComplex(Extended real, Extended imaginary = 0.0L) : re{real}, im{imaginary} {}
};

inline ExtendedComplex operator+(ExtendedComplex a, ExtendedComplex b) { return {a.re + b.re, a.im + b.im}; }
inline ExtendedComplex operator-(ExtendedComplex a, ExtendedComplex b) { return {a.re - b.re, a.im - b.im}; }
inline ExtendedComplex operator-(ExtendedComplex a) { return {-a.re, -a.im}; }
inline ExtendedComplex operator*(ExtendedComplex a, ExtendedComplex b)
{
    return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}
inline ExtendedComplex operator*(Extended a, ExtendedComplex b) { return {a * b.re, a * b.im}; }
// Squares cannot overflow here: the parts come from doubles and products of a few of them.
inline Extended square_modulus(ExtendedComplex a) { return a.re * a.re + a.im * a.im; }
inline Extended modulus(ExtendedComplex a) { return std::sqrt(square_modulus(a)); }
inline Extended one_norm(ExtendedComplex a) { return std::fabs(a.re) + std::fabs(a.im); }
inline Extended modulus(Extended a) { return std::fabs(a); }
inline ExtendedComplex operator/(ExtendedComplex a, ExtendedComplex b)
{
    const Extended square = square_modulus(b);
    return {(a.re * b.re + a.im * b.im) / square, (a.im * b.re - a.re * b.im) / square};
}

// The root in the right half plane.
inline ExtendedComplex square_root(ExtendedComplex a)
{
    const Extended half = 0.5L * (modulus(a) + std::fabs(a.re));
    const Extended t = std::sqrt(half);
    if (t == 0.0L) return {};
    if (a.re >= 0.0L) return {t, a.im / (2.0L * t)};
    return {std::fabs(a.im) / (2.0L * t), std::copysign(t, a.im)};
}

} // namespace kor::roots
