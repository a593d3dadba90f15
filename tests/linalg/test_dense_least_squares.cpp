// Least squares and its covariances, variable bands, and factorisations of matrices that are not positive definite.
#include <kor/f01.h>
#include <kor/f04.h>

#include <limits>

#include "linalg/dense_matrices.hpp"
#include "support/expect_report.hpp"

namespace kor::testing {
namespace {

struct Fit {
    Matrix<double> a;
    std::vector<double> b, work;
    Boolean svd = 9;
    double sigma = -1.0;
    Integer rank = -1;
    Record fail;

    template <class Solver>
    Fit(Solver solver, const Matrix<double> &matrix, const std::vector<double> &right, double tol)
        : a{matrix}, b{right}, work(4 * matrix.n, -7.0)
    {
        b.resize(std::max(a.m, a.n), -7.0);
        solver(a.m, a.n, a.data(), a.n, b.data(), tol, &svd, &sigma, &rank, work.data(), &fail);
    }
};

Matrix<double> of_rank(Integer m, Integer n, Integer rank, Random &random)
{
    const auto left = random_matrix<double>(m, rank, random), right = random_matrix<double>(rank, n, random);
    Matrix<double> a{m, n};
    for (Integer i = 0; i < m; ++i)
        for (Integer j = 0; j < n; ++j)
            for (Integer k = 0; k < rank; ++k) a(i, j) += left(i, k) * right(k, j);
    return a;
}

// A'(b - A x) = 0, and x is orthogonal to the null space, of which the columns of I - A^+ A are a basis: x is a combination of
// rows of A. Both by what an orthonormal basis from f01qfc leaves.
void expect_solution(const Matrix<double> &a, const std::vector<double> &b, const Fit &fit, Integer rank)
{
    SCOPED_TRACE(std::to_string(a.m) + " x " + std::to_string(a.n) + ", rank " + std::to_string(rank));
    ASSERT_TRUE(holds_report(fit.fail, NE_NOERROR));
    EXPECT_EQ(fit.rank, rank);
    std::vector<long double> r(a.m);
    long double norm = 0.0L, size = 0.0L, largest = 0.0L;
    for (Integer i = 0; i < a.m; ++i) {
        r[i] = b[i];
        for (Integer j = 0; j < a.n; ++j) {
            r[i] -= static_cast<long double>(a(i, j)) * fit.b[j];
            largest += std::fabs(static_cast<long double>(a(i, j))) * std::fabs(fit.b[j]);
        }
        norm += r[i] * r[i];
        size += std::fabs(b[i]);
    }
    for (Integer j = 0; j < a.n; ++j) {
        long double gradient = 0.0L;
        for (Integer i = 0; i < a.m; ++i) gradient += a(i, j) * r[i];
        EXPECT_LE(std::fabs(gradient), 100.0 * (a.m + a.n) * kEps * (largest + size));
    }
    const double sigma = a.m > rank ? static_cast<double>(std::sqrt(norm / (a.m - rank))) : 0.0;
    EXPECT_NEAR(fit.sigma, sigma, 100.0 * (a.m + a.n) * kEps * static_cast<double>(largest + size));
    // Least length: x is what its projection on the rows of A, orthonormalised, is.
    if (!fit.svd) return;
    const Integer kept = std::min(a.m, a.n);
    for (Integer j = 0; j < a.n; ++j) {
        long double part = -fit.b[j];
        for (Integer k = 0; k < std::min(rank, kept); ++k) {
            long double component = 0.0L;
            for (Integer l = 0; l < a.n; ++l) component += static_cast<long double>(fit.a(k, l)) * fit.b[l];
            part += component * fit.a(k, j);
        }
        EXPECT_LE(std::fabs(part), 1e-12);
    }
    for (Integer k = 0; k + 1 < kept; ++k) EXPECT_GE(fit.work[k], fit.work[k + 1]);
}

TEST(LeastSquares, EveryShapeAndRank)
{
    Random random;
    for (const auto &[m, n] : {std::pair{1, 1}, {4, 1}, {5, 5}, {9, 4}, {40, 12}, {70, 35}, {1, 4}, {4, 9}, {12, 40}})
        for (Integer rank : {std::min(m, n), std::min(m, n) - 1, std::min(m, n) / 2, 1, 0}) {
            if (rank < 0) continue;
            const auto a = of_rank(m, n, rank, random);
            std::vector<double> b(m);
            for (double &x : b) x = random.uniform();
            const Fit either{f04jgc, a, b, 1e-12};
            expect_solution(a, b, either, rank);
            EXPECT_EQ(either.svd, !(m >= n && rank == n));
            const Fit by_values{m >= n ? f04jac : f04jdc, a, b, 1e-12};
            expect_solution(a, b, by_values, rank);
            EXPECT_EQ(by_values.svd, 1);
            for (Integer j = 0; j < n; ++j) EXPECT_NEAR(either.b[j], by_values.b[j], 1e-9);
            for (std::size_t i = n; i < by_values.b.size(); ++i) EXPECT_EQ(by_values.b[i], b[i]);
        }
}

// The tolerance decides: singular values 1, 1e-3, 1e-6 behind reflections.
TEST(LeastSquares, ToleranceDecidesTheRank)
{
    Matrix<double> a{4, 3};
    const double u[] = {0.5, 0.5, 0.5, 0.5}, v[] = {2.0 / 3, 2.0 / 3, 1.0 / 3}, s[] = {1.0, 1e-3, 1e-6};
    for (Integer i = 0; i < 4; ++i)
        for (Integer j = 0; j < 3; ++j) {
            double sum = 0.0;
            for (Integer k = 0; k < 3; ++k) sum += ((i == k) - 2 * u[i] * u[k]) * s[k] * ((k == j) - 2 * v[k] * v[j]);
            a(i, j) = sum;
        }
    const std::vector<double> b{1.0, 2.0, -1.0, 0.5};
    for (const auto &[tol, rank, svd] :
         {std::tuple{1e-9, 3, 0}, {1e-5, 2, 1}, {0.01, 1, 1}, {0.0, 3, 0}, {-1.0, 3, 0}, {2.0, 3, 0}}) {
        const Fit fit{f04jgc, a, b, tol};
        EXPECT_EQ(fit.rank, rank) << tol;
        EXPECT_EQ(fit.svd, svd) << tol;
        const Fit values{f04jac, a, b, tol};
        EXPECT_EQ(values.rank, rank) << tol;
        for (Integer k = 0; k < 3; ++k) EXPECT_NEAR(values.work[k], s[k], 4 * kEps);
    }
}

// Longley's data of 1967, the standard trial of least-squares programs, with its certified coefficients (NIST Statistical
// Reference Datasets): condition 5e9.
TEST(LeastSquares, LongleysData)
{
    const double data[16][7] = {
        {60323, 83.0, 234289, 2356, 1590, 107608, 1947},  {61122, 88.5, 259426, 2325, 1456, 108632, 1948},
        {60171, 88.2, 258054, 3682, 1616, 109773, 1949},  {61187, 89.5, 284599, 3351, 1650, 110929, 1950},
        {63221, 96.2, 328975, 2099, 3099, 112075, 1951},  {63639, 98.1, 346999, 1932, 3594, 113270, 1952},
        {64989, 99.0, 365385, 1870, 3547, 115094, 1953},  {63761, 100.0, 363112, 3578, 3350, 116219, 1954},
        {66019, 101.2, 397469, 2904, 3048, 117388, 1955}, {67857, 104.6, 419180, 2822, 2857, 118734, 1956},
        {68169, 108.4, 442769, 2936, 2798, 120445, 1957}, {66513, 110.8, 444546, 4681, 2637, 121950, 1958},
        {68655, 112.6, 482704, 3813, 2552, 123366, 1959}, {69564, 114.2, 502601, 3931, 2514, 125368, 1960},
        {69331, 115.7, 518173, 4806, 2572, 127852, 1961}, {70551, 116.9, 554894, 4007, 2827, 130081, 1962}};
    const double certified[] = {-3482258.63459582, 15.0618722713733,       -0.358191792925910e-01, -2.02022980381683,
                                -1.03322686717359, -0.511041056535807e-01, 1829.15146461355};
    const double deviation[] = {890420.383607373,  84.9149257747669,  0.334910077722432e-01, 0.488399681651699,
                                0.214274163161675, 0.226073200069370, 455.478499142212};
    Matrix<double> a{16, 7};
    std::vector<double> b(16);
    for (Integer i = 0; i < 16; ++i) {
        b[i] = data[i][0];
        for (Integer j = 0; j < 7; ++j) a(i, j) = j == 0 ? 1.0 : data[i][j];
    }
    for (const bool values : {false, true}) {
        Fit fit{values ? f04jac : f04jgc, a, b, 1e-14};
        EXPECT_SUCCESS(fit.fail);
        EXPECT_EQ(fit.rank, 7);
        EXPECT_EQ(fit.svd, values);
        EXPECT_NEAR(fit.sigma / 304.854073561965, 1.0, 1e-10);
        double variance[7];
        Record fail;
        f04yac(-1, 7, fit.sigma, 7, fit.a.data(), 7, fit.svd, fit.work.data(), variance, &fail);
        EXPECT_SUCCESS(fail);
        for (Integer j = 0; j < 7; ++j) {
            EXPECT_NEAR(fit.b[j] / certified[j], 1.0, 2e-7) << j; // cond eps = 5e-7
            EXPECT_NEAR(std::sqrt(variance[j]) / deviation[j], 1.0, 2e-7) << j;
        }
    }
}

TEST(LeastSquares, NeverTouchesAnythingWithoutSuccess)
{
    Random random;
    for (const double bad : {kNan, std::numeric_limits<double>::infinity()})
        for (const auto solver : {f04jac, f04jgc}) {
            auto a = random_matrix<double>(5, 3, random);
            a(2, 1) = bad;
            const Fit fit{solver, a, {1, 2, 3, 4, 5}, 1e-10};
            EXPECT_REPORT(fit.fail, NE_QR_FAIL_CONV, 150);
            EXPECT_TRUE(same_bits(fit.a.a, a.a) && fit.b[1] == 2.0 && fit.rank == -1 && fit.svd == 9);
        }
}

TEST(LeastSquares, Covariances)
{
    Random random;
    for (const auto &[m, n, rank] : {std::tuple{6, 3, 3}, {20, 8, 8}, {20, 8, 5}, {5, 8, 5}}) {
        const auto a = of_rank(m, n, rank, random);
        const std::vector<double> b(m, 1.0);
        Fit fit{f04jgc, a, b, 1e-10};
        auto c = fit.a;
        c.a.resize(std::max(m, n) * n);
        std::vector<double> cj(n, -7.0), diagonal(n);
        Record fail;
        const double sigma = 0.5;
        f04yac(0, n, sigma, rank, c.data(), n, fit.svd, fit.work.data(), nullptr, &fail);
        EXPECT_SUCCESS(fail);
        f04yac(-1, n, sigma, rank, fit.a.data(), n, fit.svd, fit.work.data(), diagonal.data(), &fail);
        for (Integer j = 1; j <= n; ++j) {
            f04yac(j, n, sigma, rank, fit.a.data(), n, fit.svd, fit.work.data(), cj.data(), &fail);
            EXPECT_NEAR(cj[j - 1], diagonal[j - 1], 1e-12 * diagonal[j - 1]);
            for (Integer i = 0; i < n; ++i)
                EXPECT_NEAR(cj[i], c(i, j - 1), 1e-11 * std::sqrt(diagonal[i] * diagonal[j - 1]));
        }
        // C = sigma^2 (A'A)^+: A'A C A'A = sigma^2 A'A.
        const auto gram = with_order<double>(n, [&](Integer i, Integer j) {
            double sum = 0.0;
            for (Integer k = 0; k < m; ++k) sum += a(k, i) * a(k, j);
            return sum;
        });
        for (Integer i = 0; i < n; ++i)
            for (Integer j = 0; j < n; ++j) {
                double sum = 0.0;
                for (Integer k = 0; k < n; ++k)
                    for (Integer l = 0; l < n; ++l) sum += gram(i, k) * c(k, l) * gram(l, j);
                EXPECT_NEAR(sum, sigma * sigma * gram(i, j), 1e-8);
            }
    }
}

// A random profile: A = L D L' from factors chosen, so that all is known.
struct Band {
    std::vector<Integer> row;
    Matrix<long double> dense;
    std::vector<double> a;
    Integer n;

