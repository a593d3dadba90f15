// Orthogonal factorisations: QR with and without interchanges, RQ, LQ, bidiagonal form; transposition in place.
#include <kor/f01.h>

#include "linalg/dense_matrices.hpp"
#include "support/expect_report.hpp"

namespace kor::testing {
namespace {

// Shapes around the widths at which blocks begin: 8 columns one by one, 16 in a block.
struct Shape {
    Integer m, n;
};
constexpr Shape kTall[] = {{1, 1},   {2, 1},   {2, 2},   {3, 2},   {5, 5},   {9, 8},  {12, 9},
                           {18, 17}, {33, 20}, {34, 33}, {70, 40}, {65, 65}, {100, 3}};

template <class T>
struct Routines;
template <>
struct Routines<double> {
    static constexpr auto qr = f01qcc;
    static constexpr auto apply = f01qdc;
    static constexpr auto form = f01qec;
    static constexpr auto rq = f01qjc;
    static constexpr auto form_rows = f01qkc;
};
template <>
struct Routines<Complex> {
    static constexpr auto qr = f01rcc;
    static constexpr auto apply = f01rdc;
    static constexpr auto form = f01rec;
    static constexpr auto rq = f01rjc;
    static constexpr auto form_rows = f01rkc;
};

// One complex number alone is reflected by 1 - gamma zeta^2, with zeta^2 up to 2: its relative error of some four roundings counts
// twice in the factor, and twice again in the square of its modulus.
constexpr double kOfOneReflection = 20.0;

// |conj(Q)' Q - I|, for orthonormal columns or rows, in units of eps.
template <class T>
long double departure(const Matrix<T> &q, bool rows)
{
    const Integer k = rows ? q.m : q.n, length = rows ? q.n : q.m;
    long double worst = 0.0L;
    for (Integer i = 0; i < k; ++i)
        for (Integer j = 0; j <= i; ++j) {
            Wide<T> sum = i == j ? -1.0L : 0.0L;
            for (Integer l = 0; l < length; ++l)
                sum += rows ? widened(q(i, l)) * conjugated(widened(q(j, l)))
                            : conjugated(widened(q(l, i))) * widened(q(l, j));
            if (!(std::abs(sum) <= worst)) worst = std::abs(sum);
        }
    return worst / kEps;
}

// The greatest column of A - Q R, over the length of that column of A, in units of eps.
template <class T, class R>
long double reconstruction_error(const Matrix<T> &a, const Matrix<T> &q, const R &r, Integer inner)
{
    long double worst = 0.0L;
    for (Integer j = 0; j < a.n; ++j) {
        long double error = 0.0L, length = 0.0L;
        for (Integer i = 0; i < a.m; ++i) {
            Wide<T> sum = -widened(a(i, j));
            length += std::norm(sum);
            for (Integer k = 0; k < inner; ++k) sum += widened(q(i, k)) * r(k, j);
            error += std::norm(sum);
        }
        if (!(error <= worst * worst * length)) worst = std::sqrt(error / length);
    }
    return worst / kEps;
}

template <class T>
void expect_qr(const Matrix<T> &a, const std::string &what)
{
    using R = Routines<T>;
    const Integer m = a.m, n = a.n;
    SCOPED_TRACE(what + " " + std::to_string(m) + " x " + std::to_string(n));
    auto factor = a;
    std::vector<T> zeta(n);
    Record fail;
    R::qr(m, n, factor.data(), n, zeta.data(), &fail);
    EXPECT_SUCCESS(fail);
    const auto upper = [&](Integer i, Integer j) { return i <= j ? widened(factor(i, j)) : Wide<T>(0); };
    for (Integer k = 0; k < n; ++k) EXPECT_EQ(wide(factor(k, k)).imag(), 0.0L);
    if (!is_complex<T> && m == n) {
        EXPECT_EQ(wide(zeta[n - 1]), Z{});
    }

    // All of Q, and its first columns alone.
    for (const Integer ncolq : {m, n, n / 2}) {
        Matrix<T> q{m, std::max(n, ncolq)};
        for (Integer i = 0; i < m; ++i) std::copy(&factor(i, 0), &factor(i, 0) + n, &q(i, 0));
        R::form(Kor_ElementsSeparate, m, n, ncolq, q.data(), q.n, zeta.data(), &fail);
        EXPECT_SUCCESS(fail);
        Matrix<T> columns{m, ncolq};
        for (Integer i = 0; i < m; ++i) std::copy(&q(i, 0), &q(i, 0) + ncolq, &columns(i, 0));
        EXPECT_LE(departure(columns, false), 2.0 * n + kOfOneReflection);
        if (ncolq >= n) {
            EXPECT_LE(reconstruction_error(a, columns, upper, n), 2.0 * n + 8);
        }
        if (ncolq != m) continue;
        // conj(Q)' A = R and Q R = A by the reflections themselves; the scalars on the diagonal this time.
        auto details = factor;
        for (Integer k = 0; k < n; ++k) details(k, k) = zeta[k];
        auto b = a;
        R::apply(ConjugateTranspose, Kor_ElementsIn, m, n, details.data(), n, nullptr, n, b.data(), n, &fail);
        EXPECT_SUCCESS(fail);
        EXPECT_LE(reconstruction_error(
                      a, columns, [&](Integer i, Integer j) { return widened(b(i, j)); }, m),
                  4.0 * n + 16);
        for (Integer i = 0; i < m; ++i)
            for (Integer j = 0; j < n; ++j) narrow(Z(upper(i, j)), b(i, j));
        R::apply(NoTranspose, Kor_ElementsIn, m, n, details.data(), n, nullptr, n, b.data(), n, &fail);
        Matrix<T> unit{m, m};
        for (Integer i = 0; i < m; ++i) narrow(Z{1.0L}, unit(i, i));
        EXPECT_LE(reconstruction_error(
                      a, unit, [&](Integer i, Integer j) { return widened(b(i, j)); }, m),
                  4.0 * n + 16);
    }
}

TEST(Qr, FactorsReproduceTheMatrix)
{
    Random random;
    for (const auto [m, n] : kTall) {
        expect_qr(random_matrix<double>(m, n, random), "random");
        expect_qr(random_matrix<Complex>(m, n, random), "complex");
    }
    for (const Integer n : {4, 16, 40})
        for (const auto &[name, a] : gallery(n, random)) expect_qr(a, name);
    expect_qr(from_elements(kPores1Order, kPores1, false), "PORES 1");
    // Columns that are zero already, that are dependent, and that are negligible below the diagonal.
    auto special = random_matrix<double>(40, 36, random);
    auto special_complex = random_matrix<Complex>(40, 36, random);
    for (Integer i = 0; i < 40; ++i) {
        special(i, 5) = special(i, 20) = 0.0;
        special(i, 9) = special(i, 8);
        special(i, 0) = i == 0 ? 1e300 : 1e280;
        special_complex(i, 0) = i == 0 ? Complex{1e300, 0.0} : Complex{1e280, 1e279};
        special_complex(i, 1) = i == 1 ? Complex{3.0, 4.0} : Complex{};
    }
    special(0, 5) = special(0, 20) = 1.0;
    expect_qr(special, "special");
    expect_qr(special_complex, "special, complex");
}

template <class T>
void expect_rq(const Matrix<T> &a)
{
    using R = Routines<T>;
    const Integer m = a.m, n = a.n;
    SCOPED_TRACE(std::to_string(m) + " x " + std::to_string(n));
    auto factor = a;
    std::vector<T> zeta(m);
    Record fail;
    R::rq(m, n, factor.data(), n, zeta.data(), &fail);
    EXPECT_SUCCESS(fail);
    for (const Integer nrowp : {n, m, m / 2}) {
        Matrix<T> p{std::max(m, nrowp), n};
        std::copy(factor.a.begin(), factor.a.end(), p.a.begin());
        if (nrowp == m)
            for (Integer k = 0; k < m; ++k) p(k, k) = zeta[k];
        R::form_rows(nrowp == m ? Kor_ElementsIn : Kor_ElementsSeparate, m, n, nrowp, p.data(), n, zeta.data(), &fail);
        EXPECT_SUCCESS(fail);
        p.a.resize(static_cast<std::size_t>(nrowp) * n);
        p.m = nrowp;
        EXPECT_LE(departure(p, true), 2.0 * m + kOfOneReflection);
        if (nrowp < m) continue;
        // Row i of R P', over the length of that row of A.
        for (Integer i = 0; i < m; ++i) {
            long double error = 0.0L, length = 0.0L;
            for (Integer j = 0; j < n; ++j) {
                Wide<T> sum = -widened(a(i, j));
                length += std::norm(sum);
                for (Integer k = i; k < m; ++k) sum += widened(factor(i, k)) * widened(p(k, j));
                error += std::norm(sum);
            }
            EXPECT_LE(std::sqrt(error), (2.0 * m + 8) * kEps * std::sqrt(length)) << "row " << i;
        }
    }
    for (Integer k = 0; k < m; ++k) EXPECT_EQ(wide(factor(k, k)).imag(), 0.0L);
}

TEST(Rq, FactorsReproduceTheMatrix)
{
    Random random;
    for (const auto [n, m] : kTall) {
        expect_rq(random_matrix<double>(m, n, random));
        expect_rq(random_matrix<Complex>(m, n, random));
        // An upper trapezium keeps its zeros left of the diagonal.
        auto trapezium = random_matrix<double>(m, n, random);
        for (Integer i = 0; i < m; ++i) std::fill(&trapezium(i, 0), &trapezium(i, 0) + i, 0.0);
        expect_rq(trapezium);
        Record fail;
        std::vector<double> zeta(m);
        f01qjc(m, n, trapezium.data(), n, zeta.data(), &fail);
        for (Integer i = 0; i < m; ++i)
            for (Integer j = 0; j < i; ++j) EXPECT_EQ(trapezium(i, j), 0.0);
    }
    auto special = random_matrix<double>(34, 40, random);
    auto special_complex = random_matrix<Complex>(34, 40, random);
    for (Integer j = 0; j < 40; ++j) {
        special(33, j) = j == 33 ? 1e300 : 1e280;
        special(20, j) = special(19, j);
        special(3, j) = j == 3 ? -2.0 : 0.0;
        special_complex(33, j) = j == 33 ? Complex{3.0, 4.0} : Complex{};
    }
    expect_rq(special);
    expect_rq(special_complex);
}

TEST(Companions, TurnWithTheirMatrix)
{
    Random random;
    for (const auto [m, n] : kTall) {
        const auto a = random_matrix<double>(m, n, random), c = random_matrix<double>(m, 3, random);
        auto factor = a, turned = c, expected = a, by_qr = c;
        std::vector<double> z(n), zeta(n);
        Record fail;
        f01qac(m, n, factor.data(), n, turned.data(), 3, z.data(), &fail);
        EXPECT_SUCCESS(fail);
        f01qcc(m, n, expected.data(), n, zeta.data(), &fail);
        f01qdc(Transpose, Kor_ElementsSeparate, m, n, expected.data(), n, zeta.data(), 3, by_qr.data(), 3, &fail);
        EXPECT_TRUE(factor.a == expected.a && turned.a == by_qr.a && z == zeta);

        // A P = (L 0): with the unit matrix for a companion, that becomes P'.
        Matrix<double> wide{n, m}, unit{m, m};
        for (Integer i = 0; i < n; ++i)
            for (Integer j = 0; j < m; ++j) wide(i, j) = a(j, i);
        for (Integer i = 0; i < m; ++i) unit(i, i) = 1.0;
        auto lower = wide;
        f01qbc(n, m, lower.data(), m, unit.data(), m, z.data(), &fail);
        EXPECT_SUCCESS(fail);
        EXPECT_LE(departure(unit, true), 2.0 * n + 8);
        for (Integer i = 0; i < n; ++i)
            for (Integer j = 0; j < m; ++j) {
                long double sum = -wide(i, j);
                for (Integer k = 0; k <= i; ++k) sum += static_cast<long double>(lower(i, k)) * unit(k, j);
                EXPECT_LE(std::fabs(sum), (2.0 * n + 8) * kEps * std::sqrt(m));
            }
        auto alone = wide;
        f01qbc(n, m, alone.data(), m, nullptr, 0, z.data(), &fail);
        EXPECT_TRUE(alone.a == lower.a);
    }
}

// Each diagonal element is at least as great as what the rows from it on leave of later columns.
void expect_longest_first(const Matrix<double> &factor, double slack)
{
    for (Integer k = 0; k < std::min(factor.m, factor.n); ++k)
        for (Integer j = k + 1; j < factor.n; ++j) {
            long double length = 0.0L;
            for (Integer i = k; i <= std::min(j, factor.m - 1); ++i)
                length += static_cast<long double>(factor(i, j)) * factor(i, j);
            EXPECT_LE(std::sqrt(length), std::fabs(factor(k, k)) * (1 + 1e-8) + slack) << k << ' ' << j;
        }
}

// What the first reflection leaves of columns that are all but parallel cannot be told from their lengths.
TEST(PivotedQr, MeasuresAgainWhatLengthsNoLongerTell)
{
    Random random;
    for (const Integer n : {12, 150}) {
        auto a = random_matrix<double>(n, n, random);
        for (Integer j = 0; j < n; ++j)
            for (Integer i = 0; i < n; ++i) a(i, j) = 1.0 + std::ldexp(a(i, j), -30 - (j * 5) % 7);
        std::vector<double> zeta(n), work(2 * n);
        std::vector<Integer> perm(n);
        Record fail;
        f01qfc(VariablePivot, n, n, a.data(), n, zeta.data(), perm.data(), work.data(), &fail);
        EXPECT_SUCCESS(fail);
        expect_longest_first(a, 1e-14 * n);
    }
}

TEST(PivotedQr, TakesTheLongestColumnAndFindsTheRank)
{
    Random random;
    for (const auto [m, n] : {Shape{6, 6}, {20, 12}, {40, 40}, {5, 9}, {1, 4}, {30, 34}, {170, 140}, {150, 190}}) {
        for (const Integer rank : {std::min(m, n), std::min(m, n) / 2}) {
            // Of the rank given, with columns of many sizes.
            const auto left = random_matrix<double>(m, rank, random), right = random_matrix<double>(rank, n, random);
            Matrix<double> a{m, n};
            for (Integer i = 0; i < m; ++i)
                for (Integer j = 0; j < n; ++j)
                    for (Integer k = 0; k < rank; ++k) a(i, j) += std::ldexp(left(i, k) * right(k, j), j % 7);
            auto factor = a;
            const Integer steps = std::min(m, n);
            std::vector<double> zeta(steps), work(2 * n);
            std::vector<Integer> perm(steps);
            Record fail;
            f01qfc(VariablePivot, m, n, factor.data(), n, zeta.data(), perm.data(), work.data(), &fail);
            EXPECT_SUCCESS(fail);
            auto permuted = a;
            for (Integer k = 0; k < steps; ++k)
                for (Integer i = 0; i < m; ++i) std::swap(permuted(i, k), permuted(i, perm[k] - 1));
            const double scale = std::fabs(factor(0, 0));
            expect_longest_first(factor, 1e-14 * scale);
            for (Integer k = rank; k < steps; ++k) EXPECT_LE(std::fabs(factor(k, k)), 1e-13 * scale);
            if (rank > 0) {
                EXPECT_GE(std::fabs(factor(rank - 1, rank - 1)), 1e-9 * scale);
            }
            if (m < n) continue;
            auto q = factor;
            f01qec(Kor_ElementsSeparate, m, n, n, q.data(), n, zeta.data(), &fail);
            EXPECT_LE(departure(q, false), 2.0 * n + 8);
            EXPECT_LE(reconstruction_error(
                          permuted, q, [&](Integer i, Integer j) { return i <= j ? factor(i, j) : 0.0L; }, n),
                      2.0 * n + 8);
        }
        // Without interchanges it is the plain factorisation.
        auto plain = random_matrix<double>(m, n, random), fixed = plain;
        if (m < n) continue;
        std::vector<double> zeta(n), z(n), work(2 * n);
        std::vector<Integer> perm(n);
        Record fail;
        f01qcc(m, n, plain.data(), n, zeta.data(), &fail);
        f01qfc(FixedPivot, m, n, fixed.data(), n, z.data(), perm.data(), work.data(), &fail);
        EXPECT_TRUE(plain.a == fixed.a && z == zeta && perm[n - 1] == n);
    }
}

TEST(Bidiagonal, FactorsReproduceTheTriangle)
{
    Random random;
    for (const Integer n : {1, 2, 3, 8, 33}) {
        auto r = random_matrix<double>(n, n, random);
        Matrix<double> kept = r, c{n, n}, pt{n, n}, y{n, n};
        for (Integer i = 0; i < n; ++i)
            for (Integer j = 0; j < i; ++j) r(i, j) = kNan; // not read
        for (Integer i = 0; i < n; ++i) pt(i, i) = y(i, i) = 1.0;
        std::vector<double> d(n), e(n), b(n, 1.0), ones(n, 1.0);
        Record fail;
        f01lzc(n, r.data(), n, c.data(), n, 1, b.data(), 1, 1, y.data(), n, n, 1, pt.data(), n, n, d.data(), e.data(),
               &fail);
        EXPECT_SUCCESS(fail);
        EXPECT_LE(departure(c, false), 4.0 * n + 8);
        EXPECT_LE(departure(pt, true), 4.0 * n + 8);
        for (Integer i = 0; i < n; ++i) {
            long double qb = -b[i];
            for (Integer j = 0; j < n; ++j) {
                EXPECT_NEAR(y(i, j), c(j, i), 4 * (n + 2) * kEps);
                qb += c(j, i);
                long double sum = j >= i ? -kept(i, j) : 0.0L;
                for (Integer k = 0; k < n; ++k)
                    sum += static_cast<long double>(c(i, k)) *
                           (d[k] * static_cast<long double>(pt(k, j)) +
                            (k + 1 < n ? e[k] * static_cast<long double>(pt(k + 1, j)) : 0.0L));
                EXPECT_LE(std::fabs(sum), 10.0 * (n + 2) * kEps);
            }
            EXPECT_LE(std::fabs(qb), 4 * (n + 2) * kEps * std::sqrt(n));
        }
        // In place, and with nothing but the bidiagonal.
        std::vector<double> d2(n), e2(n);
        f01lzc(n, r.data(), n, r.data(), n, 0, nullptr, 0, 0, nullptr, 0, 0, 0, nullptr, 0, 0, d2.data(), e2.data(),
               &fail);
        EXPECT_TRUE(d2 == d && std::equal(e2.begin(), e2.end() - 1, e.begin()));
    }
}

TEST(Transposition, InPlace)
{
    for (Integer m = 0; m < 14; ++m)
        for (const Integer n : {0, 1, 2, 5, 8, 9, 12, 24, 35}) {
            std::vector<double> a(m * n), expected(m * n);
            for (Integer i = 0; i < m; ++i)
                for (Integer j = 0; j < n; ++j) expected[j * m + i] = a[i * n + j] = 100.0 * i + j;
            Record fail;
            f01crc(m, n, a.data(), &fail);
            EXPECT_SUCCESS(fail);
            EXPECT_EQ(a, expected) << m << " x " << n;
        }
}

TEST(Orthogonal, RefuseBadArguments)
{
    Record fail;
    double a[] = {1.0, 2.0, 3.0, 4.0}, zeta[] = {7.0, 7.0}, work[4];
    Complex z[4] = {}, theta[2] = {};
    Integer perm[2];
    const auto less = [&](const char *name, const char *least, Integer value) {
        EXPECT_REPORT(fail, NE_INT_ARG_LT, name, least, name, value);
    };
    const auto pair = [&](const char *name, Integer value, const char *least, Integer bound) {
        EXPECT_REPORT(fail, NE_2_INT_ARG_LT, name, value, least, bound, name, least);
    };
    f01qcc(1, 2, a, 2, zeta, &fail);
    pair("m", 1, "n", 2);
    f01qcc(2, -1, a, 2, zeta, &fail);
    less("n", "0", -1);
    f01qcc(2, 2, a, 1, zeta, &fail);
    pair("tda", 1, "n", 2);
    f01rcc(1, 2, z, 2, theta, &fail);
    pair("m", 1, "n", 2);
    f01qdc(0, 0, 2, 2, a, 2, zeta, 1, a, 1, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "trans");
    f01rdc(Transpose, Kor_ElementsIn, 2, 2, z, 2, theta, 1, z, 1, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "trans");
    f01qdc(Transpose, Kor_ElementsIn - 1, 2, 2, a, 2, zeta, 1, a, 1, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "wheret");
    f01qdc(Transpose, Kor_ElementsIn, 2, 2, a, 2, zeta, -1, a, 1, &fail);
    less("ncolb", "0", -1);
    f01qdc(Transpose, Kor_ElementsIn, 2, 2, a, 2, zeta, 2, a, 1, &fail);
    pair("tdb", 1, "ncolb", 2);
    f01qec(0, 2, 2, 1, a, 2, zeta, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "wheret");
    f01qec(Kor_ElementsIn, 2, 1, 3, a, 3, zeta, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_GT, "ncolq", 3, "m", 2, "ncolq", "m");
    f01rec(Kor_ElementsIn, 2, 1, 2, z, 1, theta, &fail);
    pair("tda", 1, "ncolq", 2);
    f01qjc(2, 1, a, 2, zeta, &fail);
    pair("n", 1, "m", 2);
    f01rjc(-1, 1, z, 2, theta, &fail);
    less("m", "0", -1);
    f01qkc(Kor_ElementsIn, 1, 2, 3, a, 2, zeta, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_GT, "nrowp", 3, "n", 2, "nrowp", "n");
    f01rkc(9, 1, 2, 1, z, 2, theta, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "wheret");
    f01qfc(TopPivot, 2, 2, a, 2, zeta, perm, work, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "pivot");
    f01qfc(FixedPivot, 2, 2, a, 1, zeta, perm, work, &fail);
    pair("tda", 1, "n", 2);
    f01qac(2, 2, a, 2, a, -1, zeta, &fail);
    less("tdc", "0", -1);
    f01qbc(2, 1, a, 2, a, 1, zeta, &fail);
    pair("n", 1, "m", 2);
    f01crc(-1, 2, a, &fail);
    less("m", "0", -1);
    f01lzc(0, a, 2, a, 2, 0, a, 0, 0, a, 0, 0, 0, a, 0, 0, a, a, &fail);
    less("n", "1", 0);
    f01lzc(2, a, 2, a, 1, 0, a, 0, 0, a, 0, 0, 0, a, 0, 0, a, a, &fail);
    pair("tdc", 1, "n", 2);
    f01lzc(2, a, 2, a, 2, 0, a, 0, 1, a, 2, 0, 0, a, 0, 0, a, a, &fail);
    less("ncol_y", "1", 0);
    f01lzc(2, a, 2, a, 2, 0, a, 0, 0, a, 2, 0, 1, a, 1, 2, a, a, &fail);
    pair("tdz", 1, "ncol_z", 2);
    // No columns are nothing to do.
    f01qcc(2, 0, a, 0, zeta, &fail);
    EXPECT_SUCCESS(fail);
    const double untouched[] = {1.0, 2.0, 3.0, 4.0};
    EXPECT_TRUE(std::equal(untouched, untouched + 4, a) && zeta[0] == 7.0);
}

} // namespace
} // namespace kor::testing
