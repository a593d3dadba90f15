// The iterations behind chapter f02 as kernels: what they leave when their steps run out, and the pieces that the drivers
// reach seldom.
#include "linalg/bidiagonal_qr.hpp"
#include "linalg/eigen_reference.hpp"
#include "linalg/general_eigen.hpp"
#include "linalg/hessenberg.hpp"
#include "linalg/magnitude.hpp"
#include "linalg/tridiagonal_ql.hpp"

namespace kor::testing {
namespace {

using namespace kor::linalg;

// Trace and sum of squares tell that what is left is still similar to the matrix.
TEST(Iterations, TridiagonalStopsInBetween)
{
    const Integer n = 12;
    for (const Integer limit : {0, 1, 5, 1000}) {
        double d[n], e[n], z[n * n] = {};
        for (Integer i = 0; i < n; ++i) {
            d[i] = std::sin(3.0 * i);
            e[i] = 0.75 - 0.05 * i;
            z[i * n + i] = 1.0;
        }
        long double trace = 0, squares = 0;
        for (Integer i = 0; i < n; ++i) {
            trace += d[i];
            squares += d[i] * d[i] + (i + 1 < n ? 2 * e[i] * e[i] : 0);
        }
        const bool done = diagonalise(n, kEps, d, e, limit, TurningRows<double>{z, n, n});
        EXPECT_EQ(done, limit == 1000);
        for (Integer i = 0; i < n; ++i) {
            trace -= d[i];
            squares -= d[i] * d[i] + (i + 1 < n ? 2 * e[i] * e[i] : 0);
        }
        EXPECT_LE(std::fabs(trace), 20 * n * kEps);
        EXPECT_LE(std::fabs(squares), 20 * n * kEps);
        double f[n], g[n];
        for (Integer i = 0; i < n; ++i) {
            f[i] = std::sin(3.0 * i);
            g[i] = 0.75 - 0.05 * i;
        }
        EXPECT_EQ(find_eigenvalues(n, kEps, f, g, limit), done);
        for (Integer i = 0; done && i < n; ++i) EXPECT_NEAR(f[i], d[i], 20 * n * kEps);
    }
}

TEST(Iterations, BidiagonalCountsWhatHasNotConverged)
{
    const Integer n = 9;
    Integer before = n;
    for (const Integer limit : {0, 4, 8, 1000}) {
        double d[n], e[n];
        for (Integer i = 0; i < n; ++i) {
            d[i] = std::cos(2.0 * i);
            e[i] = 0.5;
        }
        Integer steps;
        const Integer failures = diagonalise_bidiagonal(n, d, e, limit, steps, NoRows{}, NoRows{});
        EXPECT_LE(steps, limit);
        EXPECT_EQ(failures, std::count_if(e, e + n - 1, [](double x) { return x != 0.0; }));
        EXPECT_LE(failures, before);
        EXPECT_EQ(failures == 0, limit == 1000);
        for (const double x : d) EXPECT_GE(x, 0.0);
        before = failures;
    }
}

TEST(Iterations, HessenbergTellsFromWhereValuesAreRight)
{
    const Integer n = 10;
    double h[n * n], full[n * n];
    for (Integer i = 0; i < n; ++i)
        for (Integer j = 0; j < n; ++j)
            h[i * n + j] = full[i * n + j] = j < i - 1 ? kNan : std::sin(7.0 * i + 3.0 * j * j);
    double wr[n], wi[n], xr[n], xi[n];
    Integer count[n];
    EXPECT_EQ(hessenberg_eigenvalues(n, {0, n - 1}, kEps, full, n, nullptr, n, xr, xi, count, 300), 0);
    Integer before = n;
    for (const Integer limit : {0, 6, 12}) {
        double copy[n * n];
        std::copy(h, h + n * n, copy);
        const Integer unsplit = hessenberg_eigenvalues(n, {0, n - 1}, kEps, copy, n, nullptr, n, wr, wi, count, limit);
        EXPECT_LE(unsplit, before);
        EXPECT_GT(unsplit, 0);
        for (Integer i = unsplit; i < n; ++i) {
            EXPECT_NEAR(wr[i], xr[i], 1e-13);
            EXPECT_NEAR(wi[i], xi[i], 1e-13);
        }
        before = unsplit;
    }
    EXPECT_LT(before, n);
}

// A cyclic permutation leaves plain double shifts where they are: only exceptional shifts break the circle.
TEST(Iterations, ExceptionalShiftsBreakTheCircle)
{
    for (const Integer n : {3, 4, 6, 11}) {
        std::vector<double> h(n * n, 0.0), wr(n), wi(n);
        std::vector<Integer> count(n);
        h[n - 1] = 1.0;
        for (Integer i = 1; i < n; ++i) h[i * n + i - 1] = 1.0;
        EXPECT_EQ(hessenberg_eigenvalues(n, {0, n - 1}, kEps, h.data(), n, nullptr, n, wr.data(), wi.data(),
                                         count.data(), 30 * n),
                  0);
        for (Integer i = 0; i < n; ++i) EXPECT_NEAR(std::hypot(wr[i], wi[i]), 1.0, 20 * n * kEps);
    }
}

// Two by two in closed form: both values and both rotations, against extended precision.
TEST(Iterations, TrianglesOfTwo)
{
    Random random;
    for (int k = 0; k < 3000; ++k) {
        double f = std::ldexp(random.uniform(), k % 37), h = random.uniform();
        const double g = std::ldexp(random.uniform(), (7 * k) % 90 - 45);
        if (std::fabs(f) < std::fabs(h)) std::swap(f, h);
        if (g == 0.0 || f == 0.0) continue;
        const TriangleOfTwo two = singular_values_of_two(f, g, h);
        const long double F = f, G = g, H = h;
        const long double greater = (std::hypot(F + H, G) + std::hypot(F - H, G)) / 2;
        EXPECT_NEAR(std::fabs(two.greater), static_cast<double>(greater), 6 * kEps * greater);
        if (h != 0.0) {
            EXPECT_NEAR(std::fabs(two.smaller), static_cast<double>(std::fabs(F * H) / greater),
                        8 * kEps * std::fabs(F * H) / greater);
        }
        EXPECT_NEAR(two.left_c * two.left_c + two.left_s * two.left_s, 1.0, 10 * kEps);
        EXPECT_NEAR(two.right_c * two.right_c + two.right_s * two.right_s, 1.0, 10 * kEps);
        // Left times the matrix times right is diagonal.
        const long double lc = two.left_c, ls = two.left_s, rc = two.right_c, rs = two.right_s;
        const long double a = F * rc + G * rs, b = G * rc - F * rs, c = H * rs, d = H * rc;
        EXPECT_LE(std::fabs(lc * a + ls * c - two.greater), 20 * kEps * greater);
        EXPECT_LE(std::fabs(lc * d - ls * b - two.smaller), 20 * kEps * greater);
        EXPECT_LE(std::fabs(lc * b + ls * d), 20 * kEps * greater);
        EXPECT_LE(std::fabs(lc * c - ls * a), 20 * kEps * greater);
    }
}

TEST(Iterations, RotationsOfAllSizes)
{
    for (int p = -1070; p < 1020; p += 19)
        for (int q = -1070; q < 1020; q += 23) {
            const double f = std::ldexp(-0.7, p), g = std::ldexp(0.6, q);
            const Givens rotation = givens(f, g);
            EXPECT_NEAR(rotation.c * rotation.c + rotation.s * rotation.s, 1.0, 4 * kEps) << p << ", " << q;
            if (std::max(p, q) > -1000) {
                EXPECT_NEAR(std::fabs(rotation.r) / std::hypot(f, g), 1.0, 4 * kEps) << p << ", " << q;
            }
        }
}

TEST(Magnitudes, WhatIsNotFiniteIsGreatest)
{
    double x[] = {-3.0, 2.0, 0.5};
    Magnitude magnitude;
    magnitude.take(3, x);
    EXPECT_EQ(magnitude.value(), 3.0);
    EXPECT_EQ(magnitude.scaling(), 1.0);
    for (const double bad : {kInfinity, -kInfinity, kNan, -kNan}) {
        Magnitude other = magnitude;
        other.take(1, &bad);
        EXPECT_FALSE(other.is_finite());
    }
    for (const double size : {0x1p1023, 0x1.8p-1070, 0x1p400}) {
        Magnitude other;
        other.take(1, &size);
        const double scaled = size * other.scaling();
        EXPECT_TRUE(scaled >= 0x1p-60 && scaled < 2.0) << size;
        EXPECT_EQ(std::ilogb(other.scaling()), std::min(1021, -std::ilogb(size)));
    }
}

TEST(Vectors, Normalisation)
{
    for (const double size : {1.0, 0x1p1000, 0x1p-1060}) {
        Complex x[] = {{0.0, 3.0 * size}, {4.0 * size, 0.0}, {0.0, 0.0}};
        normalise_vector(3, x, 1);
        EXPECT_NEAR(x[0].im, 0.6, 2 * kEps);
        EXPECT_NEAR(x[1].re, 0.8, 2 * kEps);
        EXPECT_EQ(x[1].im, 0.0);
        Complex y[] = {{0.0, 2.0 * size}, {size, 0.0}};
        normalise_vector(2, y, 1);
        EXPECT_GT(y[0].re, 0.8);
        EXPECT_EQ(y[0].im, 0.0);
        EXPECT_LT(y[1].im, -0.4);
    }
    Complex zero[] = {{0.0, 0.0}, {0.0, 0.0}};
    normalise_vector(2, zero, 1);
    EXPECT_EQ(zero[0].re, 0.0);
}

} // namespace
} // namespace kor::testing
