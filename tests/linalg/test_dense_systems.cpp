// LU and Cholesky factorisations, determinants, inverses, and the solution of systems with them.
#include <kor/f01.h>
#include <kor/f03.h>
#include <kor/f04.h>
#include <kor/x02.h>

#include <limits>

#include "linalg/dense_matrices.hpp"
#include "support/expect_report.hpp"

namespace kor::testing {
namespace {

// Around the orders at which an algorithm changes: 16 columns of a panel, 32 rows for small systems and for blocks.
constexpr Integer kOrders[] = {1, 2, 3, 4, 7, 16, 31, 32, 33, 48, 65, 100};
constexpr double kInfinity = std::numeric_limits<double>::infinity();

template <class T>
struct Lu {
    Matrix<T> a;
    std::vector<Integer> pivot;
    T det;
    Integer dete;
    Record fail;

    Lu(const Matrix<T> &matrix) : a{matrix}, pivot(matrix.n), det{}, dete{}
    {
        if constexpr (is_complex<T>)
            f03ahc(a.n, a.data(), a.n, pivot.data(), &det, &dete, &fail);
        else
            f03afc(a.n, a.data(), a.n, pivot.data(), &det, &dete, &fail);
    }
    Matrix<T> permuted(Matrix<T> b) const
    {
        for (Integer k = 0; k < a.n; ++k)
            for (Integer j = 0; j < b.n; ++j) std::swap(b(k, j), b(pivot[k] - 1, j));
        return b;
    }
    Wide<T> lower(Integer i, Integer k) const { return i == k ? Wide<T>(1) : k < i ? widened(a(i, k)) : Wide<T>(0); }
    Wide<T> upper(Integer k, Integer j) const { return k <= j ? widened(a(k, j)) : Wide<T>(0); }
};

// |PA - LU| <= n eps |L||U|, element by element: the growth of the elements is in the right side.
template <class T>
void expect_factors(const Matrix<T> &a, const Lu<T> &lu, const std::string &what)
{
    const Integer n = a.n;
    const auto pa = lu.permuted(a);
    const auto error = product_error<T>(
        n, n, n, [&](Integer i, Integer k) { return lu.lower(i, k); },
        [&](Integer k, Integer j) { return lu.upper(k, j); }, [&](Integer i, Integer j) { return widened(pa(i, j)); });
    EXPECT_LE(error, (is_complex<T> ? 3.0 : 1.0) * (n + 2)) << what << ", order " << n;
}

TEST(Lu, FactorsReproduceTheMatrix)
{
    Random random;
    for (const Integer n : kOrders) {
        for (const auto &[name, a] : gallery(n, random)) {
            const Lu<double> lu{a};
            if (lu.fail.code == NE_SINGULAR) {
                // By its columns a matrix may be as singular as it likes.
                EXPECT_TRUE(name != "random" && name != "graded rows" && name != "Wilkinson" &&
                            (name != "Frank" || n >= 16))
                    << name << n;
                EXPECT_TRUE(lu.det == 0.0 && lu.dete == 0) << name;
                EXPECT_GE(lu.fail.errnum, 1);
                continue;
            }
            EXPECT_SUCCESS(lu.fail);
            expect_factors(a, lu, name);
        }
        const auto z = random_matrix<Complex>(n, n, random);
        const Lu<Complex> lu{z};
        EXPECT_SUCCESS(lu.fail);
        expect_factors(z, lu, "complex");
    }
    const auto pores = from_elements(kPores1Order, kPores1, false);
    expect_factors(pores, Lu<double>{pores}, "PORES 1");
}

// The choice of pivots, by the definition, from what elimination in extended precision leaves.
TEST(Lu, PivotsAreGreatestInProportionToTheirRows)
{
    Random random;
    for (const Integer n : {5, 20, 40, 70}) {
        auto a = random_matrix<double>(n, n, random);
        for (Integer i = 0; i < n; ++i)
            for (Integer j = 0; j < n; ++j) a(i, j) = std::ldexp(a(i, j), (i * 7) % 40 - 20);
        const Lu<double> lu{a};
        Matrix<long double> r{n, n};
        std::vector<long double> scale(n);
        for (Integer i = 0; i < n; ++i) {
            for (Integer j = 0; j < n; ++j) scale[i] += (r(i, j) = a(i, j)) * r(i, j);
            scale[i] = 1.0L / std::sqrt(scale[i]);
        }
        for (Integer k = 0; k < n; ++k) {
            Integer best = k;
            for (Integer i = k + 1; i < n; ++i)
                if (std::fabs(r(i, k)) * scale[i] > std::fabs(r(best, k)) * scale[best]) best = i;
            ASSERT_EQ(lu.pivot[k], best + 1) << "order " << n << ", stage " << k;
            for (Integer j = 0; j < n; ++j) std::swap(r(k, j), r(best, j));
            std::swap(scale[k], scale[best]);
            for (Integer i = k + 1; i < n; ++i)
                for (Integer j = n - 1; j >= k; --j) r(i, j) -= r(i, k) / r(k, k) * r(k, j);
        }
    }
    // A tie goes to the first row.
    Matrix<double> tie{2, 2};
    tie.a = {3.0, 4.0, -3.0, 4.0};
    EXPECT_EQ(Lu<double>{tie}.pivot[0], 1);
}

TEST(Lu, DeterminantsBeyondTheRange)
{
    const auto value = [](const auto &lu) { return std::ldexp(static_cast<long double>(lu.det), lu.dete); };
    for (const Integer n : {1, 3, 30, 60}) {
        for (const double element : {1e300, 3e-300, 5e-320, -1.5}) {
            Matrix<double> a{n, n};
            for (Integer i = 0; i < n; ++i) a(i, i) = element;
            const Lu<double> lu{a};
            EXPECT_SUCCESS(lu.fail);
            EXPECT_TRUE(std::fabs(lu.det) >= 0.0625 && std::fabs(lu.det) < 1.0);
            EXPECT_EQ(lu.dete % 4, 0);
            EXPECT_EQ(lu.det < 0.0, element < 0.0 && n % 2 == 1);
            const long double log2 = std::log2(std::fabs((long double)lu.det)) + lu.dete;
            EXPECT_NEAR(static_cast<double>(log2 / (n * std::log2(std::fabs((long double)element)))), 1.0, 1e-15);
        }
    }
    Matrix<double> unit{1, 1};
    unit.a = {1.0};
    EXPECT_EQ(Lu<double>{unit}.det, 0.0625);
    EXPECT_EQ(Lu<double>{unit}.dete, 4);
    // The Frank matrix has the determinant 1.
    Random random;
    for (const Integer n : {4, 8, 12})
        EXPECT_NEAR(static_cast<double>(value(Lu<double>{gallery(n, random)[8].matrix})), 1.0, 1e-8);
    // A complex determinant is measured by its greater part.
    Matrix<Complex> z{2, 2};
    z.a = {{1e200, 1e200}, {0.0, 0.0}, {0.0, 0.0}, {0.0, 1e200}};
    const Lu<Complex> lu{z};
    EXPECT_GE(std::fmax(std::fabs(lu.det.re), std::fabs(lu.det.im)), 0.0625);
    EXPECT_DOUBLE_EQ(lu.det.re, -lu.det.im);
    EXPECT_NEAR(std::log2(lu.det.im) + lu.dete, 400 * std::log2(10.0), 1e-9);
}

TEST(Lu, WhatIsSingular)
{
    const auto code_of = [](const Matrix<double> &a) { return Lu<double>{a}.fail.code; };
    Random random;
    for (const Integer n : {2, 20, 40, 100}) {
        const auto regular = random_matrix<double>(n, n, random);
        const auto spoilt = [&](auto spoil) {
            auto a = regular;
            for (Integer k = 0; k < n; ++k) spoil(a, k);
            return a;
        };
        EXPECT_EQ(code_of(spoilt([&](auto &a, Integer k) { a(n / 2, k) = 0.0; })), NE_SINGULAR);
        EXPECT_EQ(code_of(spoilt([&](auto &a, Integer k) { a(k, n / 2) = 0.0; })), NE_SINGULAR);
        if (n <= 20) {
            EXPECT_EQ(code_of(spoilt([&](auto &a, Integer k) { a(n - 1, k) = a(0, k); })), NE_SINGULAR);
        }
        for (const double bad : {kNan, kInfinity})
            for (const Integer at : {0, n - 1}) {
                EXPECT_EQ(code_of(spoilt([&](auto &a, Integer) { a(at, n - 1 - at) = bad; })), NE_SINGULAR);
                EXPECT_EQ(code_of(spoilt([&](auto &a, Integer) { a(at, at) = bad; })), NE_SINGULAR);
            }
    }
    // The threshold of 8 eps, from both sides: rows of length 1 and pivots of 4 and 16 eps.
    const double eps = x02ajc();
    Matrix<double> a{2, 2};
    a.a = {1.0, 0.0, 1.0, 4 * eps};
    EXPECT_EQ(code_of(a), NE_SINGULAR);
    a.a = {1.0, 0.0, 1.0, 16 * eps};
    EXPECT_EQ(code_of(a), NE_NOERROR);
}

// The greatest residual over the norm of its row times that of the solution, in units of eps.
template <class T>
long double solution_error(const Matrix<T> &a, const Matrix<T> &b, const Matrix<T> &x)
{
    long double worst = 0.0L;
    for (Integer r = 0; r < b.n; ++r)
        for (Integer i = 0; i < a.n; ++i) {
            Wide<T> sum = -widened(b(i, r));
            long double row = 0.0L, column = 0.0L;
            for (Integer k = 0; k < a.n; ++k) {
                sum += widened(a(i, k)) * widened(x(k, r));
                row += std::norm(widened(a(i, k)));
                column += std::norm(widened(x(k, r)));
            }
            const long double error = std::abs(sum) / (std::sqrt(row * column) + std::abs(widened(b(i, r))));
            if (!(error <= worst)) worst = error;
        }
    return worst / kEps;
}

TEST(Systems, SolutionsLeaveSmallResiduals)
{
    Random random;
    for (const Integer n : kOrders) {
        for (const Integer nrhs : {1, 3}) {
            const auto b = random_matrix<double>(n, nrhs, random);
            for (const auto &[name, a] : gallery(n, random)) {
                if (name == "Wilkinson" && n > 20)
                    continue; // its elements grow by 2^(n - 1) under any partial pivoting
                Lu<double> lu{a};
                if (lu.fail.code != NE_NOERROR) continue;
                auto x = b;
                Record fail;
                f04ajc(n, nrhs, lu.a.data(), n, lu.pivot.data(), x.data(), nrhs, &fail);
                EXPECT_SUCCESS(fail);
                // The Wilkinson matrix of order 16 may lose the 2^15 by which it grows.
                const double growth = name == "Wilkinson" ? std::ldexp(1.0, n) : 1.0;
                EXPECT_LE(solution_error(a, b, x), 10.0 * n * growth) << name << ", order " << n;

                auto overwritten = a, c = b;
                f04aac(n, nrhs, overwritten.data(), n, b.data(), nrhs, c.data(), nrhs, &fail);
                EXPECT_SUCCESS(fail);
                if (name == "random") {
                    EXPECT_LE(solution_error(a, b, c), 10.0 * n) << n;
                }
                if (nrhs > 1) continue;
                std::vector<double> single(n);
                f04arc(n, a.data(), n, b.data(), single.data(), &fail);
                EXPECT_TRUE(single == x.a) << name << n;
            }
            const auto za = random_matrix<Complex>(n, n, random), zb = random_matrix<Complex>(n, nrhs, random);
            auto copy = za, right = zb, x = zb;
            Record fail;
            f04adc(n, nrhs, copy.data(), n, right.data(), nrhs, x.data(), nrhs, &fail);
            EXPECT_SUCCESS(fail);
            EXPECT_LE(solution_error(za, zb, x), 10.0 * n);
            EXPECT_TRUE(same_bits(copy.a, za.a) && same_bits(right.a, zb.a));
            Lu<Complex> lu{za};
            f04akc(n, nrhs, lu.a.data(), n, lu.pivot.data(), right.data(), nrhs, &fail);
            EXPECT_TRUE(same_bits(right.a, x.a));
        }
    }
}

TEST(Systems, RowsLongerThanTheMatrix)
{
    Random random;
    for (const Integer n : {3, 40}) {
        const Integer td = n + 3, tdb = 4;
        auto a = random_matrix<double>(n, td, random), b = random_matrix<double>(n, tdb, random);
        Matrix<double> tight{n, n}, tight_b{n, 2};
        for (Integer i = 0; i < n; ++i) {
            for (Integer j = 0; j < n; ++j) tight(i, j) = a(i, j);
            for (Integer j = n; j < td; ++j) a(i, j) = kNan;
            for (Integer j = 0; j < tdb; ++j) (j < 2 ? tight_b(i, j) : b(i, j)) = j < 2 ? b(i, j) : kNan;
        }
        Lu<double> expected{tight};
        std::vector<Integer> pivot(n);
        double det;
        Integer dete;
        Record fail;
        f03afc(n, a.data(), td, pivot.data(), &det, &dete, &fail);
        f04ajc(n, 2, a.data(), td, pivot.data(), b.data(), tdb, &fail);
        f04ajc(n, 2, expected.a.data(), n, expected.pivot.data(), tight_b.data(), 2, &fail);
        EXPECT_EQ(det, expected.det);
        for (Integer i = 0; i < n; ++i)
            for (Integer j = 0; j < tdb; ++j) {
                if (j < 2)
                    EXPECT_EQ(b(i, j), tight_b(i, j));
                else
                    EXPECT_TRUE(std::isnan(b(i, j)));
            }
    }
}

template <class T>
struct Cholesky {
    Matrix<T> a;
    std::vector<double> p;
    double det = 0.0;
    Integer dete = 0;
    Record fail;

