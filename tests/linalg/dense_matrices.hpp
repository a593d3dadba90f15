// Matrices on which dense factorisations fail when they are wrong, and what residuals are measured in: products formed in
// extended precision, beside the same products of moduli.
#pragma once

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "linalg/reference.hpp"

namespace kor::testing {

struct Element {
    Integer i, j;
    double value;
};
#include "linalg/matrix_market_data.inc"

// A row-major matrix without gaps.
template <class T>
struct Matrix {
    Integer m, n;
    std::vector<T> a;

    Matrix(Integer rows, Integer columns) : m{rows}, n{columns}, a(static_cast<std::size_t>(rows) * columns) {}
    T &operator()(Integer i, Integer j) { return a[static_cast<std::size_t>(i) * n + j]; }
    const T &operator()(Integer i, Integer j) const { return a[static_cast<std::size_t>(i) * n + j]; }
    T *data() { return a.data(); }
    const T *data() const { return a.data(); }
};

template <class T>
using Wide = std::conditional_t<is_complex<T>, Z, long double>;
inline long double widened(double a) { return a; }
inline Z widened(Complex a) { return wide(a); }
inline long double conjugated(long double a) { return a; }
inline Z conjugated(Z a) { return std::conj(a); }

template <class T>
Matrix<T> random_matrix(Integer m, Integer n, Random &random)
{
    Matrix<T> a{m, n};
    for (T &x : a.a) x = random.number<T>();
    return a;
}

template <class T>
Matrix<T> with_order(Integer n, const auto &element)
{
    Matrix<T> a{n, n};
    for (Integer i = 0; i < n; ++i)
        for (Integer j = 0; j < n; ++j) a(i, j) = element(i, j);
    return a;
}

inline Matrix<double> hilbert(Integer n)
{
    return with_order<double>(n, [](Integer i, Integer j) { return 1.0 / (i + j + 1); });
}
template <std::size_t count>
Matrix<double> from_elements(Integer n, const Element (&elements)[count], bool symmetric)
{
    Matrix<double> a{n, n};
    for (const auto &[i, j, value] : elements) {
        a(i - 1, j - 1) = value;
        if (symmetric) a(j - 1, i - 1) = value;
    }
    return a;
}

struct Named {
    std::string name;
    Matrix<double> matrix;
};

// Square matrices of order n that are hard in one way or another; not all of them are regular to working accuracy.
inline std::vector<Named> gallery(Integer n, Random &random)
{
    const auto general = random_matrix<double>(n, n, random);
    const auto graded = [&](int rows, int columns) {
        return with_order<double>(
            n, [&](Integer i, Integer j) { return std::ldexp(general(i, j), rows * i + columns * j); });
    };
    const auto nearly_singular = [&] {
        auto a = general;
        for (Integer j = 0; j < n && n > 1; ++j) a(n - 1, j) = a(0, j) * (1.0 + 0x1p-40 * general(n / 2, j));
        return a;
    };
    const double c = 0.6, s = 0.8;
    return {{"random", general},
            {"graded rows", graded(-6, 0)},
            {"graded columns", graded(0, 5)},
            {"graded both", graded(-4, -4)},
            {"nearly singular", nearly_singular()},
            {"Hilbert", hilbert(n)},
            {"Vandermonde",
             with_order<double>(n, [&](Integer i, Integer j) { return std::pow((i + 1.0) / n, std::min(j, 30)); })},
            {"Kahan", with_order<double>(n,
                                         [&](Integer i, Integer j) {
                                             return j < i ? 0.0 : std::pow(s, std::min(i, 300)) * (i == j ? 1.0 : -c);
                                         })},
            {"Frank",
             with_order<double>(n, [&](Integer i, Integer j) { return j < i - 1 ? 0.0 : double(n - std::max(i, j)); })},
            {"Wilkinson", with_order<double>(n, [&](Integer i, Integer j) {
                 return j == n - 1 || i == j ? 1.0 : j < i ? -1.0 : 0.0;
             })}};
}

// Symmetric positive-definite ones.
inline std::vector<Named> positive_gallery(Integer n, Random &random)
{
    const auto b = random_matrix<double>(n, n, random);
    auto product = with_order<double>(n, [&](Integer i, Integer j) {
        double sum = i == j ? 0.5 : 0.0;
        for (Integer k = 0; k < n; ++k) sum += b(k, i) * b(k, j);
        return sum;
    });
    const auto graded =
        with_order<double>(n, [&](Integer i, Integer j) { return std::ldexp(product(i, j), -5 * (i + j)); });
    std::vector<Named> all{
        {"random", product},
        {"graded", graded},
        {"minimum", with_order<double>(n, [](Integer i, Integer j) { return std::min(i, j) + 1.0; })},
        {"tridiagonal", with_order<double>(n, [](Integer i, Integer j) {
             return i == j ? 2.0 : std::abs(i - j) == 1 ? -1.0 : 0.0;
         })}};
    if (n <= 12) all.push_back({"Hilbert", hilbert(n)});
    return all;
}

// The greatest |C - A B| over the bound that rounding errors owe: |A||B| + |C|, in units of eps. A and B are given by their
// elements, `inner` of them in each product.
template <class T, class A, class B, class C>
long double product_error(Integer m, Integer n, Integer inner, const A &a, const B &b, const C &c)
{
    long double worst = 0.0L;
    for (Integer i = 0; i < m; ++i)
        for (Integer j = 0; j < n; ++j) {
            Wide<T> sum = -Wide<T>(c(i, j));
            long double bound = std::abs(sum);
            for (Integer k = 0; k < inner; ++k) {
                const Wide<T> term = Wide<T>(a(i, k)) * Wide<T>(b(k, j));
                sum += term;
                bound += std::abs(term);
            }
            if (!(std::abs(sum) <= worst * bound)) worst = bound > 0.0L ? std::abs(sum) / bound : HUGE_VALL;
        }
    return worst / kEps;
}

} // namespace kor::testing
