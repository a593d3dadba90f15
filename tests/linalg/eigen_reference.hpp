// Matrices for the tests of eigenvalues and singular values, easy and hard, and the measures by which results are judged.
#pragma once

#include <algorithm>
#include <string>

#include <kor/f01.h>
#include <kor/f02.h>
#include <kor/x02.h>

#include "linalg/reference.hpp"
#include "support/expect_report.hpp"

namespace kor::testing {

inline constexpr double kInfinity = std::numeric_limits<double>::infinity();

// A row-major array with rows longer than the matrix; what lies behind the columns must stay NaN.
template <class T>
struct Array {
    Integer m, n, td;
    std::vector<T> data;

    Array(Integer rows, Integer columns, Integer spare = 2)
        : m{rows}, n{columns}, td{columns + spare}, data(static_cast<std::size_t>(rows) * td)
    {
        for (T &x : data) poison(x);
    }
    T &operator()(Integer i, Integer j) { return data[static_cast<std::size_t>(i) * td + j]; }
    T operator()(Integer i, Integer j) const { return data[static_cast<std::size_t>(i) * td + j]; }
    T *begin() { return data.data(); }
    Dense dense() const
    {
        Dense a{m, n};
        for (Integer i = 0; i < m; ++i)
            for (Integer j = 0; j < n; ++j) a(i, j) = wide((*this)(i, j));
        return a;
    }
    bool margin_is_untouched() const
    {
        for (Integer i = 0; i < m; ++i)
            for (Integer j = n; j < td; ++j)
                if (!std::isnan(wide(data[static_cast<std::size_t>(i) * td + j]).real())) return false;
        return true;
    }
};

template <class T>
Array<T> stored(const Dense &a)
{
    Array<T> array{a.m, a.n};
    for (Integer i = 0; i < a.m; ++i)
        for (Integer j = 0; j < a.n; ++j) narrow(a(i, j), array(i, j));
    return array;
}

inline long double norm(const Dense &a)
{
    long double scale = 0, sum = 0;
    for (const Z &z : a.value) scale = std::max(scale, std::abs(z));
    if (scale == 0) return 0;
    for (const Z &z : a.value) sum += std::norm(z / scale);
    return scale * std::sqrt(sum);
}
// Without the bounds that a product by operator* brings along, row by row.
inline Dense product(const Dense &a, const Dense &b)
{
    Dense c{a.m, b.n};
    for (Integer i = 0; i < a.m; ++i)
        for (Integer k = 0; k < a.n; ++k) {
            const long double re = a(i, k).real(), im = a(i, k).imag();
            const Z *const row = &b.value[static_cast<std::size_t>(k) * b.n];
            Z *const to = &c.value[static_cast<std::size_t>(i) * b.n];
            for (Integer j = 0; j < b.n; ++j)
                to[j] += Z{re * row[j].real() - im * row[j].imag(), re * row[j].imag() + im * row[j].real()};
        }
    return c;
}
inline Dense product(const Dense &a, const Dense &b, const Dense &c) { return product(product(a, b), c); }
inline Dense adjoint(const Dense &a) { return op(ConjugateTranspose, a); }
inline Dense minus(const Dense &a, const Dense &b) { return a + Z{-1.0L} * b; }
inline Dense columns_of(const Dense &a, Integer n)
{
    Dense b{a.m, n};
    for (Integer i = 0; i < a.m; ++i)
        for (Integer j = 0; j < n; ++j) b(i, j) = a(i, j);
    return b;
}
template <class Values>
Dense diagonal(Integer n, const Values &values)
{
    Dense d{n, n};
    for (Integer i = 0; i < n; ++i) d(i, i) = wide(values[i]);
    return d;
}

// How far the columns of q are from orthonormal, over n eps.
inline double disorder(const Dense &q)
{
    return static_cast<double>(norm(minus(product(adjoint(q), q), identity(q.n))) / (std::max(q.m, 1) * kEps));
}
// |a - b| over n eps |a|.
inline double distance(const Dense &a, const Dense &b)
{
    const long double size = norm(a), difference = norm(minus(a, b));
    return size == 0 ? (difference == 0 ? 0.0 : kInfinity)
                     : static_cast<double>(difference / size / (std::max({a.m, a.n, 1}) * kEps));
}

// ---- Matrices

template <class T>
Dense random_matrix(Integer m, Integer n, Random &random)
{
    Dense a{m, n};
    for (Z &z : a.value) z = wide(random.number<T>());
    return a;
}
template <class T>
Dense random_orthogonal(Integer n, Random &random)
{
    Dense q = random_matrix<T>(n, n, random);
    for (int pass = 0; pass < 2; ++pass)
        for (Integer j = 0; j < n; ++j) {
            for (Integer k = 0; k <= j; ++k) {
                Z product{};
                for (Integer i = 0; i < n; ++i) product += std::conj(q(i, k)) * q(i, j);
                for (Integer i = 0; i < n; ++i)
                    if (k < j)
                        q(i, j) -= product * q(i, k);
                    else
                        q(i, j) /= std::sqrt(product.real());
            }
        }
    return q;
}

struct TestMatrix {
    std::string name;
    Dense a;
};

// Rounded to what a double holds, and exactly Hermitian.
template <class T>
Dense hermitian(Dense a)
{
    for (Integer i = 0; i < a.n; ++i)
        for (Integer j = 0; j <= i; ++j) {
            T element;
            narrow(i == j ? Z{a(i, i).real()} : a(i, j), element);
            a(i, j) = wide(element);
            a(j, i) = std::conj(a(i, j));
        }
    return a;
}

template <class T>
std::vector<TestMatrix> symmetric_matrices(Integer n, Random &random)
{
    const auto formed = [&](auto element) {
        Dense a{n, n};
        for (Integer i = 0; i < n; ++i)
            for (Integer j = 0; j <= i; ++j) a(i, j) = element(i, j);
        return hermitian<T>(a);
    };
    const auto with_spectrum = [&](auto value) {
        const Dense q = random_orthogonal<T>(n, random);
        std::vector<double> values(n);
        for (Integer i = 0; i < n; ++i) values[i] = value(i);
        return hermitian<T>(product(q, diagonal(n, values), adjoint(q)));
    };
    return {
        {"random", formed([&](Integer, Integer) { return wide(random.number<T>()); })},
        {"Hilbert", formed([](Integer i, Integer j) { return Z{1.0L / (i + j + 1)}; })},
        {"Wilkinson", formed([&](Integer i, Integer j) {
             return Z{i == j ? std::fabs(i - (n - 1) / 2.0L) : i - j == 1 ? 1.0L : 0.0L};
         })},
        {"graded",
         formed([&](Integer i, Integer j) { return std::ldexp(1.0L, -3 * (i + j)) * wide(random.number<T>()); })},
        {"graded upwards", formed([&](Integer i, Integer j) {
             return std::ldexp(1.0L, 3 * (i + j - 2 * n)) * wide(random.number<T>());
         })},
        {"clustered", with_spectrum([&](Integer i) { return i < n / 2 ? 1.0 + i * 1e-15 : -2.0; })},
        {"rank two", with_spectrum([](Integer i) { return i < 2 ? 1.0 + i : 0.0; })},
        {"diagonal", formed([&](Integer i, Integer j) { return i == j ? Z{1.0L * ((7 * i) % n)} : Z{}; })},
        {"zero", formed([](Integer, Integer) { return Z{}; })},
        {"ones", formed([](Integer, Integer) { return Z{1.0L}; })},
        {"huge", formed([&](Integer, Integer) { return std::ldexp(1.0L, 1015) * wide(random.number<T>()); })},
        {"tiny", formed([&](Integer, Integer) { return std::ldexp(1.0L, -1018) * wide(random.number<T>()); })},
    };
}

} // namespace kor::testing