    Cholesky(const Matrix<T> &matrix) : a{matrix}, p(matrix.n)
    {
        for (Integer i = 0; i < a.n; ++i)
            for (Integer j = 0; j < i; ++j) poison(a(i, j)); // not read
        if constexpr (is_complex<T>)
            f01bnc(a.n, a.data(), a.n, p.data(), &fail);
        else
            f03aec(a.n, a.data(), a.n, p.data(), &det, &dete, &fail);
    }
    Wide<T> lower(Integer i, Integer k) const
    {
        return k < i ? widened(a(i, k)) : k == i ? Wide<T>(1.0L / p[k]) : Wide<T>(0);
    }
};

template <class T>
void expect_cholesky(const Matrix<T> &a, const Cholesky<T> &factor, const std::string &what)
{
    const Integer n = a.n;
    EXPECT_SUCCESS(factor.fail);
    const auto error = product_error<T>(
        n, n, n, [&](Integer i, Integer k) { return factor.lower(i, k); },
        [&](Integer k, Integer j) { return conjugated(factor.lower(j, k)); },
        [&](Integer i, Integer j) { return widened(a(i, j)); });
    EXPECT_LE(error, (is_complex<T> ? 3.0 : 1.0) * (n + 4)) << what << ", order " << n;
    for (Integer i = 0; i < n; ++i)
        for (Integer j = i; j < n; ++j) ASSERT_EQ(std::memcmp(&factor.a(i, j), &a(i, j), sizeof(T)), 0) << what;
}

Matrix<Complex> hermitian(Integer n, Random &random)
{
    const auto b = random_matrix<Complex>(n, n, random);
    return with_order<Complex>(n, [&](Integer i, Integer j) {
        Z sum = i == j ? 0.5L : 0.0L;
        for (Integer k = 0; k < n; ++k) sum += wide(b(i, k)) * std::conj(wide(b(j, k)));
        return narrowed<Complex>(i == j ? Z{sum.real()} : sum);
    });
}

TEST(CholeskyBelow, FactorsReproduceTheMatrixAndKeepIt)
{
    Random random;
    for (const Integer n : kOrders) {
        for (const auto &[name, a] : positive_gallery(n, random)) expect_cholesky(a, Cholesky<double>{a}, name);
        const auto z = hermitian(n, random);
        expect_cholesky(z, Cholesky<Complex>{z}, "Hermitian");
    }
    const auto beam = from_elements(kLfat5Order, kLfat5, true);
    expect_cholesky(beam, Cholesky<double>{beam}, "LFAT5");
}

TEST(CholeskyBelow, Determinants)
{
    Matrix<double> four{1, 1};
    four.a = {4.0};
    const Cholesky<double> one{four};
    EXPECT_EQ(one.p[0], 0.5);
    EXPECT_EQ(one.det, 0.25);
    EXPECT_EQ(one.dete, 4);
    Random random;
    for (const Integer n : {5, 50, 90}) {
        // det min(i, j) = 1, and det of the second difference is n + 1.
        const auto all = positive_gallery(n, random);
        for (const auto &[name, expected] : {std::pair{2, 1.0}, {3, n + 1.0}}) {
            auto a = all[name].matrix;
            double det;
            Integer dete;
            Record fail;
            f03abc(n, a.data(), n, &det, &dete, &fail);
            EXPECT_SUCCESS(fail);
            EXPECT_NEAR(std::ldexp(det, dete), expected, 4 * n * kEps * expected);
        }
        auto large = all[3].matrix;
        for (double &x : large.a) x *= 1e250;
        const Cholesky<double> factor{large};
        EXPECT_NEAR(std::log2(factor.det) + factor.dete, std::log2(n + 1.0) + n * 250 * std::log2(10.0), 1e-9 * n);
    }
}

TEST(CholeskyBelow, TellsTheMinorThatIsNotPositive)
{
    for (const Integer n : {1, 5, 32, 40, 100})
        for (const double bad : {0.0, -1.0, kNan, kInfinity}) {
            const Integer at = n - n / 3 - 1;
            Matrix<double> a{n, n};
            for (Integer i = 0; i < n; ++i) a(i, i) = i == at ? bad : 2.0;
            const Cholesky<double> factor{a};
            EXPECT_REPORT(factor.fail, NE_NOT_POS_DEF);
            EXPECT_EQ(factor.fail.errnum, at + 1) << n << ", " << bad;
            for (Integer i = 0; i < n; ++i) EXPECT_EQ(factor.p[i] > 0.0, i < at);
            for (Integer i = 0; i < n; ++i) EXPECT_EQ(std::memcmp(&factor.a(i, i), &a(i, i), sizeof(double)), 0);
            if (bad <= 0.0) {
                EXPECT_NEAR(std::ldexp(factor.det, factor.dete - at), bad, 1e-13);
            }
        }
    Matrix<Complex> z{2, 2};
    z.a = {{1.0, 0.0}, {2.0, 0.0}, {}, {1.0, 0.5}};
    Cholesky<Complex> refused{z};
    EXPECT_REPORT(refused.fail, NE_DIAG_IMAG_NON_ZERO, 1, 1);
    z.a[3].im = 0.0;
    EXPECT_REPORT(Cholesky<Complex>{z}.fail, NE_NOT_POS_DEF);
}

TEST(CholeskyBelow, SolutionsLeaveSmallResiduals)
{
    Random random;
    for (const Integer n : kOrders)
        for (const Integer nrhs : {1, 3}) {
            Record fail;
            for (const auto &[name, a] : positive_gallery(n, random)) {
                const Cholesky<double> factor{a};
                const auto b = random_matrix<double>(n, nrhs, random);
                Matrix<double> x{n, nrhs};
                f04agc(n, nrhs, factor.a.data(), n, factor.p.data(), b.data(), nrhs, x.data(), nrhs, &fail);
                EXPECT_SUCCESS(fail);
                EXPECT_LE(solution_error(a, b, x), 10.0 * n) << name << n;
            }
            const auto z = hermitian(n, random);
            const Cholesky<Complex> factor{z};
            const auto b = random_matrix<Complex>(n, nrhs, random);
            auto x = b;
            f04awc(n, nrhs, factor.a.data(), n, factor.p.data(), x.data(), nrhs, x.data(), nrhs, &fail);
            EXPECT_SUCCESS(fail);
            EXPECT_LE(solution_error(z, b, x), 10.0 * n);
        }
}

// Systems with integer solutions whose right-hand sides are exact: the refined solution must be those integers.
TEST(Refinement, GivesFullAccuracy)
{
    Random random;
    const auto exact_system = [&](Integer n, Matrix<double> a, bool symmetric) {
        const double greatest = std::fabs(
            *std::max_element(a.a.begin(), a.a.end(), [](double x, double y) { return std::fabs(x) < std::fabs(y); }));
        const double unit = std::ldexp(1.0, std::ilogb(greatest) - 35);
        for (double &x : a.a) x = std::nearbyint(x / unit) * unit;
        if (symmetric)
            for (Integer i = 0; i < n; ++i)
                for (Integer j = 0; j < i; ++j) a(i, j) = a(j, i);
        Matrix<double> x{n, 2}, b{n, 2};
        for (Integer i = 0; i < n; ++i) {
            x(i, 0) = i % 5 - 2.0;
            x(i, 1) = 100.0 - i;
        }
        x(0, 0) = 3.0;
        for (Integer i = 0; i < n; ++i)
            for (Integer j = 0; j < 2; ++j) {
                long double sum = 0.0L; // exact: multiples of `unit` below 2^50 of them
                for (Integer k = 0; k < n; ++k) sum += static_cast<long double>(a(i, k)) * x(k, j);
                b(i, j) = static_cast<double>(sum);
            }
        return std::tuple{a, x, b};
    };
    int refined = 0;
    for (const Integer n : {1, 2, 6, 10, 33, 70}) {
        for (const auto &[name, matrix] : gallery(n, random)) {
            const auto [a, exact, b] = exact_system(n, matrix, false);
            Matrix<double> x{n, 2}, aa{n, n}, bb{n, 2};
            Record fail;
            f04aec(n, 2, a.data(), n, b.data(), 2, x.data(), 2, aa.data(), n, bb.data(), 2, &fail);
            if (fail.code != NE_NOERROR) {
                EXPECT_TRUE(fail.code == NE_SINGULAR || fail.code == NE_ITER_FAIL_CONV);
                EXPECT_NE(name, "random");
                continue;
            }
            ++refined;
            for (Integer i = 0; i < n; ++i)
                for (Integer j = 0; j < 2; ++j) {
                    EXPECT_NEAR(x(i, j), exact(i, j), 2 * kEps * (j == 0 ? 3.0 : 100.0)) << name << ", order " << n;
                    EXPECT_LE(std::fabs(bb(i, j)), 1e-13 * std::fabs(b(i, j)) + 1e-10);
                }
            Lu<double> lu{a};
            Matrix<double> again{n, 2};
            Integer iterations = 0;
            f04ahc(n, 2, a.data(), n, lu.a.data(), n, lu.pivot.data(), b.data(), 2, again.data(), 2, bb.data(), 2,
                   &iterations, &fail);
            EXPECT_SUCCESS(fail);
            EXPECT_TRUE(again.a == x.a);
            EXPECT_TRUE(iterations >= 1 && iterations < 30) << iterations;
        }
        for (const auto &[name, matrix] : positive_gallery(n, random)) {
            auto [a, exact, b] = exact_system(n, matrix, true);
            const Cholesky<double> factor{a};
            if (factor.fail.code != NE_NOERROR) continue;
            Matrix<double> x{n, 2}, bb{n, 2};
            Record fail;
            Integer iterations;
            f04afc(n, 2, factor.a.data(), n, factor.p.data(), b.data(), 2, x.data(), 2, bb.data(), 2, &iterations,
                   &fail);
            if (fail.code == NE_ITER_FAIL_CONV) continue;
            ++refined;
            for (Integer i = 0; i < n; ++i)
                for (Integer j = 0; j < 2; ++j)
                    EXPECT_NEAR(x(i, j), exact(i, j), 2 * kEps * (j == 0 ? 3.0 : 100.0)) << name << ", order " << n;
            std::vector<double> right(n), single(n), p(n), rest(n);
            for (Integer i = 0; i < n; ++i) right[i] = b(i, 1);
            f04asc(n, a.data(), n, right.data(), single.data(), p.data(), rest.data(), &fail);
            EXPECT_SUCCESS(fail);
            for (Integer i = 0; i < n; ++i) EXPECT_NEAR(single[i], exact(i, 1), 2 * kEps * 100.0) << name;
        }
    }
    EXPECT_GE(refined, 60);
}

TEST(Refinement, FailsOnHopelessMatrices)
{
    // Hilbert matrices of order 10 to 12 are within reach of a regular factorisation, but not all of refinement.
    Integer failures = 0;
    for (Integer n = 10; n <= 13; ++n) {
        const auto a = hilbert(n);
        Matrix<double> x{n, 1}, b{n, 1}, aa{n, n}, bb{n, 1};
        b(0, 0) = 1.0;
        Record fail;
        f04aec(n, 1, a.data(), n, b.data(), 1, x.data(), 1, aa.data(), n, bb.data(), 1, &fail);
        failures += fail.code == NE_ITER_FAIL_CONV || fail.code == NE_SINGULAR;
        auto s = a;
        std::vector<double> p(n);
        f04asc(n, s.data(), n, b.data(), x.data(), p.data(), bb.data(), &fail);
        failures += fail.code == NE_ITER_FAIL_CONV || fail.code == NE_NOT_POS_DEF;
    }
    EXPECT_GE(failures, 2);
    // An overflow ends it too.
    const double a[] = {1e-300, 0.0, 0.0, 1.0}, b[] = {1e300, 1.0};
    double x[2], aa[4], bb[2];
    Record fail;
    f04aec(2, 1, a, 2, b, 1, x, 1, aa, 2, bb, 1, &fail);
    EXPECT_REPORT(fail, NE_ITER_FAIL_CONV);
}

TEST(Inverses, TimesTheMatrixGiveTheUnitMatrix)
{
    Random random;
    for (const Integer n : kOrders) {
        const auto unit = [](Integer i, Integer j) { return i == j ? 1.0L : 0.0L; };
        const auto error = [&](const Matrix<double> &x, const Matrix<double> &a) {
            return product_error<double>(n, n, n, x, a, unit);
        };
        auto a = random_matrix<double>(n, n, random);
        const auto kept = a;
        Matrix<double> x{n, n};
        Record fail;
        f01aac(a.data(), n, n, nullptr, x.data(), n, &fail);
        EXPECT_SUCCESS(fail);
        EXPECT_LE(error(x, kept), 10.0 * n);
        EXPECT_TRUE(a.a == Lu<double>{kept}.a.a);
        for (const auto &[name, matrix] : positive_gallery(n, random)) {
            auto b = matrix;
            EXPECT_EQ(f01adc(n, b.data(), n), 0);
            if (name != "Hilbert") {
                EXPECT_LE(error(b, matrix), 20.0 * n) << name << n;
            }
            Matrix<double> refined{n, n};
            Integer iterations;
            b = matrix;
            const Integer status = f01acc(n, b.data(), n, refined.data(), n, &iterations);
            if (name == "Hilbert" && status == 2) continue;
            EXPECT_EQ(status, 0) << name << n;
            EXPECT_LE(error(refined, matrix), 3.0) << name << n;
            for (Integer i = 0; i < n; ++i)
                for (Integer j = 0; j < i; ++j) ASSERT_EQ(refined(i, j), refined(j, i));
        }
    }
    // The inverse of a Hilbert matrix has integer elements: these are correctly rounded, though the condition is 1e10.
    auto h = hilbert(4);
    for (double &v : h.a) v *= 420.0;
    Matrix<double> inverse{4, 4};
    Integer iterations;
    EXPECT_EQ(f01acc(4, h.data(), 4, inverse.data(), 4, &iterations), 0);
    const double expected[] = {16,  -120,  240,  -140,  -120, 1200, -2700, 1680,
                               240, -2700, 6480, -4200, -140, 1680, -4200, 2800};
    for (int i = 0; i < 16; ++i) EXPECT_NEAR(inverse.a[i], expected[i] / 420.0, 2 * kEps * 6480.0 / 420.0);

    double indefinite[] = {1.0, 2.0, 2.0, 1.0}, out[4] = {7.0};
    EXPECT_EQ(f01adc(2, indefinite, 2), 1);
    indefinite[3] = 1.0;
    EXPECT_EQ(f01acc(2, indefinite, 2, out, 2, &iterations), 1);
    EXPECT_EQ(out[0], 7.0);
    EXPECT_EQ(f01acc(2, indefinite, 2, out, 1, &iterations), 3);
    EXPECT_EQ(f01adc(0, indefinite, 2), 3);
    double singular[] = {1.0, 2.0, 2.0, 4.0};
    Record fail;
    f01aac(singular, 2, 2, nullptr, out, 2, &fail);
    EXPECT_REPORT(fail, NE_SINGULAR);
    EXPECT_EQ(fail.errnum, 2);
}

// Each call spoils one argument; the first offence is the one reported, and nothing is touched.
TEST(Systems, RefuseBadArguments)
{
    double a[] = {4.0, 2.0, 2.0, 5.0}, b[] = {1.0, 2.0, 3.0, 4.0}, x[] = {7.0, 7.0, 7.0, 7.0}, p[] = {0.5, 0.5},
           det = 7.0;
    Complex z[] = {{4.0, 0.0}, {2.0, 0.0}, {2.0, 0.0}, {5.0, 0.0}}, zx[] = {{7.0, 0.0}, {7.0, 0.0}}, zdet{7.0, 0.0};
    Integer pivot[] = {1, 2}, dete = 7, iterations = 7;
    Record fail;
    const auto expect_n = [&](auto call) {
        call(0, 2, 1, 1);
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", 0);
        call(2, 1, 0, 0);
        EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tda", 1, "n", 2, "tda", "n");
    };
    const auto expect_nrhs = [&](auto call) {
        expect_n(call);
        call(2, 2, 0, 0);
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "nrhs", "1", "nrhs", 0);
        call(2, 2, 2, 1);
        EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tdb", 1, "nrhs", 2, "tdb", "nrhs");
    };
    expect_n([&](Integer n, Integer tda, Integer, Integer) { f03abc(n, a, tda, &det, &dete, &fail); });
    expect_n([&](Integer n, Integer tda, Integer, Integer) { f03aec(n, a, tda, p, &det, &dete, &fail); });
    expect_n([&](Integer n, Integer tda, Integer, Integer) { f03afc(n, a, tda, pivot, &det, &dete, &fail); });
    expect_n([&](Integer n, Integer tda, Integer, Integer) { f03ahc(n, z, tda, pivot, &zdet, &dete, &fail); });
    expect_n([&](Integer n, Integer tda, Integer, Integer) { f01aac(a, tda, n, nullptr, x, 2, &fail); });
    expect_n([&](Integer n, Integer tda, Integer, Integer) { f01bnc(n, z, tda, p, &fail); });
    expect_n([&](Integer n, Integer tda, Integer, Integer) { f04arc(n, a, tda, b, x, &fail); });
    expect_n([&](Integer n, Integer tda, Integer, Integer) { f04asc(n, a, tda, b, x, p, b, &fail); });
    expect_nrhs([&](Integer n, Integer tda, Integer r, Integer tdb) { f04ajc(n, r, a, tda, pivot, b, tdb, &fail); });
    expect_nrhs([&](Integer n, Integer tda, Integer r, Integer tdb) { f04akc(n, r, z, tda, pivot, zx, tdb, &fail); });
    expect_nrhs([&](Integer n, Integer tda, Integer r, Integer tdb) { f04agc(n, r, a, tda, p, b, tdb, x, 2, &fail); });
    expect_nrhs([&](Integer n, Integer tda, Integer r, Integer tdb) { f04awc(n, r, z, tda, p, z, tdb, zx, 2, &fail); });
    expect_nrhs([&](Integer n, Integer tda, Integer r, Integer tdb) { f04adc(n, r, z, tda, z, tdb, zx, 2, &fail); });
    expect_nrhs([&](Integer n, Integer tda, Integer r, Integer tdb) { f04aac(n, r, a, tda, b, tdb, x, 2, &fail); });
    expect_nrhs(
        [&](Integer n, Integer tda, Integer r, Integer tdb) { f04aec(n, r, a, tda, b, tdb, x, 2, x, 2, x, 2, &fail); });
    expect_nrhs([&](Integer n, Integer tda, Integer r, Integer tdb) {
        f04ahc(n, r, a, tda, a, 2, pivot, b, tdb, x, 2, x, 2, &iterations, &fail);
    });
    expect_nrhs([&](Integer n, Integer tda, Integer r, Integer tdb) {
        f04afc(n, r, a, tda, p, b, tdb, x, 2, x, 2, &iterations, &fail);
    });
    const auto expect_short = [&](const char *name, const char *least) {
        EXPECT_REPORT(fail, NE_2_INT_ARG_LT, name, 1, least, 2, name, least);
    };
    f01aac(a, 2, 2, nullptr, x, 1, &fail);
    expect_short("tdx", "n");
    f04agc(2, 2, a, 2, p, b, 2, x, 1, &fail);
    expect_short("tdx", "nrhs");
    f04aac(2, 2, a, 2, b, 2, x, 1, &fail);
    expect_short("tdc", "nrhs");
    f04aec(2, 2, a, 2, b, 2, x, 2, x, 1, x, 2, &fail);
    expect_short("tdaa", "n");
    f04aec(2, 2, a, 2, b, 2, x, 2, x, 2, x, 1, &fail);
    expect_short("tdbb", "nrhs");

    // What is not a factorisation.
    const double zero_pivot[] = {1.0, 2.0, 0.5, 0.0}, negative[] = {0.5, -0.5};
    const Integer outside[] = {1, 3}, backwards[] = {2, 1};
    f04ajc(2, 1, a, 2, outside, x, 1, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "pivot");
    f04ajc(2, 1, a, 2, backwards, x, 1, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "pivot");
    f04ajc(2, 1, zero_pivot, 2, pivot, x, 1, &fail);
    EXPECT_REPORT(fail, NE_SINGULAR);
    f04agc(2, 1, a, 2, negative, b, 1, x, 1, &fail);
    EXPECT_REPORT(fail, NE_NOT_POS_DEF_FACT);
    for (const double v : x) EXPECT_EQ(v, 7.0);
    EXPECT_TRUE(a[0] == 4.0 && b[0] == 1.0 && det == 7.0 && dete == 7 && iterations == 7 && p[0] == 0.5 &&
                zdet.re == 7.0);
}

} // namespace
} // namespace kor::testing
