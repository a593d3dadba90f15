// Coordinate storage: sorting, cleaning, the product of a symmetric matrix.
#include <random>

#include "sparse/matrices.hpp"
#include "support/expect_report.hpp"

namespace kor::testing {
namespace {

struct List {
    std::vector<Integer> row, column;
    std::vector<double> value;
    std::vector<Integer> start;
    Integer nnz;

    List(Integer n, std::vector<Integer> r, std::vector<Integer> c, std::vector<double> v)
        : row{std::move(r)}, column{std::move(c)}, value{std::move(v)},
          start(static_cast<std::size_t>(n) + 1, -7), nnz{static_cast<Integer>(value.size())}
    {
    }
    bool operator==(const List &) const = default;
    Elements elements() const
    {
        Elements found;
        for (std::size_t p = 0; p < static_cast<std::size_t>(nnz); ++p) found[{row[p], column[p]}] = value[p];
        return found;
    }
};

using Sort = void (*)(Integer, Integer *, double[], Integer[], Integer[], Integer, Integer, Integer[], KorError *);

Record sort(Sort routine, Integer n, List &list, Integer dup, Integer zero)
{
    Record fail;
    routine(n, &list.nnz, list.value.data(), list.row.data(), list.column.data(), dup, zero, list.start.data(), &fail);
    return fail;
}

TEST(Sort, BringsAnyListIntoOrderAndTreatsZerosAndRepetitions)
{
    const List given{3, {3, 1, 2, 1, 3, 2, 1}, {1, 1, 2, 1, 1, 3, 3}, {0.0, 4.0, 0.0, 2.0, 5.0, 1.0, -1.0}};
    struct Case {
        Integer dup, zero;
        Elements expected;
        std::vector<Integer> start;
    };
    const Case cases[] = {
        {Kor_SparseNsym_SumDups,
         Kor_SparseNsym_RemoveZeros,
         {{{1, 1}, 6.0}, {{1, 3}, -1.0}, {{2, 3}, 1.0}, {{3, 1}, 5.0}},
         {1, 3, 4, 5}},
        {Kor_SparseNsym_RemoveDups,
         Kor_SparseNsym_KeepZeros,
         {{{1, 1}, 4.0}, {{1, 3}, -1.0}, {{2, 2}, 0.0}, {{2, 3}, 1.0}, {{3, 1}, 0.0}},
         {1, 3, 5, 6}},
        // Zeros go first: the 5 is then the first of its place.
        {Kor_SparseNsym_RemoveDups,
         Kor_SparseNsym_RemoveZeros,
         {{{1, 1}, 4.0}, {{1, 3}, -1.0}, {{2, 3}, 1.0}, {{3, 1}, 5.0}},
         {1, 3, 4, 5}},
    };
    for (const Case &c : cases) {
        List list = given;
        EXPECT_SUCCESS(sort(f11zac, 3, list, c.dup, c.zero));
        EXPECT_EQ(list.elements(), c.expected);
        EXPECT_EQ(static_cast<std::size_t>(list.nnz), c.expected.size());
        EXPECT_EQ(list.start, c.start);
        EXPECT_TRUE(std::is_sorted(list.row.begin(), list.row.begin() + list.nnz));
    }
    List untouched = given;
    EXPECT_REPORT(sort(f11zac, 3, untouched, Kor_SparseNsym_SumDups, Kor_SparseNsym_FailZeros), NE_ZERO_COEFF);
    EXPECT_REPORT(sort(f11zac, 3, untouched, Kor_SparseNsym_FailDups, Kor_SparseNsym_KeepZeros), NE_NON_ZERO_DUP);
    EXPECT_REPORT(sort(f11zac, 2, untouched, Kor_SparseNsym_SumDups, Kor_SparseNsym_KeepZeros), NE_NONSYMM_MATRIX);
    EXPECT_REPORT(sort(f11zbc, 3, untouched, Kor_SparseSym_SumDups, Kor_SparseSym_KeepZeros), NE_SYMM_MATRIX);
    EXPECT_REPORT(sort(f11zac, 0, untouched, Kor_SparseNsym_SumDups, Kor_SparseNsym_KeepZeros), NE_INT_ARG_LT, "n", "1",
                  "n", 0);
    EXPECT_REPORT(sort(f11zac, 3, untouched, Kor_SparseSym_SumDups, Kor_SparseNsym_KeepZeros), NE_BAD_PARAM, "dup");
    EXPECT_REPORT(sort(f11zac, 3, untouched, Kor_SparseNsym_SumDups, Kor_SparseSym_KeepZeros), NE_BAD_PARAM, "zero");
    EXPECT_EQ(untouched, given);
    untouched.nnz = 0;
    EXPECT_REPORT(sort(f11zac, 3, untouched, Kor_SparseNsym_SumDups, Kor_SparseNsym_KeepZeros), NE_INT_ARG_LT, "nnz",
                  "1", "nnz", 0);

    List sums_to_zero{2, {2, 2, 1}, {1, 1, 1}, {3.0, -3.0, 1.0}};
    EXPECT_SUCCESS(sort(f11zbc, 2, sums_to_zero, Kor_SparseSym_SumDups, Kor_SparseSym_RemoveZeros));
    EXPECT_EQ(sums_to_zero.nnz, 1);
}

TEST(Sort, AShuffledMatrixComesBackAndOneInOrderStaysAsItIs)
{
    const Integer n = 57;
    const Elements elements = scattered(n, 0.1, 3.0, 5);
    List list{n, {}, {}, {}};
    for (const auto &[place, value] : elements) {
        list.row.push_back(place.first);
        list.column.push_back(place.second);
        list.value.push_back(value);
    }
    list.nnz = static_cast<Integer>(elements.size());
    const List in_order = list;
    std::mt19937 source{3};
    for (std::size_t p = list.row.size() - 1; p > 0; --p) {
        const std::size_t q = source() % (p + 1);
        std::swap(list.row[p], list.row[q]);
        std::swap(list.column[p], list.column[q]);
        std::swap(list.value[p], list.value[q]);
    }
    for (int time = 0; time < 2; ++time) {
        EXPECT_SUCCESS(sort(f11zac, n, list, Kor_SparseNsym_FailDups, Kor_SparseNsym_FailZeros));
        EXPECT_EQ(list.row, in_order.row);
        EXPECT_EQ(list.column, in_order.column);
        EXPECT_EQ(list.value, in_order.value);
    }
}

TEST(Product, OfASymmetricMatrixAgreesWithTheDenseOne)
{
    for (const Integer n : {1, 2, 9, 40}) {
        Elements lower = lower_triangle(scattered(n, 0.3, 2.0, 11));
        if (n > 2) lower.erase({n / 2, n / 2}); // a row without diagonal
        const Stored s{n, lower};
        const Dense full = dense(n, lower, true);
        std::vector<double> x, y(static_cast<std::size_t>(n), 99.0);
        for (Integer i = 0; i < n; ++i) x.push_back(0.37 * i - 1.9);
        Record fail;
        f11xec(n, s.nnz, s.a, s.irow, s.icol, Kor_SparseSym_Check, x.data(), y.data(), &fail);
        EXPECT_SUCCESS(fail);
        for (std::size_t i = 0; i < full.size(); ++i) {
            long double sum = 0.0L, size = 0.0L;
            for (std::size_t j = 0; j < full.size(); ++j) {
                sum += static_cast<long double>(full[i][j]) * x[j];
                size += std::abs(static_cast<long double>(full[i][j]) * x[j]);
            }
            EXPECT_NEAR(y[i], static_cast<double>(sum), static_cast<double>(size) * n * 0x1p-53);
        }
    }
}

TEST(Product, SaysWhatIsWrong)
{
    const double x[2] = {1.0, 2.0};
    double a[3] = {4.0, -1.0, 7.0}, y[2] = {99.0, 99.0};
    struct Case {
        Integer irow[3], icol[3];
    };
    const Case faults[] = {{{0, 2, 2}, {1, 1, 2}}, {{1, 3, 3}, {1, 1, 2}}, {{1, 2, 2}, {0, 1, 2}},
                           {{1, 2, 2}, {2, 1, 2}}, {{2, 1, 2}, {1, 1, 2}}, {{1, 2, 2}, {1, 2, 1}},
                           {{1, 2, 2}, {1, 2, 2}}};
    Record fail;
    for (const Case &c : faults) {
        f11xec(2, 3, a, c.irow, c.icol, Kor_SparseSym_Check, x, y, &fail);
        EXPECT_REPORT(fail, NE_SYMM_MATRIX_DUP);
    }
    const Integer irow[3] = {1, 2, 2}, icol[3] = {1, 1, 2};
    f11xec(0, 3, a, irow, icol, Kor_SparseSym_Check, x, y, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", 0);
    for (const Integer nnz : {0, 4}) {
        f11xec(2, nnz, a, irow, icol, Kor_SparseSym_Check, x, y, &fail);
        EXPECT_REPORT(fail, NE_INT_2, "n", 2, "nnz", nnz, "1 <= nnz <= n*(n+1)/2");
    }
    f11xec(2, 3, a, irow, icol, Kor_SparseSym_OneNorm, x, y, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "check");
    EXPECT_EQ(y[0], 99.0);
    EXPECT_EQ(y[1], 99.0);
}

} // namespace
} // namespace kor::testing
