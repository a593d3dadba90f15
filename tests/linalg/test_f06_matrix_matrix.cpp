// The standard operations on matrices against the dense reference: all enumerators, rows longer than the matrix, factors 0
// and 1, empty inner dimensions, and poison wherever nothing is to be read.
#include "linalg/reference.hpp"

namespace kor::testing {
namespace {

template <class T>
struct Operations;
template <>
struct Operations<double> {
    static constexpr auto gemm = f06yac;
    static constexpr auto symm = f06ycc;
    static constexpr auto trmm = f06yfc, trsm = f06yjc;
    static constexpr auto syrk = f06ypc;
    static constexpr auto syr2k = f06yrc;
    static constexpr Integer kSymmetricUpdates[] = {NoTranspose, Transpose, ConjugateTranspose};
};
template <>
struct Operations<Complex> {
    static constexpr auto gemm = f06zac;
    static constexpr auto symm = f06ztc;
    static constexpr auto trmm = f06zfc, trsm = f06zjc;
    static constexpr auto syrk = f06zuc;
    static constexpr auto syr2k = f06zwc;
    static constexpr Integer kSymmetricUpdates[] = {NoTranspose, Transpose};
};

// The elements of c that are stored become poison: the old contents do not matter when beta is 0.
template <class T>
void forget(Stored<T> &c, const Place &place, Integer m, Integer n)
{
    for (Integer i = 0; i < m; ++i)
        for (Integer j = 0; j < n; ++j)
            if (place(i, j) >= 0) poison(c.array[place(i, j)]);
}

template <class T>
class MatrixMatrix : public ::testing::Test {
  protected:
    using F = Operations<T>;
    Random random;
};
using Types = ::testing::Types<double, Complex>;
TYPED_TEST_SUITE(MatrixMatrix, Types);

TYPED_TEST(MatrixMatrix, General)
{
    using T = TypeParam;
    for (const auto &[m, n, k] : {std::tuple{1, 1, 1},
                                  {2, 2, 2},
                                  {3, 4, 2},
                                  {5, 3, 7},
                                  {8, 8, 8},
                                  {9, 1, 4},
                                  {1, 9, 20},
                                  {25, 31, 18},
                                  {3, 2, 0}})
        for (const Integer transa : kTransposes)
            for (const Integer transb : kTransposes)
                for (const T alpha : factors<T>())
                    for (const T beta : factors<T>()) {
                        const bool na = transa == NoTranspose, nb = transb == NoTranspose;
                        const Integer tda = std::max(1, na ? k : m) + 2, tdb = std::max(1, nb ? n : k) + 1, tdc = n + 3;
                        Stored<T> a = general<T>(na ? m : k, na ? k : m, tda, this->random);
                        Stored<T> b = general<T>(nb ? k : n, nb ? n : k, tdb, this->random);
                        Stored<T> c = general<T>(m, n, tdc, this->random);
                        const Dense expected =
                            wide(alpha) * (op(transa, a.dense()) * op(transb, b.dense())) + wide(beta) * c.dense();
                        if (wide(beta) == Z{}) forget(c, rows(tdc), m, n);
                        if (wide(alpha) == Z{}) a.array.assign(a.array.size(), narrowed<T>(kNan));
                        const auto before = c.array;
                        TestFixture::F::gemm(transa, transb, m, n, k, alpha, a.data(), tda, b.data(), tdb, beta,
                                             c.data(), tdc);
                        c.expect(expected, 4.0 * (k + 3), before, "gemm");
                    }
}

template <class T, class Call>
void expect_symmetric_product(Random &random, bool hermitian, Call call)
{
    for (const auto &[m, n] : {std::pair{1, 1}, {2, 3}, {5, 4}, {8, 8}, {20, 33}})
        for (const Integer side : kSides)
            for (const Integer uplo : kTriangles)
                for (const T alpha : factors<T>())
                    for (const T beta : factors<T>()) {
                        const Integer order = side == LeftSide ? m : n, tda = order + 2, tdb = n + 1, tdc = n + 3;
                        Stored<T> a{order, order, static_cast<std::size_t>(order) * tda, triangle(uplo, tda), random};
                        Stored<T> b = general<T>(m, n, tdb, random), c = general<T>(m, n, tdc, random);
                        const Dense A = a.spread(hermitian);
                        const Dense product = side == LeftSide ? A * b.dense() : b.dense() * A;
                        const Dense expected = wide(alpha) * product + wide(beta) * c.dense();
                        if (wide(beta) == Z{}) forget(c, rows(tdc), m, n);
                        const auto before = c.array;
                        call(side, uplo, m, n, alpha, a.data(), tda, b.data(), tdb, beta, c.data(), tdc);
                        c.expect(expected, 4.0 * (order + 3), before, "symm or hemm");
                    }
}

TYPED_TEST(MatrixMatrix, Symmetric) { expect_symmetric_product<TypeParam>(this->random, false, TestFixture::F::symm); }
TEST(MatrixMatrixHermitian, Product)
{
    Random random;
    expect_symmetric_product<Complex>(random, true, f06zcc);
}

TYPED_TEST(MatrixMatrix, Triangular)
{
    using T = TypeParam;
    using F = typename TestFixture::F;
    for (const auto &[m, n] : {std::pair{1, 1}, {2, 3}, {5, 4}, {8, 8}, {20, 33}})
        for (const Integer side : kSides)
            for (const Integer uplo : kTriangles)
                for (const Integer trans : kTransposes)
                    for (const Integer diag : kDiagonals)
                        for (const T alpha : factors<T>()) {
                            const Integer order = side == LeftSide ? m : n, tda = order + 2, tdb = n + 1;
                            Stored<T> a{order, order, static_cast<std::size_t>(order) * tda, triangle(uplo, tda),
                                        this->random};
                            Stored<T> b = general<T>(m, n, tdb, this->random);
                            const Dense A = op(trans, a.triangular(diag)), B = b.dense();
                            const auto before = b.array;
                            F::trmm(side, uplo, trans, diag, m, n, alpha, a.data(), tda, b.data(), tdb);
                            b.expect(wide(alpha) * (side == LeftSide ? A * B : B * A), 4.0 * (order + 3), before,
                                     "trmm");

                            b.array = before;
                            if (wide(alpha) == Z{}) forget(b, rows(tdb), m, n);
                            F::trsm(side, uplo, trans, diag, m, n, alpha, a.data(), tda, b.data(), tdb);
                            const Dense X = b.dense(), residual = (side == LeftSide ? A * X : X * A) + -wide(alpha) * B;
                            for (Integer i = 0; i < m; ++i)
                                for (Integer j = 0; j < n; ++j)
                                    ASSERT_LE(std::abs(residual(i, j)), 4.0 * (order + 3) * kEps * residual.size(i, j))
                                        << "trsm";
                        }
}

// Updates of rank k and 2k; `adjoint` is the transposition that the symmetry needs.
template <class T, class Scalar1, class Scalar2, class One, class Two>
void expect_updates(Random &random, Integer adjoint, const Integer *transposes, int count, One rank_k, Two rank_2k)
{
    const bool hermitian = adjoint == ConjugateTranspose;
    for (const auto &[n, k] : {std::pair{1, 1}, {2, 2}, {3, 5}, {8, 3}, {17, 20}, {40, 7}, {4, 0}})
        for (const Integer uplo : kTriangles)
            for (const Integer *trans = transposes; trans != transposes + count; ++trans)
                for (const T factor : factors<T>())
                    for (const T old_factor : factors<T>()) {
                        const bool plain = *trans == NoTranspose;
                        const Integer rows_a = plain ? n : k, columns = plain ? k : n, tda = std::max(1, columns) + 2,
                                      tdc = n + 3;
                        Stored<T> a = general<T>(rows_a, columns, tda, random),
                                  b = general<T>(rows_a, columns, tda, random);
                        Stored<T> c{n, n, static_cast<std::size_t>(n) * tdc, triangle(uplo, tdc), random};
                        const Dense old = c.spread(hermitian);
                        // op(A) op(B)^adjoint, whichever way A and B are stored.
                        const Dense A = plain ? a.dense() : op(adjoint, a.dense()),
                                    B = plain ? b.dense() : op(adjoint, b.dense());
                        const Scalar1 alpha1 = narrowed<Scalar1>(wide(factor));
                        const Scalar2 beta = narrowed<Scalar2>(wide(old_factor));
                        const bool fresh = wide(beta) == Z{};
                        const bool idle1 = (k == 0 || wide(alpha1) == Z{}) && wide(beta) == Z{1.0L};
                        const bool idle2 = (k == 0 || wide(factor) == Z{}) && wide(beta) == Z{1.0L};
                        if (fresh) forget(c, triangle(uplo, tdc), n, n);
                        Stored<T> one = c;
                        rank_k(uplo, *trans, n, k, alpha1, a.data(), tda, beta, one.data(), tdc);
                        expect_unless(idle1, one, wide(alpha1) * (A * op(adjoint, A)) + wide(beta) * old, 4.0 * (k + 4),
                                      c.array, "rank k");

                        Stored<T> two = c;
                        rank_2k(uplo, *trans, n, k, factor, a.data(), tda, b.data(), tda, beta, two.data(), tdc);
                        const Z other = hermitian ? std::conj(wide(factor)) : wide(factor);
                        expect_unless(idle2, two,
                                      wide(factor) * (A * op(adjoint, B)) + other * (B * op(adjoint, A)) +
                                          wide(beta) * old,
                                      4.0 * (2 * k + 4), c.array, "rank 2k");
                    }
}

TYPED_TEST(MatrixMatrix, SymmetricUpdates)
{
    using F = typename TestFixture::F;
    expect_updates<TypeParam, TypeParam, TypeParam>(this->random, Transpose, F::kSymmetricUpdates,
                                                    static_cast<int>(std::size(F::kSymmetricUpdates)), F::syrk,
                                                    F::syr2k);
}
TEST(MatrixMatrixHermitian, Updates)
{
    Random random;
    const Integer transposes[] = {NoTranspose, ConjugateTranspose};
    expect_updates<Complex, double, double>(random, ConjugateTranspose, transposes, 2, f06zpc, f06zrc);
}

} // namespace
} // namespace kor::testing
