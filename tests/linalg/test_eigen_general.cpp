// General eigenproblems and pairs: drivers and steps, on matrices with full and with defective sets of vectors.
#include "linalg/eigen_reference.hpp"

namespace kor::testing {
namespace {

constexpr double kTolerance = 10.0; // residuals in units of n eps, norms Euclidean

std::vector<TestMatrix> general_matrices(Integer n, Random &random)
{
    const auto formed = [&](auto element) {
        Dense a{n, n};
        for (Integer i = 0; i < n; ++i)
            for (Integer j = 0; j < n; ++j) a(i, j) = static_cast<double>(element(i, j));
        return a;
    };
    const auto number = [&] { return random.uniform(); };
    return {
        {"random", formed([&](Integer, Integer) { return number(); })},
        {"Frank", formed([&](Integer i, Integer j) { return j < i - 1 ? 0 : n - std::max(i, j); })},
        {"Jordan", formed([](Integer i, Integer j) { return i == j       ? 0.5
                                                            : j == i + 1 ? 1.0
                                                                         : 0.0; })},
        {"Jordan below", formed([](Integer i, Integer j) { return i == j       ? 0.5
                                                                  : i == j + 1 ? 1.0
                                                                               : 0.0; })},
        {"cycle", formed([&](Integer i, Integer j) { return j == (i + 1) % n; })}, // roots of unity
        {"graded", formed([&](Integer i, Integer j) { return std::ldexp(number(), -2 * (i + j)); })},
        {"graded upwards", formed([&](Integer i, Integer j) { return std::ldexp(number(), 2 * (i + j - 2 * n)); })},
        {"badly scaled", formed([&](Integer i, Integer j) { return std::ldexp(number(), 20 * (i % 5 - j % 5)); })},
        {"triangular", formed([&](Integer i, Integer j) { return i <= j ? number() : 0.0; })},
        {"permuted triangular",
         formed([&](Integer i, Integer j) { return (7 * i) % n <= (7 * j) % n ? number() : 0.0; })},
        {"skew", formed([&](Integer i, Integer j) { return i < j   ? 1.0
                                                           : i > j ? -1.0
                                                                   : 0.0; })},
        {"rank one", formed([](Integer i, Integer j) { return (i + 1.0) * (1.0 - j); })},
        {"zero", formed([](Integer, Integer) { return 0.0; })},
        {"huge", formed([&](Integer, Integer) { return std::ldexp(number(), 1012); })},
        {"tiny", formed([&](Integer, Integer) { return std::ldexp(number(), -1010); })},
    };
}

// Each column solves the eigenproblem, has length 1, and its largest component is real.
void expect_vectors(const Dense &a, const std::vector<Complex> &r, const Array<Complex> &v, Integer columns,
                    const std::string &what, double tolerance = kTolerance)
{
    const long double size = norm(a);
    const Integer n = a.n;
    for (Integer j = 0; j < columns; ++j) {
        long double length = 0, residual = 0, largest = 0, imaginary = 0;
        for (Integer i = 0; i < n; ++i) {
            Z sum{};
            for (Integer k = 0; k < n; ++k) sum += a(i, k) * wide(v(k, j));
            residual = std::max(residual, std::abs(sum - wide(r[j]) * wide(v(i, j))));
            length += std::norm(wide(v(i, j)));
            if (std::abs(wide(v(i, j))) > largest * (1 + 0x1p-30L)) {
                largest = std::abs(wide(v(i, j)));
                imaginary = v(i, j).im / largest;
            }
        }
        EXPECT_LE(std::abs(std::sqrt(length) - 1), 4 * n * kEps) << what << ", vector " << j;
        EXPECT_LE(residual, tolerance * n * kEps * size) << what << ", vector " << j;
        EXPECT_LE(std::abs(imaginary), 1e-8) << what << ", vector " << j;
    }
}

// Sets of eigenvalues agree within a bound.
void expect_same_set(std::vector<Complex> r, std::vector<Complex> s, double bound, const std::string &what)
{
    for (const Complex &x : r) {
        const auto nearest = std::min_element(s.begin(), s.end(), [&](Complex a, Complex b) {
            return std::hypot(a.re - x.re, a.im - x.im) < std::hypot(b.re - x.re, b.im - x.im);
        });
        EXPECT_LE(std::hypot(nearest->re - x.re, nearest->im - x.im), bound) << what << ", " << x.re << ", " << x.im;
        s.erase(nearest);
    }
}

TEST(GeneralEigen, VectorsSolveTheProblem)
{
    Random random;
    for (const Integer n : {1, 2, 3, 4, 5, 8, 16, 31, 64, 65})
        for (const auto &[name, A] : general_matrices(n, random)) {
            const std::string what = name + ", order " + std::to_string(n);
            Array<double> a = stored<double>(A);
            Array<double> b = a;
            Array<Complex> v{n, n, 1};
            std::vector<Complex> r(n), s(n);
            std::vector<Integer> iter(n, -7);
            Record fail;
            f02agc(n, a.begin(), a.td, r.data(), v.begin(), v.td, iter.data(), &fail);
            EXPECT_SUCCESS(fail) << what;
            expect_vectors(A, r, v, n, what);
            EXPECT_TRUE(v.margin_is_untouched());
            Z trace{}, sum{};
            for (Integer i = 0; i < n; ++i) {
                trace += A(i, i);
                sum += wide(r[i]);
                if (r[i].im > 0.0) {
                    EXPECT_EQ(r[i + 1].im, -r[i].im);
                    EXPECT_EQ(r[i + 1].re, r[i].re);
                }
            }
            EXPECT_LE(std::abs(trace - sum), kTolerance * n * kEps * norm(A)) << what;
            f02afc(n, b.begin(), b.td, s.data(), iter.data(), &fail);
            EXPECT_SUCCESS(fail) << what;
            // Eigenvalues alone take other steps: equal only as far as the problem is well-conditioned.
            if (name == "random" || name == "cycle" || name == "skew")
                expect_same_set(r, s, static_cast<double>(100 * n * kEps * norm(A)), what);
        }
}

// Eigenvalues of the Frank matrices come in pairs x, 1/x; the small ones are ill-conditioned. A chain of n vectors moves an
// eigenvalue by the n-th root of the perturbation, n eps |A|.
TEST(GeneralEigen, DefectiveMatricesStayWithinThePerturbationBound)
{
    for (const Integer n : {2, 3, 5, 8, 12}) {
        std::vector<double> a(n * n, 0.0);
        for (Integer i = 0; i < n; ++i) {
            a[i * n + i] = 2.0;
            if (i > 0) a[i * n + i - 1] = 1.0;
        }
        // Hidden by a similarity in integers, P A P^-1 with P = I + ones below the diagonal, so that nothing can be read off.
        std::vector<long double> p(n * n, 0.0), q(n * n, 0.0), x(n * n, 0.0), y(n * n, 0.0);
        for (Integer i = 0; i < n; ++i) {
            for (Integer j = 0; j <= i; ++j) p[i * n + j] = 1.0;
            q[i * n + i] = 1.0;
            if (i > 0) q[i * n + i - 1] = -1.0;
        }
        for (Integer i = 0; i < n; ++i)
            for (Integer k = 0; k < n; ++k)
                for (Integer j = 0; j < n; ++j) x[i * n + j] += p[i * n + k] * a[k * n + j];
        for (Integer i = 0; i < n; ++i)
            for (Integer k = 0; k < n; ++k)
                for (Integer j = 0; j < n; ++j) y[j * n + i] += x[i * n + k] * q[k * n + j]; // transposed
        for (Integer i = 0; i < n * n; ++i) a[i] = static_cast<double>(y[i]);
        std::vector<Complex> r(n);
        std::vector<Integer> iter(n);
        Record fail;
        f02afc(n, a.data(), n, r.data(), iter.data(), &fail);
        EXPECT_SUCCESS(fail);
        const double bound = 4.0 * std::pow(n * n * 4.0 * kEps, 1.0 / n);
        for (const Complex &z : r) EXPECT_LE(std::hypot(z.re - 2.0, z.im), bound) << n;
    }
}

TEST(GeneralEigen, StepsDoTheSame)
{
    Random random;
    for (const Integer n : {1, 2, 3, 6, 15, 33})
        for (const auto &[name, A] : general_matrices(n, random)) {
            const std::string what = name + ", order " + std::to_string(n);
            Array<double> h = stored<double>(A), v{n, n, 3};
            std::vector<double> d(n), wr(n), wi(n), xr(n), xi(n);
            std::vector<Integer> rows(n), count(n);
            Integer low, high;
            f01atc(n, 2, h.begin(), h.td, &low, &high, d.data());
            ASSERT_LE(1, low);
            ASSERT_LE(low, high);
            ASSERT_LE(high, n);
            const Dense balanced = h.dense();
            f01akc(n, low, high, h.begin(), h.td, rows.data());
            f01apc(n, low, high, rows.data(), h.begin(), h.td, v.begin(), v.td);
            // A V = V H, H the upper part.
            Dense H = h.dense();
            for (Integer i = 0; i < n; ++i)
                for (Integer j = 0; j < i - 1; ++j) H(i, j) = 0;
            const Dense V = v.dense();
            EXPECT_LE(norm(minus(product(balanced, V), product(V, H))),
                      kTolerance * n * kEps * norm(balanced) * norm(V))
                << what;

            Array<double> copy = h;
            Record fail;
            f02aqc(n, low, high, x02ajc(), h.begin(), h.td, v.begin(), v.td, wr.data(), wi.data(), count.data(), &fail);
            EXPECT_SUCCESS(fail) << what;
            EXPECT_TRUE(v.margin_is_untouched());
            f01auc(n, low, high, n, d.data(), v.begin(), v.td);
            // Scaled by the balancing, the vectors are judged by their own lengths.
            for (Integer j = 0; j < n; ++j) {
                const bool pair = wi[j] > 0.0;
                long double size = 0, residual = 0;
                for (Integer i = 0; i < n; ++i) {
                    const Z x{v(i, j), pair ? v(i, j + 1) : 0.0};
                    size += std::norm(x);
                    Z sum = -Z{wr[j], wi[j]} * x;
                    for (Integer k = 0; k < n; ++k) sum += A(i, k) * Z{v(k, j), pair ? v(k, j + 1) : 0.0};
                    residual += std::norm(sum);
                }
                EXPECT_LE(std::sqrt(residual), 100 * kTolerance * n * kEps * norm(A) * std::sqrt(size))
                    << what << ", " << j;
                if (pair) ++j;
            }
            f02apc(n, kNan, copy.begin(), copy.td, xr.data(), xi.data(), count.data(), &fail);
            EXPECT_SUCCESS(fail) << what;
            if (name == "random" || name == "cycle") {
                std::vector<Complex> r(n), s(n);
                for (Integer i = 0; i < n; ++i) {
                    r[i] = {wr[i], wi[i]};
                    s[i] = {xr[i], xi[i]};
                }
                expect_same_set(r, s, static_cast<double>(1000 * n * kEps * norm(A)), what);
            }
        }
}

TEST(GeneralEigen, BalancingSplitsOffWhatIsTriangular)
{
    double a[] = {1.0, 0.0, 0.0, 5.0, 2.0, 7.0, 6.0, 0.0, 3.0}, d[3];
    Integer low, high;
    f01atc(3, 0, a, 3, &low, &high, d);
    EXPECT_EQ(low, high); // a permuted triangle
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < i; ++j) EXPECT_EQ(a[3 * i + j], 0.0);
    // The example of the documentation.
    double b[] = {1.0, 1024.0, 0.0009765625, 2.0};
    f01atc(2, 2, b, 2, &low, &high, d);
    EXPECT_EQ(b[1], 2.0);
    EXPECT_EQ(b[2], 0.5);
    EXPECT_EQ(d[0], 128.0);
    double z[] = {1.0, 0.0, 0.0, 1.0};
    f01auc(2, low, high, 2, d, z, 2);
    EXPECT_EQ(z[0], 128.0);
    EXPECT_EQ(z[3], 0.25);
}

template <class T>
class Selected : public ::testing::Test {
};
using Scalars = ::testing::Types<double, Complex>;
TYPED_TEST_SUITE(Selected, Scalars);

template <class T>
void select(Integer crit, Integer n, T *a, Integer tda, double wl, double wu, Integer mest, Integer *m, Complex *w,
            Complex *v, Integer tdv, KorError *fail)
{
    if constexpr (is_complex<T>)
        f02gcc(crit, n, a, tda, wl, wu, mest, m, w, v, tdv, fail);
    else
        f02ecc(crit, n, a, tda, wl, wu, mest, m, w, v, tdv, fail);
}

TYPED_TEST(Selected, FindsThoseInTheRange)
{
    using T = TypeParam;
    Random random;
    for (const Integer n : {1, 2, 5, 20, 60})
        for (const Integer crit : {Kor_Select_Modulus, Kor_Select_RealPart}) {
            const Dense A = random_matrix<T>(n, n, random);
            Array<T> a = stored<T>(A);
            const auto before = a.data;
            const double wl = crit == Kor_Select_Modulus ? 0.3 * std::sqrt(n) : -0.4, wu = 0.7 * std::sqrt(n);
            std::vector<Complex> w(n);
            Array<Complex> v{n, n};
            Integer m = -1;
            Record fail;
            select<T>(crit, n, a.begin(), a.td, wl, wu, n, &m, w.data(), v.begin(), v.td, &fail);
            EXPECT_SUCCESS(fail);
            EXPECT_TRUE(same_bits(a.data, before));
            Integer count = 0;
            for (Integer j = 0; j < n; ++j) {
                const double x = crit == Kor_Select_Modulus ? std::hypot(w[j].re, w[j].im) : w[j].re;
                EXPECT_EQ(x >= wl && x <= wu, j < m);
                count += x >= wl && x <= wu;
            }
            EXPECT_EQ(count, m);
            expect_vectors(A, w, v, m, "selected, order " + std::to_string(n));
            for (const int exponent : {1010, -1010}) {
                Array<T> scaled = stored<T>(Z{std::ldexp(1.0L, exponent)} * A);
                std::vector<Complex> x(n);
                Integer count_of_scaled;
                select<T>(crit, n, scaled.begin(), a.td, std::ldexp(wl, exponent), std::ldexp(wu, exponent), n,
                          &count_of_scaled, x.data(), v.begin(), v.td, &fail);
                EXPECT_SUCCESS(fail);
                EXPECT_EQ(count_of_scaled, m);
                for (Integer j = 0; j < m; ++j)
                    EXPECT_NEAR(std::ldexp(x[j].re, -exponent), w[j].re, 1e-12 * n) << exponent;
            }
            if (m < 2) continue;
            // Too many: the count is told, and no vector.
            Array<Complex> none{n, 1};
            Integer told = -1;
            select<T>(crit, n, a.begin(), a.td, wl, wu, 1, &told, w.data(), none.begin(), none.td, &fail);
            EXPECT_REPORT(fail, NE_REQD_EIGVAL, "mest", 1, m);
            EXPECT_EQ(told, m);
            EXPECT_TRUE(std::isnan(none(0, 0).re));
        }
}

TYPED_TEST(Selected, RefusesBadArguments)
{
    using T = TypeParam;
    T a[4]{};
    Complex w[2], v[2];
    Integer m = -5;
    Record fail;
    select<T>(Kor_Select_Modulus + 5, 2, a, 2, 0.0, 1.0, 1, &m, w, v, 1, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "crit");
    select<T>(Kor_Select_Modulus, -1, a, 2, 0.0, 1.0, 1, &m, w, v, 1, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "0", "n", -1);
    select<T>(Kor_Select_Modulus, 2, a, 1, 0.0, 1.0, 1, &m, w, v, 1, &fail);
    EXPECT_REPORT(fail, NE_INT_2, "tda", 1, "n", 2, "tda >= max(1,n)");
    for (const double wu : {0.0, -1.0, kNan}) {
        select<T>(Kor_Select_Modulus, 2, a, 2, 0.0, wu, 1, &m, w, v, 1, &fail);
        EXPECT_REPORT(fail, NE_2_REAL_ARG_LE, "wu", wu, "wl", 0.0, "wu", "wl");
    }
    select<T>(Kor_Select_Modulus, 2, a, 2, 0.0, 1.0, 0, &m, w, v, 1, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "mest", "1", "mest", 0);
    select<T>(Kor_Select_Modulus, 2, a, 2, 0.0, 1.0, 2, &m, w, v, 1, &fail);
    EXPECT_REPORT(fail, NE_INT_2, "tdv", 1, "mest", 2, "tdv >= max(1,mest)");
    EXPECT_EQ(m, -5);
    poison(a[2]);
    select<T>(Kor_Select_Modulus, 2, a, 2, 0.0, 1.0, 1, &m, w, v, 1, &fail);
    EXPECT_REPORT(fail, NE_TOO_MANY_ITERATIONS, 60);
    select<T>(Kor_Select_Modulus, 0, a, 1, 0.0, 1.0, 1, &m, w, v, 1, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_EQ(m, 0);
}

// ---- Pairs

// beta A x = alfa B x within what rounding, and tol, explain.
void expect_pair(const Dense &A, const Dense &B, const std::string &what, std::vector<Complex> *alfa_out = nullptr,
                 std::vector<double> *beta_out = nullptr, double tol = 0.0)
{
    const Integer n = A.n;
    Array<double> a = stored<double>(A), b = stored<double>(B), v{n, n};
    std::vector<Complex> alfa(n);
    std::vector<double> beta(n);
    std::vector<Integer> iter(n, -3);
    Record fail;
    f02bjc(n, a.begin(), a.td, b.begin(), b.td, tol, alfa.data(), beta.data(), 1, v.begin(), v.td, iter.data(), &fail);
    EXPECT_SUCCESS(fail) << what;
    EXPECT_TRUE(v.margin_is_untouched());
    for (Integer j = 0; j < n; ++j) {
        EXPECT_GE(beta[j], 0.0);
        EXPECT_EQ(iter[j], 0);
        const bool pair = alfa[j].im > 0.0;
        long double residual = 0, largest = 0, size = 0;
        for (Integer i = 0; i < n; ++i) {
            Z sum{};
            for (Integer k = 0; k < n; ++k)
                sum += (wide(beta[j]) * A(i, k) - wide(alfa[j]) * B(i, k)) * Z{v(k, j), pair ? v(k, j + 1) : 0.0};
            residual += std::norm(sum);
            const Z x{v(i, j), pair ? v(i, j + 1) : 0.0};
            largest = std::max(largest, std::abs(x));
            size += std::norm(x);
        }
        if (beta[j] == 0.0 && wide(alfa[j]) == Z{}) continue; // undetermined, and so is the vector
        EXPECT_LE(std::abs(largest - 1), 4 * kEps) << what;
        const long double scale = beta[j] * norm(A) + std::abs(wide(alfa[j])) * norm(B);
        EXPECT_LE(std::sqrt(residual),
                  (kTolerance * n * kEps + tol) * std::max(scale, norm(A) * norm(B)) * std::sqrt(size))
            << what << ", vector " << j;
        if (pair) {
            EXPECT_LT(alfa[j + 1].im, 0.0);
            ++j;
        }
    }
    if (alfa_out) *alfa_out = alfa;
    if (beta_out) *beta_out = beta;
}

TEST(Pairs, VectorsSolveTheProblem)
{
    Random random;
    for (const Integer n : {1, 2, 3, 7, 20, 50}) {
        const Dense A = random_matrix<double>(n, n, random), B = random_matrix<double>(n, n, random);
        const std::string what = "order " + std::to_string(n);
        expect_pair(A, B, "random, " + what);
        // B of rank n - 1: an infinite eigenvalue.
        Dense C = B;
        for (Integer j = 0; j < n; ++j) C(n - 1, j) = n > 1 ? C(0, j) : Z{};
        std::vector<Complex> alfa;
        std::vector<double> beta;
        expect_pair(A, C, "singular B, " + what, &alfa, &beta, 1e-13);
        EXPECT_EQ(std::count(beta.begin(), beta.end(), 0.0), 1) << what;
        // A singular pencil: A and B share a null vector, in a direction that no axis shows.
        if (n < 2) continue;
        Dense D = A, E = B;
        for (Integer i = 0; i < n; ++i) {
            D(i, n - 1) = D(i, 0);
            E(i, n - 1) = E(i, 0);
        }
        expect_pair(D, E, "singular pencil, " + what, &alfa, &beta, 1e-13);
        Integer undetermined = 0;
        for (Integer j = 0; j < n; ++j) undetermined += beta[j] == 0.0 && alfa[j].re == 0.0 && alfa[j].im == 0.0;
        EXPECT_GE(undetermined, 1) << what;
    }
    expect_pair(Dense{3, 3}, identity(3), "zero A");
    expect_pair(identity(3), Dense{3, 3}, "zero B");
}

// Elements from one end of the range to the other: the iterations must come to an end.
TEST(GeneralEigen, ConvergesOverTheWholeRange)
{
    Random random;
    const double sizes[] = {0.0, 1.0, -1.0, 1e-300, 1e300, 5e-324, 1e-160, 0.3};
    const auto pick = [&] { return sizes[static_cast<int>(4.0 * random.uniform() + 4.0)]; };
    for (int repeat = 0; repeat < 2000; ++repeat) {
        const Integer n = 2 + repeat % 11;
        std::vector<double> a(n * n), b(n * n), c, beta(n), wr(n), wi(n), v(n * n);
        for (double &x : a) x = pick();
        for (double &x : b) x = pick();
        std::vector<Complex> r(n), z(n * n);
        std::vector<Integer> iter(n);
        Record fail;
        c = a;
        f02agc(n, c.data(), n, r.data(), z.data(), n, iter.data(), &fail);
        ASSERT_EQ(fail.code, NE_NOERROR) << fail.message;
        c = a;
        f02apc(n, x02ajc(), c.data(), n, wr.data(), wi.data(), iter.data(), &fail);
        ASSERT_EQ(fail.code, NE_NOERROR) << fail.message;
        f02bjc(n, a.data(), n, b.data(), n, 0.0, r.data(), beta.data(), 1, v.data(), n, iter.data(), &fail);
        ASSERT_EQ(fail.code, NE_NOERROR) << fail.message;
    }
}

TEST(Pairs, KnownEigenvalues)
{
    // lambda = 1/(1+i), 1/(1-i) and infinity.
    double a[] = {1.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 2.0}, b[] = {1.0, 1.0, 0.0, -1.0, 1.0, 0.0, 0.0, 0.0, 0.0},
           beta[3];
    Complex alfa[3];
    Integer iter[3], finite = 0;
    Record fail;
    f02bjc(3, a, 3, b, 3, 0.0, alfa, beta, 0, nullptr, 0, iter, &fail);
    EXPECT_SUCCESS(fail);
    for (int j = 0; j < 3; ++j) {
        if (beta[j] == 0.0) continue;
        ++finite;
        EXPECT_NEAR(alfa[j].re / beta[j], 0.5, 4e-16);
        EXPECT_NEAR(std::fabs(alfa[j].im / beta[j]), 0.5, 4e-16);
    }
    EXPECT_EQ(finite, 2);
}

TEST(GeneralEigen, WhatIsNotFiniteEndsWithAFailure)
{
    for (const Integer n : {1, 3, 50})
        for (const double bad : {kNan, kInfinity}) {
            std::vector<double> a(n * n, 1.0), b(n * n, 1.0), h, wr(n), wi(n), v(n * n), beta(n);
            std::vector<Complex> r(n), z(n * n);
            std::vector<Integer> iter(n);
            a[n * n - 1] = bad;
            h = a;
            Record fail;
            f02afc(n, h.data(), n, r.data(), iter.data(), &fail);
            EXPECT_REPORT(fail, NE_TOO_MANY_ITERATIONS, 30 * n);
            f02agc(n, h.data(), n, r.data(), z.data(), n, iter.data(), &fail);
            EXPECT_REPORT(fail, NE_TOO_MANY_ITERATIONS, 30 * n);
            f02apc(n, x02ajc(), h.data(), n, wr.data(), wi.data(), iter.data(), &fail);
            EXPECT_REPORT(fail, NE_TOO_MANY_ITERATIONS, 30 * n);
            f02aqc(n, 1, n, x02ajc(), h.data(), n, v.data(), n, wr.data(), wi.data(), iter.data(), &fail);
            EXPECT_REPORT(fail, NE_TOO_MANY_ITERATIONS, 30 * n);
            f02bjc(n, a.data(), n, b.data(), n, 0.0, r.data(), beta.data(), 1, v.data(), n, iter.data(), &fail);
            EXPECT_REPORT(fail, NE_ITERATIONS_QZ, 30 * n);
            f02bjc(n, b.data(), n, a.data(), n, 0.0, r.data(), beta.data(), 1, v.data(), n, iter.data(), &fail);
            EXPECT_REPORT(fail, NE_ITERATIONS_QZ, 30 * n);
        }
}

TEST(GeneralEigen, RefusesBadArguments)
{
    double a[] = {1.0, 2.0, 3.0, 4.0}, v[4], wr[2], wi[2];
    Complex r[2], z[4];
    Integer iter[2];
    Record fail;
    f02afc(0, a, 2, r, iter, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", 0);
    f02agc(2, a, 1, r, z, 2, iter, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tda", 1, "n", 2, "tda", "n");
    f02agc(2, a, 2, r, z, 1, iter, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tdv", 1, "n", 2, "tdv", "n");
    f02apc(2, x02ajc(), a, 1, wr, wi, iter, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tdh", 1, "n", 2, "tdh", "n");
    f02aqc(2, 0, 2, x02ajc(), a, 2, v, 2, wr, wi, iter, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "low", "1", "low", 0);
    f02aqc(2, 2, 1, x02ajc(), a, 2, v, 2, wr, wi, iter, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "high", 1, "low", 2, "high", "low");
    f02aqc(2, 1, 3, x02ajc(), a, 2, v, 2, wr, wi, iter, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_GT, "high", 3, "n", 2, "high", "n");
    f02aqc(2, 1, 2, x02ajc(), a, 2, v, 1, wr, wi, iter, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tdvecs", 1, "n", 2, "tdvecs", "n");
    f02bjc(2, a, 2, v, 1, 0.0, r, wr, 1, v, 2, iter, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tdb", 1, "n", 2, "tdb", "n");
    f02bjc(2, a, 2, v, 2, 0.0, r, wr, 1, v, 1, iter, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tdv", 1, "n", 2, "tdv", "n");
    EXPECT_EQ(a[3], 4.0);
}

} // namespace
} // namespace kor::testing
