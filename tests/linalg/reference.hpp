// An independent reference for the operations on vectors and matrices: every storage form is spread out to a dense complex
// matrix of extended precision, and the operation is done there by its definition.
//
// What an operation must not read is poisoned with NaN; what it must not write is compared bit by bit afterwards.
#pragma once

#include <cmath>
#include <complex>
#include <cstring>
#include <functional>
#include <limits>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include <kor/f06.h>

namespace kor::testing {

using Z = std::complex<long double>;
inline constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
inline constexpr double kEps = 0x1p-53;

inline Z wide(double a) { return a; }
inline Z wide(Complex a) { return {a.re, a.im}; }
inline void narrow(Z z, double &a) { a = static_cast<double>(z.real()); }
inline void narrow(Z z, Complex &a) { a = {static_cast<double>(z.real()), static_cast<double>(z.imag())}; }
template <class T>
T narrowed(Z z)
{
    T a;
    narrow(z, a);
    return a;
}
inline void poison(double &a) { a = kNan; }
inline void poison(Complex &a) { a = {kNan, kNan}; }
template <class T>
constexpr bool is_complex = std::is_same_v<T, Complex>;

class Random {
  public:
    double uniform() { return std::ldexp(static_cast<double>(bits_()), -31) - 1.0; } // [-1, 1)
    template <class T>
    T number()
    {
        if constexpr (is_complex<T>) {
            const double re = uniform();
            return {re, uniform()};
        } else {
            return uniform();
        }
    }

  private:
    std::mt19937 bits_{20240607};
};

// A dense matrix, and beside it a bound: the same expression formed of moduli, against which errors are measured.
struct Dense {
    Integer m, n;
    std::vector<Z> value;
    std::vector<long double> bound;

    Dense(Integer rows, Integer columns)
        : m{rows}, n{columns}, value(static_cast<std::size_t>(rows) * columns), bound(value.size())
    {
    }
    Z &operator()(Integer i, Integer j) { return value[static_cast<std::size_t>(i) * n + j]; }
    Z operator()(Integer i, Integer j) const { return value[static_cast<std::size_t>(i) * n + j]; }
    long double &size(Integer i, Integer j) { return bound[static_cast<std::size_t>(i) * n + j]; }
    long double size(Integer i, Integer j) const { return bound[static_cast<std::size_t>(i) * n + j]; }
    void measure()
    {
        for (std::size_t k = 0; k < value.size(); ++k) bound[k] = std::abs(value[k]);
    }
};

inline Dense operator*(const Dense &a, const Dense &b)
{
    Dense c{a.m, b.n};
    for (Integer i = 0; i < a.m; ++i)
        for (Integer j = 0; j < b.n; ++j)
            for (Integer k = 0; k < a.n; ++k) {
                c(i, j) += a(i, k) * b(k, j);
                c.size(i, j) += a.size(i, k) * b.size(k, j);
            }
    return c;
}
inline Dense operator*(Z alpha, Dense a)
{
    for (std::size_t k = 0; k < a.value.size(); ++k) {
        a.value[k] *= alpha;
        a.bound[k] *= std::abs(alpha);
    }
    if (alpha == Z{}) a.value.assign(a.value.size(), Z{}); // a factor of 0 hides what it multiplies
    return a;
}
inline Dense operator+(Dense a, const Dense &b)
{
    for (std::size_t k = 0; k < a.value.size(); ++k) {
        a.value[k] += b.value[k];
        a.bound[k] += b.bound[k];
    }
    return a;
}
inline Dense op(Integer trans, const Dense &a)
{
    if (trans == NoTranspose) return a;
    Dense t{a.n, a.m};
    for (Integer i = 0; i < a.m; ++i)
        for (Integer j = 0; j < a.n; ++j) {
            t(j, i) = trans == Transpose ? a(i, j) : std::conj(a(i, j));
            t.size(j, i) = a.size(i, j);
        }
    return t;
}
inline Dense identity(Integer n)
{
    Dense a{n, n};
    for (Integer i = 0; i < n; ++i) a(i, i) = 1.0L;
    a.measure();
    return a;
}

// Where a storage form keeps element (i, j); negative if nowhere.
using Place = std::function<std::ptrdiff_t(Integer, Integer)>;

inline Place rows(Integer td)
{
    return [=](Integer i, Integer j) { return std::ptrdiff_t{i} * td + j; };
}
inline bool in_triangle(Integer uplo, Integer i, Integer j) { return uplo == UpperTriangle ? i <= j : i >= j; }
inline Place triangle(Integer uplo, Integer td)
{
    return [=](Integer i, Integer j) { return in_triangle(uplo, i, j) ? std::ptrdiff_t{i} * td + j : -1; };
}
inline Place band(Integer kl, Integer ku, Integer td)
{
    return [=](Integer i, Integer j) {
        return i - j <= kl && j - i <= ku ? std::ptrdiff_t{i} * td + kl + j - i : std::ptrdiff_t{-1};
    };
}
inline Place half_band(Integer uplo, Integer k, Integer td)
{
    return uplo == UpperTriangle ? band(0, k, td) : band(k, 0, td);
}
inline Place packed(Integer uplo, Integer n)
{
    return [=](Integer i, Integer j) {
        if (!in_triangle(uplo, i, j)) return std::ptrdiff_t{-1};
        return uplo == UpperTriangle ? j + std::ptrdiff_t{i} * (2 * n - i - 1) / 2
                                     : std::ptrdiff_t{i} * (i + 1) / 2 + j;
    };
}
inline Place column(Integer n, Integer inc)
{
    return [=](Integer i, Integer) { return std::ptrdiff_t{i - (inc < 0 ? n - 1 : 0)} * inc; };
}

// An array of the interface that holds a matrix in some form; the rest of the array is poison.
template <class T>
class Stored {
  public:
    Stored(Integer m, Integer n, std::size_t length, Place place, Random &random)
        : m_{m}, n_{n}, place_{std::move(place)}
    {
        array.resize(length);
        for (T &a : array) poison(a);
        for (Integer i = 0; i < m; ++i)
            for (Integer j = 0; j < n; ++j)
                if (place_(i, j) >= 0) array.at(place_(i, j)) = random.number<T>();
    }
    Dense dense() const
    {
        Dense a{m_, n_};
        for (Integer i = 0; i < m_; ++i)
            for (Integer j = 0; j < n_; ++j)
                if (place_(i, j) >= 0) a(i, j) = wide(array[place_(i, j)]);
        a.measure();
        return a;
    }
    // The whole of a symmetric or Hermitian matrix of which a triangle is stored; of a Hermitian diagonal the imaginary
    // parts become poison.
    Dense spread(bool hermitian)
    {
        if constexpr (is_complex<T>)
            if (hermitian)
                for (Integer i = 0; i < n_; ++i) array[place_(i, i)].im = 0.0;
        Dense a = dense();
        for (Integer i = 0; i < n_; ++i)
            for (Integer j = 0; j < n_; ++j)
                if (place_(i, j) >= 0) a(j, i) = hermitian && i != j ? std::conj(a(i, j)) : a(i, j);
        a.measure();
        poison_diagonal(hermitian);
        return a;
    }
    void poison_diagonal(bool imaginary_only_if)
    {
        if constexpr (is_complex<T>)
            if (imaginary_only_if)
                for (Integer i = 0; i < n_; ++i) array[place_(i, i)].im = kNan;
    }
    // A triangular matrix that is safe to solve with; a unit diagonal becomes poison.
    Dense triangular(Integer diag)
    {
        for (Integer i = 0; i < n_; ++i) narrow(wide(array[place_(i, i)]) + Z{2.0L + n_}, array[place_(i, i)]);
        Dense a = dense();
        if (diag == UnitTriangular)
            for (Integer i = 0; i < n_; ++i) {
                a(i, i) = 1.0L;
                poison(array[place_(i, i)]);
            }
        a.measure();
        return a;
    }
    // The array holds `expected` where the form stores an element, within `factor` eps of its bound, and is the same bits
    // as `before` elsewhere. A factor of 0 in front of the old contents makes them poison beforehand: see call sites.
    void expect(const Dense &expected, double factor, const std::vector<T> &before, const std::string &what) const
    {
        std::vector<bool> written(array.size(), false);
        for (Integer i = 0; i < m_; ++i)
            for (Integer j = 0; j < n_; ++j) {
                if (place_(i, j) < 0) continue;
                written[place_(i, j)] = true;
                const long double error = std::abs(wide(array[place_(i, j)]) - expected(i, j));
                ASSERT_LE(error, factor * kEps * expected.size(i, j)) << what << ", element " << i << ", " << j;
            }
        for (std::size_t k = 0; k < array.size(); ++k)
            if (!written[k]) {
                ASSERT_EQ(std::memcmp(&array[k], &before[k], sizeof(T)), 0) << what << ", place " << k;
            }
    }
    T *data() { return array.data(); }

