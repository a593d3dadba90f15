// Singular value decompositions: of rectangles, triangles and bidiagonal matrices, and the steps between, by reconstruction;
// of bidiagonal matrices to high relative accuracy.
#include "linalg/eigen_reference.hpp"

namespace kor::testing {
namespace {

constexpr double kTolerance = 10.0; // in units of n eps, norms Euclidean

struct BidiagonalCase {
    int n;
    const double *d, *e;
    const double *values;
};
#include "linalg/bidiagonal_data.inc"

// One name for the real and the complex routine.
#define BOTH(name, real, complex)                                                                                      \
    template <class T, class... Arguments>                                                                             \
    void name(Arguments... arguments)                                                                                  \
    {                                                                                                                  \
        if constexpr (is_complex<T>)                                                                                   \
            complex(arguments...);                                                                                     \
        else                                                                                                           \
            real(arguments...);                                                                                        \
    }
BOTH(decompose_rectangle, f02wec, f02xec)
BOTH(decompose_triangle, f02wuc, f02xuc)
BOTH(bidiagonalise, f02swc, f02uwc)
BOTH(apply_right, f02sxc, f02uxc)
BOTH(iterate, f02syc, f02uyc)

template <class T>
class Svd : public ::testing::Test {
};
using Scalars = ::testing::Types<double, Complex>;
TYPED_TEST_SUITE(Svd, Scalars);

template <class T>
std::vector<TestMatrix> rectangles(Integer m, Integer n, Random &random)
{
    const auto formed = [&](auto element) {
        Dense a{m, n};
        for (Integer i = 0; i < m; ++i)
            for (Integer j = 0; j < n; ++j) {
                T x;
                narrow(Z{element(i, j)}, x);
                a(i, j) = wide(x);
            }
        return a;
    };
    const auto number = [&] { return wide(random.number<T>()); };
    return {
        {"random", formed([&](Integer, Integer) { return number(); })},
        {"Hilbert", formed([](Integer i, Integer j) { return Z{1.0L / (i + j + 1)}; })},
        {"graded rows", formed([&](Integer i, Integer) { return std::ldexp(1.0L, -4 * i) * number(); })},
        {"graded columns", formed([&](Integer, Integer j) { return std::ldexp(1.0L, 4 * (j - n)) * number(); })},
        {"ones", formed([](Integer, Integer) { return Z{1.0L}; })},
        {"identity", formed([](Integer i, Integer j) { return Z{i == j ? 1.0L : 0.0L}; })},
        {"Kahan", formed([&](Integer i, Integer j) {
             return Z{std::pow(0.6L, i) * (i == j ? 1.0L : i < j ? -0.8L : 0.0L)};
         })},
        {"zero", formed([](Integer, Integer) { return Z{}; })},
        {"huge", formed([&](Integer, Integer) { return std::ldexp(1.0L, 1010) * number(); })},
        {"tiny", formed([&](Integer, Integer) { return std::ldexp(1.0L, -1010) * number(); })},
    };
}

// Of the greater matrices these.
bool is_worth_its_time(const std::string &name) { return name == "random" || name == "graded rows" || name == "huge"; }

TYPED_TEST(Svd, RectanglesAreReconstructed)
{
    using T = TypeParam;
    Random random;
    const Integer shapes[][2] = {{1, 1},  {1, 4},   {5, 1},   {2, 2},   {3, 2},   {2, 3},   {7, 7},    {12, 5},
                                 {5, 12}, {40, 17}, {17, 40}, {41, 41}, {60, 45}, {45, 60}, {300, 15}, {15, 300}};
    for (const auto &[m, n] : shapes)
        for (const auto &[name, A] : rectangles<T>(m, n, random)) {
            if (std::max(m, n) > 40 && !is_worth_its_time(name)) continue;
            const std::string what = name + ", " + std::to_string(m) + " by " + std::to_string(n);
            const Integer r = std::min(m, n), ncolb = 3;
            const bool tall = m >= n;
            const Dense B = random_matrix<T>(m, ncolb, random);
            Array<T> a = stored<T>(A), b = stored<T>(B), q{m, m}, pt{n, n};
            std::vector<double> sv(r), e(r, 99.0);
            Integer iter = -1, failinfo = -1;
            Record fail;
            decompose_rectangle<T>(m, n, a.begin(), a.td, ncolb, b.begin(), b.td, Boolean{1}, q.begin(), q.td,
                                   sv.data(), Boolean{1}, pt.begin(), pt.td, &iter, e.data(), &failinfo, &fail);
            EXPECT_SUCCESS(fail) << what;
            EXPECT_EQ(failinfo, 0);
            EXPECT_GE(iter, 0);
            for (Integer i = 0; i + 1 < r; ++i) EXPECT_EQ(e[i], 0.0);
            EXPECT_EQ(e[r - 1], 99.0);
            EXPECT_TRUE(a.margin_is_untouched() && b.margin_is_untouched() && pt.margin_is_untouched()) << what;
            EXPECT_TRUE(std::is_sorted(sv.rbegin(), sv.rend()) && sv[r - 1] >= 0.0) << what;
            const Dense Q = tall ? a.dense() : q.dense(), P = adjoint(tall ? pt.dense() : a.dense());
            EXPECT_LE(disorder(Q), kTolerance) << what;
            EXPECT_LE(disorder(P), kTolerance) << what;
            EXPECT_LE(distance(A, product(Q, diagonal(r, sv), adjoint(P))), kTolerance) << what;
            // The leading rows of Q'b are told by Q, the rest by the length.
            const Dense C = b.dense();
            Dense leading{r, ncolb};
            for (Integer i = 0; i < r; ++i)
                for (Integer j = 0; j < ncolb; ++j) leading(i, j) = C(i, j);
            EXPECT_LE(norm(minus(leading, product(adjoint(Q), B))), kTolerance * m * kEps * norm(B)) << what;
            EXPECT_LE(std::abs(norm(C) - norm(B)), kTolerance * m * kEps * norm(B)) << what;

            // One side alone, or none, in a; nothing else is touched.
            std::vector<double> s(r);
            const auto expect_same_values = [&] {
                for (Integer i = 0; i < r; ++i)
                    EXPECT_LE(std::abs(static_cast<long double>(s[i]) - sv[i]),
                              kTolerance * std::max(m, n) * kEps * sv[0])
                        << what;
            };
            T *const none = nullptr;
            double *const no_e = nullptr;
            Array<T> right = stored<T>(A), left = stored<T>(A), bare = stored<T>(A);
            decompose_rectangle<T>(m, n, right.begin(), right.td, 0, none, 0, Boolean{0}, none, 0, s.data(), Boolean{1},
                                   none, 0, &iter, no_e, &failinfo, &fail);
            EXPECT_SUCCESS(fail) << what;
            expect_same_values();
            Dense first{r, n};
            for (Integer i = 0; i < r; ++i)
                for (Integer j = 0; j < n; ++j) first(i, j) = wide(right(i, j));
            EXPECT_LE(disorder(adjoint(first)), kTolerance) << what;
            EXPECT_LE(norm(minus(product(A, adjoint(first)),
                                 product(Q, diagonal(r, sv), product(adjoint(P), adjoint(first))))),
                      4 * kTolerance * std::max(m, n) * kEps * norm(A))
                << what;
            Array<T> q2{m, m};
            decompose_rectangle<T>(m, n, left.begin(), left.td, 0, none, 0, Boolean{1}, q2.begin(), q2.td, s.data(),
                                   Boolean{0}, none, 0, &iter, no_e, &failinfo, &fail);
            EXPECT_SUCCESS(fail) << what;
            expect_same_values();
            EXPECT_LE(disorder(tall ? left.dense() : q2.dense()), kTolerance) << what;
            Array<T> b2 = stored<T>(B);
            decompose_rectangle<T>(m, n, bare.begin(), bare.td, ncolb, b2.begin(), b2.td, Boolean{0}, none, 0, s.data(),
                                   Boolean{0}, none, 0, &iter, no_e, &failinfo, &fail);
            EXPECT_SUCCESS(fail) << what;
            // Vectors may differ, but A'b, in the coordinates of P, not by more than the signs.
            for (Integer i = 0; i < r; ++i)
                for (Integer j = 0; j < ncolb; ++j)
                    if (name == "random") {
                        EXPECT_LE(std::abs(std::abs(wide(b2(i, j))) - std::abs(C(i, j))), 1e-9) << what;
                    }
            EXPECT_LE(std::abs(norm(b2.dense()) - norm(B)), kTolerance * m * kEps * norm(B)) << what;
            expect_same_values();
        }
}

TYPED_TEST(Svd, TrianglesDriverAndSteps)
{
    using T = TypeParam;
    Random random;
    for (const Integer n : {1, 2, 3, 8, 30, 66})
        for (const auto &[name, full] : rectangles<T>(n, n, random)) {
            if (n > 40 && !is_worth_its_time(name)) continue;
            const std::string what = name + ", order " + std::to_string(n);
            Dense R = full;
            for (Integer i = 0; i < n; ++i)
                for (Integer j = 0; j < i; ++j) R(i, j) = 0;
            const Integer ncolb = 2;
            const Dense B = random_matrix<T>(n, ncolb, random);
            Array<T> a = stored<T>(R), b = stored<T>(B), q{n, n};
            for (Integer i = 0; i < n; ++i)
                for (Integer j = 0; j < i; ++j) poison(a(i, j));
            Array<T> a2 = a;
            std::vector<double> sv(n), d(n), e(n, 99.0);
            Integer iter, failinfo;
            Record fail;
            decompose_triangle<T>(n, a.begin(), a.td, ncolb, b.begin(), b.td, Boolean{1}, q.begin(), q.td, sv.data(),
                                  Boolean{1}, &iter, e.data(), &failinfo, &fail);
            EXPECT_SUCCESS(fail) << what;
            EXPECT_LE(disorder(q.dense()), kTolerance) << what;
            EXPECT_LE(disorder(a.dense()), kTolerance) << what;
            EXPECT_LE(distance(R, product(q.dense(), diagonal(n, sv), a.dense())), kTolerance) << what;
            EXPECT_LE(norm(minus(b.dense(), product(adjoint(q.dense()), B))), kTolerance * n * kEps * norm(B)) << what;

            // By steps. The lower triangle and the diagonal stay as they are.
            Array<T> y = stored<T>(B), z = stored<T>(B), q2{n, n};
            const Array<T> before = a2;
            bidiagonalise<T>(n, a2.begin(), a2.td, d.data(), e.data(), ncolb, y.begin(), y.td, Boolean{1}, q2.begin(),
                             q2.td, &fail);
            EXPECT_SUCCESS(fail) << what;
            for (Integer i = 0; i < n; ++i)
                EXPECT_EQ(std::memcmp(&a2(i, 0), &before.data[i * before.td], (i + 1) * sizeof(T)), 0) << what;
            Array<T> kept = a2;
            apply_right<T>(n, kept.begin(), kept.td, ncolb, z.begin(), z.td, &fail);
            EXPECT_TRUE(same_bits(kept.data, a2.data));
            T *const none = nullptr;
            apply_right<T>(n, a2.begin(), a2.td, 0, none, 0, &fail);
            EXPECT_SUCCESS(fail) << what;
            const Dense Q = q2.dense(), PT = a2.dense();
            Dense bidiagonal = diagonal(n, d);
            for (Integer i = 0; i + 1 < n; ++i) bidiagonal(i, i + 1) = e[i];
            EXPECT_LE(disorder(Q), kTolerance) << what;
            EXPECT_LE(disorder(adjoint(PT)), kTolerance) << what;
            EXPECT_LE(distance(R, product(Q, bidiagonal, PT)), kTolerance) << what;
            EXPECT_LE(norm(minus(y.dense(), product(adjoint(Q), B))), kTolerance * n * kEps * norm(B)) << what;
            EXPECT_LE(norm(minus(z.dense(), product(PT, B))), kTolerance * n * kEps * norm(B)) << what;

            iterate<T>(n, d.data(), e.data(), ncolb, y.begin(), y.td, n, q2.begin(), q2.td, n, a2.begin(), a2.td, &iter,
                       &failinfo, &fail);
            EXPECT_SUCCESS(fail) << what;
            EXPECT_LE(distance(R, product(q2.dense(), diagonal(n, d), a2.dense())), 2 * kTolerance) << what;
            EXPECT_LE(norm(minus(y.dense(), product(adjoint(q2.dense()), B))), 2 * kTolerance * n * kEps * norm(B))
                << what;
            for (Integer i = 0; i < n; ++i)
                EXPECT_LE(std::abs(static_cast<long double>(d[i]) - sv[i]), kTolerance * n * kEps * sv[0]) << what;
        }
}

// Graded, clustered and nearly decoupled matrices, values from 1e-300 to 1e+200 in one matrix; oracle of 400 digits.
TEST(BidiagonalSvd, HighRelativeAccuracy)
{
    double worst = 0.0;
    for (const BidiagonalCase &c : kBidiagonalCases) {
        std::vector<double> d(c.d, c.d + c.n), e(c.e, c.e + c.n - 1), sv(c.n), work(c.n), z(c.n * c.n, 0.0);
        for (int i = 0; i < c.n; ++i) z[i * c.n + i] = 1.0;
        std::vector<double> y = z;
        Record fail;
        f02szc(c.n, d.data(), e.data(), sv.data(), 0, nullptr, 0, nullptr, 0, 0, 0, nullptr, 0, 0, work.data(), &fail);
        EXPECT_SUCCESS(fail);
        EXPECT_TRUE(std::equal(d.begin(), d.end(), c.d) && std::equal(e.begin(), e.end(), c.e));
        Integer iter, failinfo;
        f02syc(c.n, d.data(), e.data(), 0, nullptr, 0, c.n, y.data(), c.n, c.n, z.data(), c.n, &iter, &failinfo, &fail);
        EXPECT_SUCCESS(fail);
        for (int i = 0; i < c.n; ++i) {
            const double bound = 8 * c.n * kEps * c.values[i];
            EXPECT_NEAR(d[i], c.values[i], bound) << "case " << &c - kBidiagonalCases << ", value " << i;
            EXPECT_NEAR(sv[i], c.values[i], bound) << "case " << &c - kBidiagonalCases << ", value " << i;
            if (c.values[i] > 0.0) worst = std::max(worst, std::fabs(d[i] - c.values[i]) / (c.n * kEps * c.values[i]));
        }
    }
    RecordProperty("worst_error_over_n_eps", std::to_string(worst));
}

TEST(BidiagonalSvd, TransformsForLeastSquares)
{
    Random random;
    const Integer n = 9;
    std::vector<double> d(n), e(n), sv(n), work(n), b(n), b0;
    for (auto *x : {&d, &e, &b})
        for (double &number : *x) number = random.uniform();
    b0 = b;
    Array<double> y = stored<double>(random_matrix<double>(n, 4, random)), z = stored<double>(identity(n));
    const Dense y0 = y.dense();
    Record fail;
    f02szc(n, d.data(), e.data(), sv.data(), 1, b.data(), 1, y.begin(), y.td, 4, 1, z.begin(), z.td, n, work.data(),
           &fail);
    EXPECT_SUCCESS(fail);
    Dense bidiagonal = diagonal(n, d), rhs{n, 1};
    for (Integer i = 0; i + 1 < n; ++i) bidiagonal(i, i + 1) = e[i];
    for (Integer i = 0; i < n; ++i) rhs(i, 0) = b0[i];
    // B' b = P S (Q' b).
    Dense turned{n, 1};
    for (Integer i = 0; i < n; ++i) turned(i, 0) = wide(sv[i]) * wide(b[i]);
    EXPECT_LE(norm(minus(product(adjoint(bidiagonal), rhs), product(adjoint(z.dense()), turned))), 100 * n * kEps);
    EXPECT_LE(norm(minus(product(adjoint(bidiagonal), y0), product(adjoint(z.dense()), diagonal(n, sv), y.dense()))),
              100 * n * kEps);
}

TEST(LeastSquaresForms, WideMatrices)
{
    Random random;
    for (const auto &[m, n] : {std::pair<Integer, Integer>{1, 1}, {1, 5}, {4, 4}, {6, 11}, {45, 50}}) {
        const Dense A = random_matrix<double>(m, n, random), B = random_matrix<double>(m, 1, random);
        Array<double> a = stored<double>(A);
        std::vector<double> b(m), sv(m), work(m);
        for (Integer i = 0; i < m; ++i) b[i] = B(i, 0).real();
        Record fail;
        f02wbc(m, n, a.begin(), a.td, 1, b.data(), sv.data(), work.data(), m, &fail);
        EXPECT_SUCCESS(fail);
        const Dense PT = a.dense();
        EXPECT_LE(disorder(adjoint(PT)), kTolerance);
        Dense turned{m, 1};
        for (Integer i = 0; i < m; ++i) turned(i, 0) = wide(sv[i]) * wide(b[i]);
        EXPECT_LE(norm(minus(product(adjoint(A), B), product(adjoint(PT), turned))),
                  kTolerance * n * kEps * norm(A) * norm(B));
    }
}

TEST(LeastSquaresForms, TallMatricesByRank)
{
    Random random;
    for (const auto &[m, n] : {std::pair<Integer, Integer>{1, 1}, {5, 1}, {6, 6}, {11, 4}, {60, 45}})
        for (const Integer deficiency : {0, 1}) {
            if (deficiency >= n) continue;
            Dense A = random_matrix<double>(m, n, random);
            if (deficiency == 1)
                for (Integer i = 0; i < m; ++i) A(i, n - 1) = A(i, 0);
            const Dense B = random_matrix<double>(m, 1, random);
            Array<double> a = stored<double>(A), r{n, n}, pt{n, n};
            std::vector<double> b(m), z(n), sv(n, -1.0), work(n);
            for (Integer i = 0; i < m; ++i) b[i] = B(i, 0).real();
            Boolean svd = 7;
            Integer irank = -1;
            Record fail;
            f02wdc(m, n, a.begin(), a.td, 1, b.data(), 1e-10, &svd, &irank, z.data(), sv.data(), 1, r.begin(), r.td, 1,
                   pt.begin(), pt.td, work.data(), n, &fail);
            EXPECT_SUCCESS(fail);
            EXPECT_EQ(svd, deficiency);
            EXPECT_EQ(irank, n - deficiency);
            // R'R = A'A; the upper triangle of a is R.
            const Dense R = r.dense();
            EXPECT_LE(norm(minus(product(adjoint(R), R), product(adjoint(A), A))),
                      kTolerance * m * kEps * norm(A) * norm(A));
            for (Integer i = 0; i < n; ++i)
                for (Integer j = 0; j < n; ++j) EXPECT_EQ(r(i, j), i <= j ? a(i, j) : 0.0);
            Dense leading{n, 1};
            for (Integer i = 0; i < n; ++i) leading(i, 0) = b[i];
            // A'b = R' (Q'b), or with the decomposition of R: P S (U'Q'b).
            Dense expected = product(adjoint(A), B), found = product(adjoint(R), leading);
            if (svd) {
                for (Integer i = 0; i < n; ++i) leading(i, 0) *= wide(sv[i]);
                found = product(adjoint(pt.dense()), leading);
            } else {
                EXPECT_EQ(sv[0], -1.0);
            }
            EXPECT_LE(norm(minus(expected, found)), kTolerance * m * kEps * norm(A) * norm(B)) << m << ", " << n;
            // The reflections that are told in a and z make R of A.
            Dense Q = A;
            for (Integer k = 0; k < n; ++k) {
                if (z[k] == 0.0) continue;
                for (Integer j = 0; j < n; ++j) {
                    Z sum = wide(z[k]) * Q(k, j);
                    for (Integer i = k + 1; i < m; ++i) sum += wide(a(i, k)) * Q(i, j);
                    Q(k, j) -= wide(z[k]) * sum;
                    for (Integer i = k + 1; i < m; ++i) Q(i, j) -= wide(a(i, k)) * sum;
                }
            }
            for (Integer i = 0; i < m; ++i)
                for (Integer j = 0; j < n; ++j)
                    EXPECT_LE(std::abs(Q(i, j) - (i <= j && i < n ? R(i, j) : Z{})), kTolerance * m * kEps * norm(A));
        }
}

TYPED_TEST(Svd, WhatIsNotFiniteEndsWithAFailure)
{
    using T = TypeParam;
    for (const Integer n : {1, 3, 50})
        for (const double bad : {kNan, kInfinity}) {
            std::vector<T> a(n * n), q(n * n), p(n * n);
            narrow(Z{bad}, a[n - 1]);
            std::vector<double> sv(n), e(n), d(n, 1.0), work(n);
            Integer iter = -1, failinfo = -1;
            T *const none = nullptr;
            Record fail;
            decompose_rectangle<T>(n, n, a.data(), n, 0, none, 0, Boolean{1}, none, 0, sv.data(), Boolean{1}, p.data(),
                                   n, &iter, e.data(), &failinfo, &fail);
            EXPECT_REPORT(fail, NE_QR_NOT_CONV, 50 * n);
            EXPECT_EQ(failinfo, n);
            decompose_triangle<T>(n, a.data(), n, 0, none, 0, Boolean{1}, q.data(), n, sv.data(), Boolean{1}, &iter,
                                  e.data(), &failinfo, &fail);
            EXPECT_REPORT(fail, NE_QR_NOT_CONV, 50 * n);
            d[0] = bad;
            iterate<T>(n, d.data(), e.data(), 0, none, 0, 0, none, 0, 0, none, 0, &iter, &failinfo, &fail);
            EXPECT_REPORT(fail, NE_QR_NOT_CONV, 50 * n);
            f02szc(n, d.data(), e.data(), sv.data(), 0, nullptr, 0, nullptr, 0, 0, 0, nullptr, 0, 0, work.data(),
                   &fail);
            EXPECT_REPORT(fail, NE_QR_FAIL_CONV, 50 * n);
            std::vector<double> x(n * n, 1.0), z(n);
            x[0] = bad;
            Boolean svd;
            f02wbc(n, n, x.data(), n, 0, nullptr, sv.data(), work.data(), n, &fail);
            EXPECT_REPORT(fail, NE_QR_FAIL_CONV, 50 * n);
            f02wdc(n, n, x.data(), n, 0, nullptr, 1e-10, &svd, &iter, z.data(), sv.data(), 0, nullptr, 0, 0, nullptr, 0,
                   work.data(), n, &fail);
            EXPECT_REPORT(fail, NE_QR_FAIL_CONV, 50 * n);
        }
}

TYPED_TEST(Svd, RefusesBadArgumentsInOrder)
{
    using T = TypeParam;
    T a[6]{}, b[6]{}, q[9]{}, p[9]{};
    double sv[3] = {7.0, 7.0, 7.0}, e[3], d[3];
    Integer iter = -4, failinfo;
    Record fail;
    const auto rectangle = [&](Integer m, Integer n, Integer tda, Integer ncolb, Integer tdb, Integer tdq,
                               Integer tdpt) {
        decompose_rectangle<T>(m, n, a, tda, ncolb, b, tdb, Boolean{1}, q, tdq, sv, Boolean{1}, p, tdpt, &iter, e,
                               &failinfo, &fail);
    };
    rectangle(-1, -1, -2, -1, 0, 0, 0);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "m", "0", "m", -1);
    rectangle(2, -1, -2, -1, 0, 0, 0);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "0", "n", -1);
    rectangle(3, 2, 1, -1, 0, 0, 0);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tda", 1, "n", 2, "tda", "n");
    rectangle(3, 2, 2, -1, 0, 0, 0);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "ncolb", "0", "ncolb", -1);
    rectangle(3, 2, 2, 2, 1, 0, 0);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tdb", 1, "ncolb", 2, "tdb", "ncolb");
    rectangle(3, 2, 2, 2, 2, 0, 1);
    EXPECT_REPORT(fail, NE_TDP_LT_N);
    rectangle(2, 3, 3, 2, 2, 1, 0);
    EXPECT_REPORT(fail, NE_TDQ_LT_M);
    EXPECT_EQ(iter, -4);
    rectangle(0, 3, 3, 0, 0, 0, 0);
    EXPECT_SUCCESS(fail);
    EXPECT_EQ(iter, 0);
    EXPECT_EQ(sv[0], 7.0);

    decompose_triangle<T>(2, a, 2, 0, b, 0, Boolean{1}, q, 1, sv, Boolean{1}, &iter, e, &failinfo, &fail);
    EXPECT_REPORT(fail, NE_TDQ_LT_N);
    bidiagonalise<T>(2, a, 2, d, e, 0, b, 0, Boolean{1}, q, 1, &fail);
    EXPECT_REPORT(fail, NE_TDQ_LT_N);
    bidiagonalise<T>(2, a, 1, d, e, 0, b, 0, Boolean{1}, q, 1, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tda", 1, "n", 2, "tda", "n");
    apply_right<T>(2, a, 2, 2, b, 1, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tdy", 1, "ncoly", 2, "tdy", "ncoly");
    iterate<T>(-1, d, e, -1, b, 0, -1, b, 0, -1, b, 0, &iter, &failinfo, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "0", "n", -1);
    iterate<T>(2, d, e, 0, b, 0, -1, b, 0, -1, b, 0, &iter, &failinfo, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "nrowy", "0", "nrowy", -1);
    iterate<T>(2, d, e, 0, b, 0, 1, b, 1, -1, b, 0, &iter, &failinfo, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tdy", 1, "n", 2, "tdy", "n");
    iterate<T>(2, d, e, 0, b, 0, 0, b, 0, 2, b, 1, &iter, &failinfo, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tdz", 1, "ncolz", 2, "tdz", "ncolz");
}

TEST(LeastSquaresForms, RefuseBadArguments)
{
    double a[6]{}, b[3], sv[3], work[3], z[3];
    Boolean svd = 9;
    Integer irank = 9;
    Record fail;
    f02wbc(3, 2, a, 2, 1, b, sv, work, 3, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "n", 2, "m", 3, "n", "m");
    f02wbc(2, 3, a, 3, 1, b, sv, work, 1, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "lwork", 1, "m", 2, "lwork", "m");
    f02wdc(2, 3, a, 3, 1, b, 0.1, &svd, &irank, z, sv, 0, a, 0, 0, a, 0, work, 3, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "m", 2, "n", 3, "m", "n");
    f02wdc(3, 2, a, 2, 1, b, 0.1, &svd, &irank, z, sv, 1, a, 1, 0, a, 0, work, 3, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tdr", 1, "n", 2, "tdr", "n");
    f02wdc(3, 2, a, 2, 1, b, 0.1, &svd, &irank, z, sv, 0, a, 1, 1, a, 1, work, 3, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tdpt", 1, "n", 2, "tdpt", "n");
    f02szc(0, a, a, sv, 0, b, 0, a, 0, 0, 0, a, 0, 0, work, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", 0);
    EXPECT_EQ(irank, 9);
}

} // namespace
} // namespace kor::testing
