// Symmetric, Hermitian and symmetric-definite eigenproblems: the drivers and the steps of which they could be made, by
// reconstruction and orthogonality.
#include "linalg/eigen_reference.hpp"

namespace kor::testing {
namespace {

// Errors in units of n eps, norms Euclidean.
constexpr double kTolerance = 10.0;

void values_of(Integer n, double *a, Integer tda, double *r, KorError *fail) { f02aac(n, a, tda, r, fail); }
void values_of(Integer n, Complex *a, Integer tda, double *r, KorError *fail) { f02awc(n, a, tda, r, fail); }
void vectors_of(Integer n, const double *a, Integer tda, double *r, double *v, Integer tdv, KorError *fail)
{
    f02abc(n, a, tda, r, v, tdv, fail);
}
void vectors_of(Integer n, const Complex *a, Integer tda, double *r, Complex *v, Integer tdv, KorError *fail)
{
    f02axc(n, a, tda, r, v, tdv, fail);
}

// The upper triangle must not be read.
template <class T>
void poison_upper(Array<T> &a)
{
    for (Integer i = 0; i < a.m; ++i)
        for (Integer j = i + 1; j < a.n; ++j) poison(a(i, j));
}

void expect_decomposition(const Dense &a, const Dense &v, const std::vector<double> &r, const std::string &what)
{
    EXPECT_TRUE(std::is_sorted(r.begin(), r.end())) << what;
    EXPECT_LE(disorder(v), kTolerance) << what;
    EXPECT_LE(distance(a, product(v, diagonal(a.n, r), adjoint(v))), kTolerance) << what;
}
void expect_same_values(const Dense &a, const std::vector<double> &r, const std::vector<double> &s,
                        const std::string &what)
{
    for (Integer i = 0; i < a.n; ++i)
        EXPECT_LE(std::abs(static_cast<long double>(r[i]) - s[i]), kTolerance * a.n * kEps * norm(a))
            << what << ", " << i;
}

template <class T>
class Symmetric : public ::testing::Test {
};
using Scalars = ::testing::Types<double, Complex>;
TYPED_TEST_SUITE(Symmetric, Scalars);

TYPED_TEST(Symmetric, VectorsReconstructTheMatrix)
{
    using T = TypeParam;
    Random random;
    for (const Integer n : {1, 2, 3, 4, 5, 13, 40, 41, 60})
        for (const auto &[name, A] : symmetric_matrices<T>(n, random)) {
            const std::string what = name + ", order " + std::to_string(n);
            Array<T> a = stored<T>(A), v{n, n, 1};
            poison_upper(a);
            const auto before = a.data;
            std::vector<double> r(n), s(n);
            Record fail;
            vectors_of(n, a.begin(), a.td, r.data(), v.begin(), v.td, &fail);
            EXPECT_SUCCESS(fail) << what;
            EXPECT_TRUE(same_bits(a.data, before)) << what;
            EXPECT_TRUE(v.margin_is_untouched()) << what;
            expect_decomposition(A, v.dense(), r, what);

            // The same in place, and without vectors.
            Array<T> in_place = a;
            vectors_of(n, in_place.begin(), a.td, s.data(), in_place.begin(), a.td, &fail);
            EXPECT_SUCCESS(fail) << what;
            EXPECT_EQ(r, s) << what;
            values_of(n, a.begin(), a.td, s.data(), &fail);
            EXPECT_SUCCESS(fail) << what;
            expect_same_values(A, r, s, what);
        }
}

TYPED_TEST(Symmetric, StepsDoTheSame)
{
    using T = TypeParam;
    Random random;
    for (const Integer n : {1, 2, 3, 7, 20, 64})
        for (const auto &[name, A] : symmetric_matrices<T>(n, random)) {
            const std::string what = name + ", order " + std::to_string(n);
            Array<T> a = stored<T>(A), z{n, n, 1};
            poison_upper(a);
            std::vector<double> d(n), e(n), e2(n);
            if constexpr (is_complex<T>) {
                z = a;
                std::vector<Complex> tau(n);
                f01bcc(n, 0.0, z.begin(), z.td, d.data(), e.data(), tau.data());
            } else {
                f01ajc(n, 0.0, a.begin(), a.td, d.data(), e.data(), z.begin(), z.td);
            }
            EXPECT_EQ(e[0], 0.0);
            Dense tridiagonal = diagonal(n, d);
            for (Integer i = 1; i < n; ++i) tridiagonal(i, i - 1) = tridiagonal(i - 1, i) = e[i];
            const Dense Q = z.dense();
            EXPECT_LE(disorder(Q), kTolerance) << what;
            EXPECT_LE(distance(A, product(Q, tridiagonal, adjoint(Q))), kTolerance) << what;
            if constexpr (!is_complex<T>) {
                std::vector<double> dd(n), ee(n);
                f01agc(n, 0.0, a.begin(), a.td, dd.data(), ee.data(), e2.data());
                for (Integer i = 0; i < n; ++i) {
                    EXPECT_NEAR(dd[i] / std::max<double>(norm(A), 1e-300), d[i] / std::max<double>(norm(A), 1e-300),
                                1e-12);
                    EXPECT_EQ(e2[i], ee[i] * ee[i]);
                }
            }

            Record fail;
            auto dd = d, ee = e;
            ee[0] = kNan; // not read
            f02avc(n, x02ajc(), dd.data(), ee.data(), &fail);
            EXPECT_SUCCESS(fail) << what;
            for (const double x : ee) EXPECT_EQ(x, 0.0);
            if constexpr (is_complex<T>)
                f02ayc(n, 0.0, d.data(), e.data(), z.begin(), z.td, &fail);
            else
                f02amc(n, kNan, d.data(), e.data(), z.begin(), z.td, &fail);
            EXPECT_SUCCESS(fail) << what;
            expect_decomposition(A, z.dense(), d, what);
            expect_same_values(A, d, dd, what);
            EXPECT_TRUE(z.margin_is_untouched());
        }
}

// J. H. Wilkinson, The Algebraic Eigenvalue Problem (1965), p. 309: the greatest pair of W21+ agrees in all digits that a
// double holds; values by mpmath.
TEST(SymmetricEigen, WilkinsonsPairs)
{
    std::vector<double> d(21), e(21, 1.0);
    for (int i = 0; i < 21; ++i) d[i] = std::abs(i - 10);
    Record fail;
    f02avc(21, x02ajc(), d.data(), e.data(), &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_NEAR(d[20], 10.746194182903393, 4e-15);
    EXPECT_NEAR(d[19], 10.746194182903322, 4e-15);
    EXPECT_NEAR(d[0], -1.1254415221199842, 4e-15);
}

TEST(SymmetricEigen, DiagonalMatricesTurnNothing)
{
    double d[] = {3.0, -1.0, 2.0}, e[] = {7.0, 0.0, 0.0}, z[] = {1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 9.0};
    Record fail;
    f02amc(3, x02ajc(), d, e, z, 3, &fail);
    const double expected[] = {2.0, 3.0, 1.0, 5.0, 6.0, 4.0, 8.0, 9.0, 7.0};
    EXPECT_TRUE(std::equal(z, z + 9, expected));
    double a[] = {-7.5}, r, v;
    f02abc(1, a, 1, &r, &v, 1, &fail);
    EXPECT_EQ(r, -7.5);
    EXPECT_EQ(v, 1.0);
}

// Elements from one end of the range to the other, where products underflow: the iteration must still come to an end.
TEST(SymmetricEigen, ConvergesOverTheWholeRange)
{
    Random random;
    const double sizes[] = {0.0, 1.0, -1.0, 1e-300, 1e300, 5e-324, 1e-160, 0.3};
    for (int repeat = 0; repeat < 3000; ++repeat) {
        const Integer n = 3 + repeat % 10;
        std::vector<double> d(n), e(n), a(n * n), r(n), s(n), v(n * n);
        const auto pick = [&] { return sizes[static_cast<int>(4.0 * random.uniform() + 4.0)]; };
        for (Integer i = 0; i < n; ++i) {
            d[i] = pick();
            e[i] = pick();
            for (Integer j = 0; j <= i; ++j) a[i * n + j] = pick();
        }
        double size = 0.0;
        for (Integer i = 0; i < n; ++i)
            for (Integer j = 0; j <= i; ++j) size = std::max(size, std::fabs(a[i * n + j]));
        Record fail;
        f02avc(n, x02ajc(), d.data(), e.data(), &fail);
        ASSERT_EQ(fail.code, NE_NOERROR) << fail.message;
        f02abc(n, a.data(), n, r.data(), v.data(), n, &fail);
        ASSERT_EQ(fail.code, NE_NOERROR) << fail.message;
        f02aac(n, a.data(), n, s.data(), &fail);
        ASSERT_EQ(fail.code, NE_NOERROR) << fail.message;
        for (Integer i = 0; i < n; ++i) ASSERT_NEAR(r[i] / size, s[i] / size, 20 * n * kEps);
    }
}

TEST(DefinitePairs, VectorsSolveTheProblem)
{
    Random random;
    for (const Integer n : {1, 2, 3, 9, 31, 45, 70})
        for (const double spread : {1.0, 1e6}) {
            const Dense A = hermitian<double>(random_matrix<double>(n, n, random));
            const Dense q = random_orthogonal<double>(n, random);
            std::vector<double> values(n);
            for (Integer i = 0; i < n; ++i) values[i] = std::pow(spread, -i / (n - 0.5));
            const Dense B = hermitian<double>(product(q, diagonal(n, values), adjoint(q)));
            Array<double> a = stored<double>(A), b = stored<double>(B), v{n, n};
            poison_upper(a);
            poison_upper(b);
            Array<double> a2 = a, b2 = b, a3 = a, b3 = b;
            std::vector<double> r(n), s(n), dl(n), d(n), e(n);
            Record fail;
            f02aec(n, a.begin(), a.td, b.begin(), b.td, r.data(), v.begin(), v.td, &fail);
            EXPECT_SUCCESS(fail);
            const Dense X = v.dense();
            const long double size = norm(A) * norm(X) * norm(X);
            EXPECT_LE(norm(minus(product(adjoint(X), A, X), diagonal(n, r))), kTolerance * n * kEps * size) << n;
            EXPECT_LE(norm(minus(product(adjoint(X), B, X), identity(n))),
                      kTolerance * n * kEps * norm(B) * norm(X) * norm(X));
            f02adc(n, a2.begin(), a.td, b2.begin(), b.td, s.data(), &fail);
            EXPECT_SUCCESS(fail);
            for (Integer i = 0; i < n; ++i) EXPECT_NEAR(r[i], s[i], static_cast<double>(kTolerance * n * kEps * size));

            // By steps; only the last columns are taken back.
            EXPECT_EQ(f01aec(n, a3.begin(), a.td, b3.begin(), b.td, dl.data()), NE_NOERROR);
            Array<double> z{n, n, 0};
            f01ajc(n, 0.0, a3.begin(), a.td, d.data(), e.data(), z.begin(), n);
            f02amc(n, x02ajc(), d.data(), e.data(), z.begin(), n, &fail);
            const Array<double> unchanged = z;
            const Integer first = n / 2 + 1;
            f01afc(n, first, n + 5, b3.begin(), b.td, dl.data(), z.begin(), n);
            for (Integer j = 0; j < n; ++j)
                for (Integer i = 0; i < n; ++i) {
                    if (j < first - 1) {
                        EXPECT_EQ(z(i, j), unchanged(i, j));
                    }
                }
            const Dense Y = z.dense(), R = minus(product(A, Y), product(B, Y, diagonal(n, d)));
            for (Integer j = first - 1; j < n; ++j) {
                long double residual = 0;
                for (Integer i = 0; i < n; ++i) residual += std::norm(R(i, j));
                EXPECT_LE(std::sqrt(residual),
                          kTolerance * n * kEps * (norm(A) + std::max(-d[0], d[n - 1]) * norm(B)) * norm(Y));
            }
        }
}

TEST(DefinitePairs, RefusesIndefiniteMatrices)
{
    for (const double bad : {0.0, -1.0, kNan, kInfinity}) {
        double a[] = {1.0, 0.0, 0.0, 1.0}, b[] = {1.0, 0.0, 0.0, bad}, r[2], v[4];
        Record fail;
        f02adc(2, a, 2, b, 2, r, &fail);
        EXPECT_REPORT(fail, NE_NOT_POS_DEF);
        f02aec(2, a, 2, b, 2, r, v, 2, &fail);
        EXPECT_REPORT(fail, NE_NOT_POS_DEF);
        EXPECT_EQ(f01aec(2, a, 2, b, 2, r), NE_NOT_POS_DEF);
    }
}

TEST(SymmetricEigen, WhatIsNotFiniteEndsWithAFailure)
{
    for (const Integer n : {1, 2, 5, 50})
        for (const double bad : {kNan, kInfinity, -kInfinity}) {
            const Integer limit = 30 * n;
            std::vector<double> a(n * n, 1.0), b(n * n, 0.0), r(n, 77.0), v(n * n), e(n, 1.0), d(n, 1.0);
            for (Integer i = 0; i < n; ++i) b[i * n + i] = 1.0;
            a[(n - 1) * n] = bad;
            Record fail;
            auto copy = a;
            f02abc(n, a.data(), n, r.data(), v.data(), n, &fail);
            EXPECT_REPORT(fail, NE_TOO_MANY_ITERATIONS, limit);
            f02aac(n, copy.data(), n, r.data(), &fail);
            EXPECT_REPORT(fail, NE_TOO_MANY_ITERATIONS, limit);
            EXPECT_EQ(r[0], 77.0);
            copy = a;
            f02aec(n, copy.data(), n, b.data(), n, r.data(), v.data(), n, &fail);
            EXPECT_REPORT(fail, NE_TOO_MANY_ITERATIONS, limit);
            std::vector<Complex> z(n * n), w(n * n);
            z[(n - 1) * n].re = bad;
            f02axc(n, z.data(), n, r.data(), w.data(), n, &fail);
            EXPECT_REPORT(fail, NE_TOO_MANY_ITERATIONS, limit);
            f02awc(n, z.data(), n, r.data(), &fail);
            EXPECT_REPORT(fail, NE_TOO_MANY_ITERATIONS, limit);
            d[n - 1] = bad;
            f02avc(n, x02ajc(), d.data(), e.data(), &fail);
            EXPECT_REPORT(fail, NE_TOO_MANY_ITERATIONS, limit);
            f02amc(n, x02ajc(), d.data(), e.data(), v.data(), n, &fail);
            EXPECT_REPORT(fail, NE_TOO_MANY_ITERATIONS, limit);
        }
}

TEST(SymmetricEigen, RefusesBadArguments)
{
    double a[] = {1.0, 2.0, 2.0, 1.0}, b[] = {1.0, 0.0, 0.0, 1.0}, r[2] = {5.0, 5.0}, v[4];
    Complex z[] = {{1.0, 0.0}, {}, {}, {1.0, 0.5}}, w[4];
    Record fail;
    f02aac(0, a, 2, r, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", 0);
    f02aac(2, a, 1, r, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tda", 1, "n", 2, "tda", "n");
    f02abc(2, a, 2, r, v, 1, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tdv", 1, "n", 2, "tdv", "n");
    f02adc(2, a, 2, b, 1, r, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tdb", 1, "n", 2, "tdb", "n");
    f02aec(2, a, 2, b, 2, r, v, 1, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tdv", 1, "n", 2, "tdv", "n");
    f02axc(2, z, 2, r, w, 2, &fail);
    EXPECT_REPORT(fail, NE_DIAG_IMAG_NON_ZERO, 1, 1);
    f02awc(2, z, 2, r, &fail);
    EXPECT_REPORT(fail, NE_DIAG_IMAG_NON_ZERO, 1, 1);
    f02avc(0, x02ajc(), r, r, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", 0);
    f02amc(2, x02ajc(), r, r, v, 1, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tdz", 1, "n", 2, "tdz", "n");
    f02ayc(2, x02ajc(), r, r, w, 1, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tdz", 1, "n", 2, "tdz", "n");
    EXPECT_EQ(f01aec(0, a, 2, b, 2, r), NE_INT_ARG_LT);
    EXPECT_EQ(f01aec(2, a, 1, b, 2, r), NE_2_INT_ARG_LT);
    EXPECT_EQ(r[0], 5.0);
    EXPECT_EQ(a[1], 2.0);
}

} // namespace
} // namespace kor::testing
