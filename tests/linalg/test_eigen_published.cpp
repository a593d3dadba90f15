// Published matrices whose eigenvalues and singular values are known in closed form.
#include <numbers>

#include "linalg/eigen_reference.hpp"

namespace kor::testing {
namespace {

std::vector<double> sorted_real_parts(const std::vector<Complex> &r)
{
    std::vector<double> x;
    for (const Complex &z : r) x.push_back(z.re);
    std::sort(x.begin(), x.end());
    return x;
}

// J. B. Rosser, C. Lanczos, M. R. Hestenes and W. Karush, J. Res. Nat. Bur. Standards 47 (1951) 291-297: a double eigenvalue,
// three nearly equal ones, zero, and two opposite.
TEST(PublishedMatrices, Rosser)
{
    const double rosser[] = {611,  196, -192, 407, -8,  -52,  -49, 29,   196, 899,  113, -192, -71,  -43, -8,   -44,
                             -192, 113, 899,  196, 61,  49,   8,   52,   407, -192, 196, 611,  8,    44,  59,   -23,
                             -8,   -71, 61,   8,   411, -599, 208, 208,  -52, -43,  49,  44,   -599, 411, 208,  208,
                             -49,  -8,  8,    59,  208, 208,  99,  -911, 29,  -44,  52,  -23,  208,  208, -911, 99};
    const double a = 10.0 * std::sqrt(10405.0), b = 100.0 * std::sqrt(26.0);
    const double expected[] = {-a, 0.0, 510.0 - b, 1000.0, 1000.0, 510.0 + b, 1020.0, a};
    const double bound = 20 * kEps * a;
    std::vector<double> m(rosser, rosser + 64), r(8), v(64), d(8), e(8), e2(8);
    Record fail;
    f02abc(8, m.data(), 8, r.data(), v.data(), 8, &fail);
    for (int i = 0; i < 8; ++i) EXPECT_NEAR(r[i], expected[i], bound);
    f01agc(8, 0.0, m.data(), 8, d.data(), e.data(), e2.data());
    f02avc(8, x02ajc(), d.data(), e.data(), &fail);
    for (int i = 0; i < 8; ++i) EXPECT_NEAR(d[i], expected[i], bound);
    std::vector<double> g(rosser, rosser + 64), sv(8), f(8);
    std::vector<Complex> w(8);
    std::vector<Integer> iter(8);
    f02afc(8, g.data(), 8, w.data(), iter.data(), &fail);
    const auto x = sorted_real_parts(w);
    for (int i = 0; i < 8; ++i) EXPECT_NEAR(x[i], expected[i], 2 * bound);
    g.assign(rosser, rosser + 64);
    Integer steps, failinfo;
    f02wec(8, 8, g.data(), 8, 0, nullptr, 0, 0, nullptr, 0, sv.data(), 0, nullptr, 0, &steps, f.data(), &failinfo,
           &fail);
    std::vector<double> moduli(expected, expected + 8);
    for (double &y : moduli) y = std::fabs(y);
    std::sort(moduli.rbegin(), moduli.rend());
    for (int i = 0; i < 8; ++i) EXPECT_NEAR(sv[i], moduli[i], bound);
}

// P. A. Clement, SIAM Review 1 (1959) 50-52: not symmetric, eigenvalues n-1, n-3, ..., 1-n, ill-conditioned as n grows.
TEST(PublishedMatrices, Clement)
{
    for (const Integer n : {5, 10, 15}) {
        std::vector<double> a(n * n, 0.0);
        for (Integer i = 0; i + 1 < n; ++i) {
            a[i * n + i + 1] = i + 1;
            a[(i + 1) * n + i] = n - 1 - i;
        }
        std::vector<Complex> r(n);
        std::vector<Integer> iter(n);
        Record fail;
        f02afc(n, a.data(), n, r.data(), iter.data(), &fail);
        const auto x = sorted_real_parts(r);
        for (Integer i = 0; i < n; ++i) EXPECT_NEAR(x[i], 2 * i - n + 1, 1e-11) << n;
        for (const Complex &z : r) EXPECT_NEAR(z.im, 0.0, 1e-11);
    }
}

// W. L. Frank, J. SIAM 6 (1958) 378-392: determinant 1, eigenvalues in pairs x, 1/x, the small ones ill-conditioned.
TEST(PublishedMatrices, Frank)
{
    const Integer n = 9;
    std::vector<double> a(n * n);
    for (Integer i = 0; i < n; ++i)
        for (Integer j = 0; j < n; ++j) a[i * n + j] = j < i - 1 ? 0.0 : n - std::max(i, j);
    std::vector<Complex> r(n);
    std::vector<Integer> iter(n);
    Record fail;
    f02afc(n, a.data(), n, r.data(), iter.data(), &fail);
    const auto x = sorted_real_parts(r);
    for (Integer i = 0; i < n; ++i) EXPECT_NEAR(x[i] * x[n - 1 - i], 1.0, 1e-9);
}

// A vibrating rod of n linear elements, its stiffness and consistent mass: tridiagonal Toeplitz matrices.
TEST(PublishedMatrices, Rod)
{
    const Integer n = 30;
    std::vector<double> k(n * n, 0.0), m(n * n, 0.0);
    for (Integer i = 0; i < n; ++i) {
        k[i * n + i] = 2.0;
        m[i * n + i] = 4.0;
        if (i == 0) continue;
        k[i * n + i - 1] = k[(i - 1) * n + i] = -1.0;
        m[i * n + i - 1] = m[(i - 1) * n + i] = 1.0;
    }
    std::vector<double> r(n), s(n), v(n * n), a = k, b = m, beta(n);
    std::vector<Complex> alfa(n);
    std::vector<Integer> iter(n);
    Record fail;
    f02aec(n, a.data(), n, b.data(), n, r.data(), v.data(), n, &fail);
    a = k;
    b = m;
    f02adc(n, a.data(), n, b.data(), n, s.data(), &fail);
    a = k;
    b = m;
    f02bjc(n, a.data(), n, b.data(), n, 0.0, alfa.data(), beta.data(), 0, nullptr, 0, iter.data(), &fail);
    for (Integer i = 0; i < n; ++i) alfa[i].re /= beta[i];
    const auto x = sorted_real_parts(alfa);
    for (Integer i = 0; i < n; ++i) {
        const double c = std::cos((i + 1) * std::numbers::pi / (n + 1)), expected = (1.0 - c) / (2.0 + c);
        EXPECT_NEAR(r[i], expected, n * kEps * 4);
        EXPECT_NEAR(s[i], expected, n * kEps * 4);
        EXPECT_NEAR(x[i], expected, n * kEps * 8);
    }
}

// The discrete Fourier matrix has singular values sqrt(n); the cyclic shift has its columns for eigenvectors.
TEST(PublishedMatrices, FourierAndCirculant)
{
    const Integer n = 12;
    std::vector<Complex> f(n * n), shift(n * n, Complex{}), w(n), v(n * n);
    for (Integer i = 0; i < n; ++i) {
        shift[i * n + (i + 1) % n] = {1.0, 0.0};
        for (Integer j = 0; j < n; ++j) {
            const double angle = 2.0 * std::numbers::pi * ((i * j) % n) / n;
            f[i * n + j] = {std::cos(angle), std::sin(angle)};
        }
    }
    std::vector<double> sv(n), e(n);
    Integer iter, failinfo, m;
    Record fail;
    f02xec(n, n, f.data(), n, 0, nullptr, 0, 0, nullptr, 0, sv.data(), 0, nullptr, 0, &iter, e.data(), &failinfo,
           &fail);
    for (const double s : sv) EXPECT_NEAR(s, std::sqrt(12.0), 20 * kEps);
    // The cyclic shift: its eigenvalues are the roots of unity, five of them in the right half plane.
    f02gcc(Kor_Select_RealPart, n, shift.data(), n, 0.1, 2.0, n, &m, w.data(), v.data(), n, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_EQ(m, 5);
    for (Integer j = 0; j < m; ++j) {
        EXPECT_NEAR(std::hypot(w[j].re, w[j].im), 1.0, 20 * kEps);
        for (Integer i = 0; i < n; ++i)
            EXPECT_NEAR(std::hypot(v[i * n + j].re, v[i * n + j].im), 1.0 / std::sqrt(12.0), 40 * kEps);
    }
}

} // namespace
} // namespace kor::testing