    Band(Integer order, Random &random, int widest) : row(order), dense{order, order}, n{order}
    {
        const auto b = random_matrix<double>(n, n, random);
        for (Integer i = 0; i < n; ++i) row[i] = 1 + static_cast<Integer>((b(i, 0) + 1.0) / 2 * std::min(i, widest));
        for (Integer i = 0; i < n; ++i)
            for (Integer j = i - row[i] + 1; j <= i; ++j) {
                a.push_back(i == j ? 2.0 + widest + std::fabs(b(i, i)) : std::ldexp(b(i, j), (i + j) % 2));
                dense(i, j) = dense(j, i) = a.back();
            }
    }
    // Element (i, j) of the packed rows.
    double at(const std::vector<double> &packed, Integer i, Integer j) const
    {
        if (j > i || j <= i - row[i]) return 0.0;
        std::ptrdiff_t end = 0;
        for (Integer k = 0; k <= i; ++k) end += row[k];
        return packed[end - 1 - (i - j)];
    }
};

TEST(VariableBand, FactorsReproduceTheMatrixAndSolve)
{
    Random random;
    for (const auto &[n, widest] : {std::pair{1, 0}, {2, 1}, {7, 3}, {20, 19}, {60, 12}}) {
        const Band band{n, random, widest};
        const auto length = static_cast<Integer>(band.a.size());
        std::vector<double> l(length), d(n);
        Record fail;
        f01mcc(n, band.a.data(), length, band.row.data(), l.data(), d.data(), &fail);
        EXPECT_SUCCESS(fail);
        const auto lower = [&](Integer i, Integer k) { return static_cast<long double>(band.at(l, i, k)); };
        EXPECT_LE(product_error<double>(
                      n, n, n, lower, [&](Integer k, Integer j) { return d[k] * lower(j, k); }, band.dense),
                  n + 2.0);
        for (Integer i = 0; i < n; ++i) EXPECT_EQ(lower(i, i), 1.0L);

        // Each selection, by multiplying the solution with its factors.
        const auto b = random_matrix<double>(n, 2, random);
        for (Integer selct = Kor_LDLTX; selct <= Kor_LTX; ++selct) {
            Matrix<double> x{n, 2};
            f04mcc(selct, n, 2, l.data(), length, selct <= Kor_DLTX ? d.data() : nullptr, band.row.data(), b.data(), 2,
                   x.data(), 2, &fail);
            EXPECT_SUCCESS(fail);
            for (Integer r = 0; r < 2; ++r) {
                std::vector<long double> product(n);
                for (Integer i = 0; i < n; ++i) product[i] = x(i, r);
                if (selct != Kor_LDX && selct != Kor_LX)
                    for (Integer i = 0; i < n; ++i)
                        for (Integer k = i + 1; k < n; ++k) product[i] += lower(k, i) * product[k];
                if (selct <= Kor_DLTX)
                    for (Integer i = 0; i < n; ++i) product[i] *= d[i];
                if (selct != Kor_DLTX && selct != Kor_LTX)
                    for (Integer i = n - 1; i >= 0; --i)
                        for (Integer k = 0; k < i; ++k) product[i] += lower(i, k) * product[k];
                for (Integer i = 0; i < n; ++i) EXPECT_NEAR(product[i], b(i, r), 20.0 * n * kEps * n) << selct;
            }
            if (selct != Kor_LDLTX) continue;
            std::vector<double> single(n);
            for (Integer i = 0; i < n; ++i) single[i] = b(i, 1);
            f04aqc(n, l.data(), d.data(), band.row.data(), single.data());
            for (Integer i = 0; i < n; ++i) EXPECT_NEAR(single[i], x(i, 1), 10 * n * kEps);
        }
        // A factor without a unit diagonal, alone.
        auto scaled = l;
        for (double &element : scaled) element *= 2.0;
        auto x = b, y = b;
        f04mcc(Kor_LLTX, n, 2, scaled.data(), length, nullptr, band.row.data(), x.data(), 2, x.data(), 2, &fail);
        EXPECT_SUCCESS(fail);
        f04mcc(Kor_LLTX, n, 2, l.data(), length, nullptr, band.row.data(), y.data(), 2, y.data(), 2, &fail);
        for (std::size_t i = 0; i < x.a.size(); ++i) EXPECT_EQ(4.0 * x.a[i], y.a[i]);
    }
}

TEST(VariableBand, RefusesWhatItCannotTake)
{
    double a[] = {4.0, 2.0, 5.0, 2.0, 3.0}, al[5], d[3] = {1.0, 2.0, 0.0}, b[] = {1.0, 2.0, 3.0}, x[] = {7.0, 7.0, 7.0};
    Integer row[] = {1, 2, 2};
    Record fail;
    f01mcc(0, a, 5, row, al, d, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", 0);
    row[1] = 0;
    f01mcc(3, a, 5, row, al, d, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "row[1]", "1", "row[1]", 0);
    row[1] = 3;
    f04mcc(Kor_LX, 3, 1, a, 5, d, row, b, 1, x, 1, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_GT, "row[i]", 3, "i+1", 2, "row[i]", "i+1");
    f04aqc(3, a, d, row, x);
    EXPECT_EQ(x[0], 7.0);
    row[1] = 2;
    f04mcc(Kor_LX, 3, 1, a, 4, d, row, b, 1, x, 1, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "lal", 4, "row[0]+..+row[n-1]", 5, "lal", "row[0]+..+row[n-1]");
    f04mcc(Kor_LX, 3, 0, a, 5, d, row, b, 1, x, 1, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "nrhs", "1", "nrhs", 0);
    f04mcc(Kor_LX, 3, 2, a, 5, d, row, b, 2, x, 1, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tdx", 1, "nrhs", 2, "tdx", "nrhs");
    for (const Integer selct : {Kor_LDLTX - 1, Kor_LTX + 1}) {
        f04mcc(selct, 3, 1, a, 5, d, row, b, 1, x, 1, &fail);
        EXPECT_REPORT(fail, NE_BAD_PARAM, "selct");
    }
    f04mcc(Kor_LDX, 3, 1, a, 5, d, row, b, 1, x, 1, &fail);
    EXPECT_REPORT(fail, NE_ZERO_DIAG);
    d[2] = 1.0;
    f04mcc(Kor_DLTX, 3, 1, a, 5, d, row, b, 1, x, 1, &fail);
    EXPECT_REPORT(fail, NE_NOT_UNIT_DIAG);
    a[4] = 0.0;
    f04mcc(Kor_LTX, 3, 1, a, 5, d, row, b, 1, x, 1, &fail);
    EXPECT_REPORT(fail, NE_SINGULAR);
    EXPECT_EQ(x[0], 7.0);
    for (const double bad : {-9.0, 1.0, kNan}) {
        a[2] = bad; // 1 = 2 * 2 / 4: a zero pivot
        f01mcc(3, a, 5, row, al, d, &fail);
        EXPECT_REPORT(fail, NE_NOT_POS_DEF);
        EXPECT_EQ(fail.errnum, 2);
    }
}

TEST(ModifiedCholesky, PerturbsOnlyWhatIsNotPositiveDefinite)
{
    Random random;
    const auto factor = [](Matrix<double> a, std::vector<double> &d, Integer &jmax, Record &fail) {
        for (Integer i = 0; i < a.n; ++i)
            for (Integer j = 0; j < i; ++j) a(i, j) = kNan; // not read
        d.resize(a.n);
        f01bqc(a.n, a.data(), a.n, d.data(), &jmax, &fail);
        return a;
    };
    for (const Integer n : {1, 2, 5, 30}) {
        std::vector<Named> all = positive_gallery(n, random);
        const auto definite = all.size();
        for (double shift : {0.5, 3.0, 100.0}) {
            all.push_back({"indefinite", all[0].matrix});
            for (Integer i = 0; i < n; ++i) all.back().matrix(i, i) -= shift * n;
        }
        all.push_back({"zero", Matrix<double>{n, n}});
        all.push_back({"tiny", all[definite].matrix});
        for (double &x : all.back().matrix.a) x *= 0x1p-900;
        for (std::size_t k = 0; k < all.size(); ++k) {
            const auto &[name, a] = all[k];
            SCOPED_TRACE(name + " " + std::to_string(n));
            std::vector<double> d;
            Integer jmax = -1;
            Record fail;
            const auto l = factor(a, d, jmax, fail);
            const auto lower = [&](Integer i, Integer j) {
                return i == j ? 1.0L : j < i ? static_cast<long double>(l(i, j)) : 0.0L;
            };
            double size = 0.0;
            for (const double x : a.a) size = std::max(size, std::fabs(x));
            long double e_max = 0.0L;
            Integer where = 0;
            for (Integer i = 0; i < n; ++i) {
                EXPECT_GT(d[i], 0.0);
                for (Integer j = 0; j <= i; ++j) {
                    long double sum = -a(i, j);
                    for (Integer p = 0; p <= j; ++p) sum += lower(i, p) * lower(j, p) * d[p];
                    if (i != j) {
                        EXPECT_LE(std::fabs(sum), 4.0 * n * kEps * size);
                        continue;
                    }
                    EXPECT_GE(sum, -4.0 * n * kEps * size);
                    if (sum > e_max * (1 + 1e-9L)) {
                        e_max = sum;
                        where = i + 1;
                    }
                }
            }
            if (name == "graded" && n > 5) continue; // its last pivots are below the precision times the first
            if (k < definite) {
                EXPECT_SUCCESS(fail);
                EXPECT_EQ(jmax, 0);
                EXPECT_LE(e_max, 4.0 * n * kEps * size);
            } else if (name == "zero" || e_max > 1e-3 * size) {
                EXPECT_REPORT(fail, NE_MATRIX_NOT_ZERO, jmax);
                if (name != "zero") {
                    EXPECT_EQ(jmax, where);
                }
            }
        }
    }
    Matrix<double> bad{2, 2};
    bad.a = {1.0, kNan, 0.0, 1.0};
    std::vector<double> d;
    Integer jmax = -1;
    Record fail;
    factor(bad, d, jmax, fail);
    EXPECT_REPORT(fail, NE_NOT_POS_DEF);
    EXPECT_EQ(jmax, -1);
    f01bqc(2, bad.data(), 1, d.data(), &jmax, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tda", 1, "n", 2, "tda", "n");
}

TEST(LeastSquares, RefuseBadArguments)
{
    double a[] = {1.0, 2.0, 3.0, 4.0}, b[] = {1.0, 2.0}, sigma = 7.0, work[8], cj[2] = {7.0, 7.0};
    Boolean svd = 9;
    Integer rank = 7;
    Record fail;
    f04jac(2, 0, a, 2, b, 0.0, &svd, &sigma, &rank, work, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", 0);
    f04jac(1, 2, a, 2, b, 0.0, &svd, &sigma, &rank, work, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "m", 1, "n", 2, "m", "n");
    f04jdc(2, 1, a, 2, b, 0.0, &svd, &sigma, &rank, work, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "n", 1, "m", 2, "n", "m");
    f04jgc(0, 2, a, 2, b, 0.0, &svd, &sigma, &rank, work, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "m", "1", "m", 0);
    f04jgc(2, 2, a, 1, b, 0.0, &svd, &sigma, &rank, work, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tda", 1, "n", 2, "tda", "n");
    EXPECT_TRUE(a[0] == 1.0 && b[0] == 1.0 && sigma == 7.0 && svd == 9 && rank == 7);

    const auto expect = [&](Integer job, Integer n, double s, Integer r, Integer tda, bool values) {
        f04yac(job, n, s, r, a, tda, values, b, cj, &fail);
    };
    expect(-2, 2, 1.0, 2, 2, false);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "job", "-1", "job", -2);
    expect(3, 2, 1.0, 2, 2, false);
    EXPECT_REPORT(fail, NE_2_INT_ARG_GT, "job", 3, "n", 2, "job", "n");
    for (const double s : {-1.0, kNan}) {
        expect(1, 2, s, 2, 2, false);
        EXPECT_EQ(fail.code, NE_REAL_ARG_LT);
    }
    expect(1, 2, 1.0, 3, 2, true);
    EXPECT_REPORT(fail, NE_2_INT_ARG_GT, "rank", 3, "n", 2, "rank", "n");
    expect(1, 2, 1.0, 1, 2, false);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "rank", 1, "n", 2, "rank", "n");
    b[1] = 0.0;
    expect(1, 2, 1.0, 2, 2, true);
    EXPECT_REPORT(fail, NE_SINGULAR);
    EXPECT_EQ(cj[0], 7.0);
    expect(1, 2, 1.0, 0, 2, true);
    EXPECT_SUCCESS(fail);
    EXPECT_EQ(cj[0], 0.0);
}

} // namespace
} // namespace kor::testing