    std::vector<T> array;

  private:
    Integer m_, n_;
    Place place_;
};

template <class T>
Stored<T> general(Integer m, Integer n, Integer td, Random &random)
{
    return {m, n, static_cast<std::size_t>(m) * td, rows(td), random};
}

// A vector with an increment: element 0 of a negative one lies at the far end.
template <class T>
Stored<T> vector(Integer n, Integer inc, Random &random)
{
    const std::size_t length = n > 0 ? static_cast<std::size_t>(n - 1) * std::abs(inc) + 1 : 0;
    return {n, 1, length, column(n, inc), random};
}

// An operation that had nothing to do left this as it was.
template <class T>
bool same_bits(const std::vector<T> &now, const std::vector<T> &before)
{
    return now.size() == before.size() &&
           (now.empty() || std::memcmp(now.data(), before.data(), now.size() * sizeof(T)) == 0);
}

// `stored` holds what is expected; or, if there was nothing to do, what it held before.
template <class T>
void expect_unless(bool nothing, const Stored<T> &stored, const Dense &expected, double factor,
                   const std::vector<T> &before, const std::string &what)
{
    if (!nothing) return stored.expect(expected, factor, before, what);
    EXPECT_TRUE(same_bits(stored.array, before)) << what;
}

// Factors that standard operations treat apart, and one that they do not.
template <class T>
std::vector<T> factors()
{
    if constexpr (is_complex<T>)
        return {{0.0, 0.0}, {1.0, 0.0}, {0.25, -0.75}};
    else
        return {0.0, 1.0, -0.75};
}

inline constexpr Integer kTransposes[] = {NoTranspose, Transpose, ConjugateTranspose};
inline constexpr Integer kTriangles[] = {UpperTriangle, LowerTriangle};
inline constexpr Integer kDiagonals[] = {UnitTriangular, NotUnitTriangular};
inline constexpr Integer kSides[] = {LeftSide, RightSide};

} // namespace kor::testing
