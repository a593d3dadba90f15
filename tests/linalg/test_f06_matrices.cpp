// Norms, copies, fills and permutations of matrices: against the dense reference, with poison outside the stored part.
#include "linalg/reference.hpp"

namespace kor::testing {
namespace {

// Whether a matrix type stores element (i, j).
bool stores(Integer matrix, Integer i, Integer j)
{
    switch (matrix) {
    case General:
        return true;
    case UpperTriangular:
    case SymmetricUpper:
    case HermitianUpper:
        return i <= j;
    default:
        return i >= j;
    }
}
bool is_symmetric(Integer matrix) { return matrix >= SymmetricUpper; }

Place stored_part(Integer matrix, Integer tda)
{
    return [=](Integer i, Integer j) { return stores(matrix, i, j) ? std::ptrdiff_t{i} * tda + j : -1; };
}

long double norm(Integer kind, const Dense &a)
{
    long double result = 0.0, squares = 0.0;
    std::vector<long double> rows(a.m), columns(a.n);
    for (Integer i = 0; i < a.m; ++i)
        for (Integer j = 0; j < a.n; ++j) {
            const long double size = std::abs(a(i, j));
            rows[i] += size;
            columns[j] += size;
            squares += size * size;
            if (kind == MaxAbsValue) result = std::max(result, size);
        }
    if (kind == FrobeniusNorm) return std::sqrt(squares);
    if (kind == OneNorm)
        for (const long double sum : columns) result = std::max(result, sum);
    if (kind == InfinityNorm)
        for (const long double sum : rows) result = std::max(result, sum);
    return result;
}

constexpr Integer kNorms[] = {OneNorm, FrobeniusNorm, MaxAbsValue, InfinityNorm};
constexpr std::pair<Integer, Integer> kShapes[] = {{0, 3}, {3, 0},   {1, 1},   {2, 3},    {3, 2},
                                                   {5, 5}, {20, 20}, {3, 300}, {40, 140}, {140, 140}};

template <class T, class Norm>
void expect_norms(Norm call, Integer last_type)
{
    Random random;
    for (const auto &[m, n] : kShapes)
        for (Integer type = General; type <= last_type; ++type) {
            if (is_symmetric(type) && m != n) continue;
            const bool hermitian = type >= HermitianUpper;
            const Integer tda = n + 2;
            Stored<T> a{m, n, static_cast<std::size_t>(m) * tda, stored_part(type, tda), random};
            for (const double scale : {1.0, 1e200, 1e-200}) {
                for (T &x : a.array) narrow(wide(x) * static_cast<long double>(scale), x);
                Stored<T> copy = a; // spread poisons what a Hermitian diagonal must not show
                const Dense full = is_symmetric(type) ? copy.spread(hermitian) : copy.dense();
                for (const Integer kind : kNorms) {
                    const long double exact = norm(kind, full);
                    ASSERT_LE(std::abs(call(kind, type, m, n, copy.data(), tda) - exact), (m + n + 4) * kEps * exact)
                        << "norm " << kind << ", type " << type << ", " << m << " by " << n;
                }
            }
            // A NaN shows in every norm, wherever it stands.
            if (m > 0 && n > 0) {
                const Integer j = n - 1, i = stores(type, 0, j) ? 0 : std::min(m, n) - 1;
                narrow(kNan, a.array[i * tda + (stores(type, i, j) ? j : 0)]);
                for (const Integer kind : kNorms)
                    ASSERT_TRUE(std::isnan(call(kind, type, m, n, a.data(), tda))) << kind << " " << type;
            }
        }
}

TEST(MatrixNorm, RealOfEveryType) { expect_norms<double>(f06qgc, SymmetricLower); }
TEST(MatrixNorm, ComplexOfEveryType) { expect_norms<Complex>(f06vgc, HermitianLower); }

TEST(MatrixNorm, RectangularAndTrapezoidal)
{
    Random random;
    for (const auto &[m, n] : kShapes)
        for (const Integer kind : kNorms) {
            const Integer tda = n + 1;
            Stored<double> a = general<double>(m, n, tda, random);
            const long double exact = norm(kind, a.dense());
            EXPECT_LE(std::abs(f06rac(kind, m, n, a.data(), tda) - exact), (m + n + 4) * kEps * exact);
            for (const Integer uplo : kTriangles)
                for (const Integer diag : kDiagonals) {
                    Stored<double> t{m, n, static_cast<std::size_t>(m) * tda,
                                     stored_part(uplo == UpperTriangle ? UpperTriangular : LowerTriangular, tda),
                                     random};
                    Dense full = t.dense();
                    for (Integer i = 0; i < std::min(m, n) && diag == UnitTriangular; ++i) {
                        full(i, i) = 1.0L;
                        poison(t.array[i * tda + i]);
                    }
                    const long double norm_t = norm(kind, full);
                    EXPECT_LE(std::abs(f06rjc(kind, uplo, diag, m, n, t.data(), tda) - norm_t),
                              (m + n + 4) * kEps * norm_t);
                }
        }
}

template <class T, class Copy, class Fill>
void expect_copies_and_fills(Copy copy, Fill fill)
{
    Random random;
    const T con = random.number<T>(), diag = random.number<T>();
    for (const auto &[m, n] : kShapes)
        for (const Integer type : {General, UpperTriangular, LowerTriangular}) {
            const Integer tda = n + 2, tdb = n + 1;
            Stored<T> a{m, n, static_cast<std::size_t>(m) * tda, stored_part(type, tda), random};
            Stored<T> b{m, n, static_cast<std::size_t>(m) * tdb, stored_part(type, tdb), random};
            auto before = b.array;
            copy(type, m, n, a.data(), tda, b.data(), tdb);
            b.expect(a.dense(), 0.0, before, "copy");

            Dense filled{m, n};
            for (Integer i = 0; i < m; ++i)
                for (Integer j = 0; j < n; ++j) filled(i, j) = wide(i == j ? diag : con);
            before = b.array;
            fill(type, m, n, con, diag, b.data(), tdb);
            b.expect(filled, 0.0, before, "fill");
        }
}

TEST(Matrix, CopiedAndFilled)
{
    expect_copies_and_fills<double>(f06qfc, f06qhc);
    expect_copies_and_fills<Complex>(f06tfc, f06thc);
}

// P = P_1 P_2 ... P_n formed explicitly; `first` is the number of the first row in perm.
template <class T, class Index, class Permute>
void expect_permutations(Index first, Permute permute)
{
    Random random;
    // Interchanges that do not commute.
    const Index perm[] = {first + 3, first + 4, first + 5, first + 5, first + 4};
    constexpr Integer n = 5, order = 6, k = 4; // row or column 6 is met by an interchange alone
    Dense P = identity(order);
    for (Integer i = 0; i < n; ++i) {
        Dense one = identity(order);
        const Integer j = static_cast<Integer>(perm[i] - first);
        if (i != j) one(i, i) = one(j, j) = 0.0L, one(i, j) = one(j, i) = 1.0L;
        P = P * one;
    }
    for (const Integer side : kSides)
        for (const Integer trans : kTransposes) {
            const bool left = side == LeftSide;
            const Integer m = left ? order : k, columns = left ? k : order, tdb = columns + 1;
            Stored<T> b = general<T>(m, columns, tdb, random);
            const Dense expected = left ? op(trans, P) * b.dense() : b.dense() * op(trans, P);
            const auto before = b.array;
            permute(side, trans, n, perm, k, b.data(), tdb);
            b.expect(expected, 0.0, before, "permutation");
        }
}

TEST(Matrix, Permuted)
{
    expect_permutations<double, Integer>(0, f06qjc);
    expect_permutations<double, double>(1.0, f06qkc);
    expect_permutations<Complex, double>(1.0, f06vkc);
    double b[] = {1.0, 2.0};
    const double cut[] = {2.9999};
    f06qkc(LeftSide, Transpose, 1, cut, 1, b, 1);
    EXPECT_EQ(b[0], 2.0) << "2.9999 is cut to 2";
}

} // namespace
} // namespace kor::testing
