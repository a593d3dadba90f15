// Arithmetic on the scalars of the interface, double and Complex, in one notation for the templates of this folder.
#pragma once

#include <cmath>
#include <type_traits>

#include <kor.h>

namespace kor::linalg {

template <class T>
concept Scalar = std::is_same_v<T, double> || std::is_same_v<T, Complex>;

inline Complex operator+(Complex a, Complex b) { return {a.re + b.re, a.im + b.im}; }
inline Complex operator-(Complex a, Complex b) { return {a.re - b.re, a.im - b.im}; }
inline Complex operator-(Complex a) { return {-a.re, -a.im}; }
inline Complex operator*(Complex a, Complex b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }
inline Complex operator*(double a, Complex b) { return {a * b.re, a * b.im}; }
inline Complex operator*(Complex a, double b) { return {a.re * b, a.im * b}; }
inline Complex &operator+=(Complex &a, Complex b) { return a = a + b; }
inline Complex &operator-=(Complex &a, Complex b) { return a = a - b; }
inline bool operator==(Complex a, Complex b) { return a.re == b.re && a.im == b.im; }

inline double conj(double a) { return a; }
inline Complex conj(Complex a) { return {a.re, -a.im}; }

inline double real(double a) { return a; }
inline double real(Complex a) { return a.re; }

// |a|, and for a Complex the measure |re| + |im| by which the standard operations choose a largest element.
inline double modulus(double a) { return std::fabs(a); }
inline double modulus_sum(double a) { return std::fabs(a); }
inline double modulus_sum(Complex a) { return std::fabs(a.re) + std::fabs(a.im); }
inline double modulus(Complex a)
{
    // Between these bounds neither square overflows, and one that underflows is too small to matter.
    constexpr double kLeastSquare = 0x1p-960, kGreatestSquare = 0x1p1022;
    const double square = a.re * a.re + a.im * a.im;
    return square > kLeastSquare && square < kGreatestSquare ? std::sqrt(square) : std::hypot(a.re, a.im);
}

// Largest magnitude of a part: a modulus within a factor of sqrt 2 that neither overflows nor needs a root.
inline double largest_part(double a) { return std::fabs(a); }
inline double largest_part(Complex a) { return std::fmax(std::fabs(a.re), std::fabs(a.im)); }

template <Scalar T>
constexpr T one()
{
    if constexpr (std::is_same_v<T, double>)
        return 1.0;
    else
        return {1.0, 0.0};
}

} // namespace kor::linalg
