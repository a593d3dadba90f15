// The standard operations on a matrix and a vector against the dense reference: all enumerators, increments of both signs,
// rows longer than the matrix, factors 0 and 1, and poison wherever nothing is to be read.
#include "linalg/reference.hpp"

namespace kor::testing {
namespace {

template <class T>
struct Operations;
template <>
struct Operations<double> {
    static constexpr auto gemv = f06pac;
    static constexpr auto gbmv = f06pbc;
    static constexpr auto hemv = f06pcc;
    static constexpr auto hbmv = f06pdc;
    static constexpr auto hpmv = f06pec;
    static constexpr auto trmv = f06pfc, trsv = f06pjc;
    static constexpr auto tbmv = f06pgc, tbsv = f06pkc;
    static constexpr auto tpmv = f06phc, tpsv = f06plc;
    static constexpr auto her = f06ppc;
    static constexpr auto hpr = f06pqc;
    static constexpr auto her2 = f06prc;
    static constexpr auto hpr2 = f06psc;
};
template <>
struct Operations<Complex> {
    static constexpr auto gemv = f06sac;
    static constexpr auto gbmv = f06sbc;
    static constexpr auto hemv = f06scc;
    static constexpr auto hbmv = f06sdc;
    static constexpr auto hpmv = f06sec;
    static constexpr auto trmv = f06sfc, trsv = f06sjc;
    static constexpr auto tbmv = f06sgc, tbsv = f06skc;
    static constexpr auto tpmv = f06shc, tpsv = f06slc;
    static constexpr auto her = f06spc;
    static constexpr auto hpr = f06sqc;
    static constexpr auto her2 = f06src;
    static constexpr auto hpr2 = f06ssc;
};

template <class T>
class MatrixVector : public ::testing::Test {
  protected:
    using F = Operations<T>;
    Random random;

