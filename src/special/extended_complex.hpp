// Complex numbers of long doubles, and the few functions of them that the Bessel functions of complex argument need.
//
// The eleven bits more than a double has absorb the rounding errors of recurrences and series, and the wide range of
// exponents their scales: products of doubles neither overflow nor underflow, so that nothing here needs scaling.
#pragma once

#include <cmath>

#include <kor.h>

namespace kor::special {

struct ExtendedComplex {
    long double re = 0.0L, im = 0.0L;

    constexpr ExtendedComplex() = default;
    constexpr ExtendedComplex(long double real, long double imaginary = 0.0L) : re{real}, im{imaginary} {}
    constexpr explicit ExtendedComplex(Complex z) : re{z.re}, im{z.im} {}
    constexpr ExtendedComplex operator-() const { return {-re, -im}; }
};

constexpr ExtendedComplex operator+(ExtendedComplex a, ExtendedComplex b) { return {a.re + b.re, a.im + b.im}; }
constexpr ExtendedComplex operator-(ExtendedComplex a, ExtendedComplex b) { return {a.re - b.re, a.im - b.im}; }
constexpr ExtendedComplex operator*(ExtendedComplex a, ExtendedComplex b)
{
    return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}
constexpr ExtendedComplex operator*(ExtendedComplex a, long double b) { return {a.re * b, a.im * b}; }
constexpr ExtendedComplex operator*(long double a, ExtendedComplex b) { return b * a; }
constexpr ExtendedComplex operator/(ExtendedComplex a, long double b) { return {a.re / b, a.im / b}; }
constexpr ExtendedComplex conjugate(ExtendedComplex a) { return {a.re, -a.im}; }
constexpr ExtendedComplex times_i(ExtendedComplex a) { return {-a.im, a.re}; }

// |z|^2 of numbers within the range of doubles cannot overflow, nor can that of a quotient of such numbers.
constexpr ExtendedComplex operator/(ExtendedComplex a, ExtendedComplex b)
{
    return a * conjugate(b) / (b.re * b.re + b.im * b.im);
}

inline ExtendedComplex exp(ExtendedComplex z)
{
    const long double size = std::exp(z.re);
    return {size * std::cos(z.im), size * std::sin(z.im)};
}
inline ExtendedComplex log(ExtendedComplex z) { return {std::log(std::hypot(z.re, z.im)), std::atan2(z.im, z.re)}; }

// The principal root: the larger part from the half-angle formula, the other from the product.
inline ExtendedComplex sqrt(ExtendedComplex z)
{
    const long double larger = std::sqrt(0.5L * (std::hypot(z.re, z.im) + std::fabs(z.re)));
    if (larger == 0.0L) return z;
    const long double smaller = 0.5L * std::fabs(z.im) / larger;
    return z.re >= 0.0L ? ExtendedComplex{larger, std::copysign(smaller, z.im)}
                        : ExtendedComplex{smaller, std::copysign(larger, z.im)};
}

// The same names for real and complex numbers, for code that serves both.
inline long double exp(long double x) { return std::exp(x); }
inline long double log(long double x) { return std::log(x); }
inline long double sqrt(long double x) { return std::sqrt(x); }
inline long double size_of(long double x) { return std::fabs(x); }
inline long double size_of(ExtendedComplex z) { return std::fabs(z.re) + std::fabs(z.im); } // within a factor of 1.5
inline long double real_part(long double x) { return x; }
inline long double real_part(ExtendedComplex z) { return z.re; }

} // namespace kor::special