    // y := alpha A x + beta y for every pair of factors; with beta = 0 the old y is poison.
    void expect_product(const Dense &a, Integer incx, Integer incy,
                        const std::function<void(T alpha, const T *x, T beta, T *y)> &call, const std::string &what)
    {
        for (const T alpha : factors<T>())
            for (const T beta : factors<T>()) {
                Stored<T> x = vector<T>(a.n, incx, random), y = vector<T>(a.m, incy, random);
                const Dense expected = wide(alpha) * (a * x.dense()) + wide(beta) * y.dense();
                if (wide(alpha) == Z{}) x.array.assign(x.array.size(), x.array.empty() ? T{} : narrowed<T>(kNan));
                if (wide(beta) == Z{} && a.n > 0)
                    for (Integer i = 0; i < a.m; ++i) poison(y.array[column(a.m, incy)(i, 0)]);
                const std::vector<T> before = y.array;
                call(alpha, x.data(), beta, y.data());
                // Without columns the operation returns at once: y keeps its value, not beta times it.
                expect_unless(a.n == 0, y, expected, 4.0 * (a.n + 3), before, what);
            }
    }
};
using Types = ::testing::Types<double, Complex>;
TYPED_TEST_SUITE(MatrixVector, Types);

constexpr std::pair<Integer, Integer> kIncrements[] = {{1, 1}, {-1, 2}, {3, -2}};

TYPED_TEST(MatrixVector, General)
{
    using T = TypeParam;
    for (const auto &[m, n] : {std::pair{1, 1}, {2, 3}, {3, 2}, {7, 5}, {16, 16}, {33, 41}, {3, 0}})
        for (const Integer trans : kTransposes)
            for (const auto &[incx, incy] : kIncrements) {
                const Integer tda = std::max(1, n) + incx * incx - 1;
                Stored<T> a = general<T>(m, n, tda, this->random);
                this->expect_product(
                    op(trans, a.dense()), incx, incy,
                    [&](T alpha, const T *x, T beta, T *y) {
                        TestFixture::F::gemv(trans, m, n, alpha, a.data(), tda, x, incx, beta, y, incy);
                    },
                    "gemv");
            }
}

TYPED_TEST(MatrixVector, Band)
{
    using T = TypeParam;
    for (const auto &[m, n] : {std::pair{1, 1}, {5, 5}, {4, 9}, {9, 4}, {30, 35}})
        for (const auto &[kl, ku] : {std::pair{0, 0}, {1, 2}, {3, 0}, {12, 11}})
            for (const Integer trans : kTransposes)
                for (const auto &[incx, incy] : kIncrements) {
                    const Integer tda = kl + ku + 1 + incx * incx - 1;
                    Stored<T> a{m, n, static_cast<std::size_t>(m) * tda, band(kl, ku, tda), this->random};
                    this->expect_product(
                        op(trans, a.dense()), incx, incy,
                        [&](T alpha, const T *x, T beta, T *y) {
                            TestFixture::F::gbmv(trans, m, n, kl, ku, alpha, a.data(), tda, x, incx, beta, y, incy);
                        },
                        "gbmv");
                }
}

TYPED_TEST(MatrixVector, SymmetricOrHermitian)
{
    using T = TypeParam;
    for (const Integer n : {1, 2, 3, 8, 17, 40})
        for (const Integer uplo : kTriangles)
            for (const auto &[incx, incy] : kIncrements) {
                const Integer tda = n + incx * incx - 1;
                Stored<T> a{n, n, static_cast<std::size_t>(n) * tda, triangle(uplo, tda), this->random};
                this->expect_product(
                    a.spread(is_complex<T>), incx, incy,
                    [&](T alpha, const T *x, T beta, T *y) {
                        TestFixture::F::hemv(uplo, n, alpha, a.data(), tda, x, incx, beta, y, incy);
                    },
                    "hemv");

                Stored<T> ap{n, n, static_cast<std::size_t>(n) * (n + 1) / 2, packed(uplo, n), this->random};
                this->expect_product(
                    ap.spread(is_complex<T>), incx, incy,
                    [&](T alpha, const T *x, T beta, T *y) {
                        TestFixture::F::hpmv(uplo, n, alpha, ap.data(), x, incx, beta, y, incy);
                    },
                    "hpmv");

                for (const Integer k : {0, 1, 4, 45}) {
                    const Integer td = k + 1 + incx * incx - 1;
                    Stored<T> ab{n, n, static_cast<std::size_t>(n) * td, half_band(uplo, k, td), this->random};
                    this->expect_product(
                        ab.spread(is_complex<T>), incx, incy,
                        [&](T alpha, const T *x, T beta, T *y) {
                            TestFixture::F::hbmv(uplo, n, k, alpha, ab.data(), td, x, incx, beta, y, incy);
                        },
                        "hbmv");
                }
            }
}

// A product is compared with the reference, a solution by its residual.
template <class T, class Product, class Solve>
void expect_triangular(Random &random, const Dense &a, Integer incx, Product product, Solve solve,
                       const std::string &what)
{
    Stored<T> x = vector<T>(a.n, incx, random);
    const std::vector<T> before = x.array;
    const Dense right = x.dense();
    product(x.data());
    x.expect(a * right, 4.0 * (a.n + 3), before, what + " product");

    x.array = before;
    solve(x.data());
    const Dense residual = a * x.dense() + Z{-1.0L} * right;
    for (Integer i = 0; i < a.n; ++i)
        ASSERT_LE(std::abs(residual(i, 0)), 4.0 * (a.n + 3) * kEps * residual.size(i, 0)) << what << " solution";
    for (std::size_t k = 0; k < before.size(); ++k)
        if (k % std::abs(incx) != 0) {
            ASSERT_EQ(std::memcmp(&x.array[k], &before[k], sizeof(T)), 0) << what;
        }
}

TYPED_TEST(MatrixVector, Triangular)
{
    using T = TypeParam;
    using F = typename TestFixture::F;
    for (const Integer n : {1, 2, 3, 8, 9, 40})
        for (const Integer uplo : kTriangles)
            for (const Integer trans : kTransposes)
                for (const Integer diag : kDiagonals)
                    for (const Integer incx : {1, -1, 2, -3}) {
                        const Integer tda = n + incx * incx - 1;
                        Stored<T> a{n, n, static_cast<std::size_t>(n) * tda, triangle(uplo, tda), this->random};
                        expect_triangular<T>(
                            this->random, op(trans, a.triangular(diag)), incx,
                            [&](T *x) { F::trmv(uplo, trans, diag, n, a.data(), tda, x, incx); },
                            [&](T *x) { F::trsv(uplo, trans, diag, n, a.data(), tda, x, incx); }, "full");

                        Stored<T> ap{n, n, static_cast<std::size_t>(n) * (n + 1) / 2, packed(uplo, n), this->random};
                        expect_triangular<T>(
                            this->random, op(trans, ap.triangular(diag)), incx,
                            [&](T *x) { F::tpmv(uplo, trans, diag, n, ap.data(), x, incx); },
                            [&](T *x) { F::tpsv(uplo, trans, diag, n, ap.data(), x, incx); }, "packed");

                        for (const Integer k : {0, 2, 19}) {
                            const Integer td = k + 1 + incx * incx - 1;
                            Stored<T> ab{n, n, static_cast<std::size_t>(n) * td, half_band(uplo, k, td), this->random};
                            expect_triangular<T>(
                                this->random, op(trans, ab.triangular(diag)), incx,
                                [&](T *x) { F::tbmv(uplo, trans, diag, n, k, ab.data(), td, x, incx); },
                                [&](T *x) { F::tbsv(uplo, trans, diag, n, k, ab.data(), td, x, incx); }, "band");
                        }
                    }
}

// Rank-1 and rank-2 updates of a triangle, full and packed.
TYPED_TEST(MatrixVector, SymmetricUpdates)
{
    using T = TypeParam;
    using F = typename TestFixture::F;
    constexpr bool hermitian = is_complex<T>;
    for (const Integer n : {1, 2, 3, 8, 17, 40})
        for (const Integer uplo : kTriangles)
            for (const auto &[incx, incy] : kIncrements)
                for (const T factor : factors<T>())
                    for (const bool pack : {false, true}) {
                        const Integer tda = n + incx * incx - 1;
                        const std::size_t length =
                            pack ? static_cast<std::size_t>(n) * (n + 1) / 2 : static_cast<std::size_t>(n) * tda;
                        Stored<T> a{n, n, length, pack ? packed(uplo, n) : triangle(uplo, tda), this->random};
                        Stored<T> x = vector<T>(n, incx, this->random), y = vector<T>(n, incy, this->random);
                        const Dense X = x.dense(), Y = y.dense(), old = a.spread(hermitian);
                        const double alpha = static_cast<double>(wide(factor).real());
                        const bool nothing = wide(factor) == Z{};

                        Stored<T> one = a;
                        if (pack)
                            F::hpr(uplo, n, alpha, x.data(), incx, one.data());
                        else
                            F::her(uplo, n, alpha, x.data(), incx, one.data(), tda);
                        expect_unless(alpha == 0.0, one, old + Z{alpha} * (X * op(ConjugateTranspose, X)), 12.0,
                                      a.array, "her");

                        Stored<T> two = a;
                        if (pack)
                            F::hpr2(uplo, n, factor, x.data(), incx, y.data(), incy, two.data());
                        else
                            F::her2(uplo, n, factor, x.data(), incx, y.data(), incy, two.data(), tda);
                        expect_unless(nothing, two,
                                      old + wide(factor) * (X * op(ConjugateTranspose, Y)) +
                                          std::conj(wide(factor)) * (Y * op(ConjugateTranspose, X)),
                                      20.0, a.array, "her2");
                    }
}

TEST(OuterProduct, RealAndComplexWithAndWithoutConjugate)
{
    Random random;
    for (const auto &[m, n] : {std::pair{1, 1}, {2, 3}, {16, 5}, {40, 33}})
        for (const auto &[incx, incy] : kIncrements) {
            const Integer tda = n + incx * incx - 1;
            for (const double alpha : factors<double>()) {
                Stored<double> a = general<double>(m, n, tda, random), x = vector<double>(m, incx, random),
                               y = vector<double>(n, incy, random);
                const Dense expected = a.dense() + Z{alpha} * (x.dense() * op(Transpose, y.dense()));
                const auto before = a.array;
                f06pmc(m, n, alpha, x.data(), incx, y.data(), incy, a.data(), tda);
                a.expect(expected, 8.0, before, "ger");
            }
            for (const Complex alpha : factors<Complex>())
                for (const Integer trans : {Transpose, ConjugateTranspose}) {
                    Stored<Complex> a = general<Complex>(m, n, tda, random), x = vector<Complex>(m, incx, random),
                                    y = vector<Complex>(n, incy, random);
                    const Dense expected = a.dense() + wide(alpha) * (x.dense() * op(trans, y.dense()));
                    const auto before = a.array;
                    (trans == Transpose ? f06smc : f06snc)(m, n, alpha, x.data(), incx, y.data(), incy, a.data(), tda);
                    a.expect(expected, 12.0, before, "geru or gerc");
                }
        }
}

} // namespace
} // namespace kor::testing
