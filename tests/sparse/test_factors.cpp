// Incomplete factorisations: patterns, complete factors, pivots and their repair, storage.
#include <cmath>
#include <numeric>
#include <set>

#include "sparse/matrices.hpp"
#include "support/expect_report.hpp"

namespace kor::testing {
namespace {

using Pattern = std::set<std::pair<Integer, Integer>>;

struct Lu {
    Stored s;
    std::vector<Integer> ipivp, ipivq, istr, idiag;
    Integer nnzc = -9, npivm = -9;
    Record fail;

    Lu(Integer n, const Elements &elements, Integer lfill, double dtol, Integer pstrat = Kor_SparseNsym_NoPiv,
       Integer milu = Kor_SparseNsym_UnModFact, std::vector<Integer> p = {}, std::vector<Integer> q = {})
        : s{n, elements}, ipivp(std::move(p)), ipivq(std::move(q)), istr(static_cast<std::size_t>(n) + 1),
          idiag(static_cast<std::size_t>(n))
    {
        ipivp.resize(static_cast<std::size_t>(n));
        ipivq.resize(static_cast<std::size_t>(n));
        f11dac(n, s.nnz, &s.a, &s.la, &s.irow, &s.icol, lfill, dtol, pstrat, milu, ipivp.data(), ipivq.data(),
               istr.data(), idiag.data(), &nnzc, &npivm, &fail);
    }
    Pattern pattern() const
    {
        Pattern found;
        for (Integer p = s.nnz; p < s.nnz + nnzc; ++p) found.insert({s.irow[p], s.icol[p]});
        return found;
    }
    // The product of the factors, in the rows and columns of A.
    Dense product() const
    {
        const auto n = static_cast<std::size_t>(s.n);
        Dense l(n, std::vector<double>(n)), u = l, m = l;
        for (std::size_t i = 0; i < n; ++i) {
            l[i][i] = 1.0;
            for (Integer p = istr[i]; p < istr[i + 1]; ++p) {
                const auto j = static_cast<std::size_t>(s.icol[p - 1] - 1);
                EXPECT_EQ(s.irow[p - 1], static_cast<Integer>(i) + 1);
                (j < i ? l : u)[i][j] = j == i ? 1.0 / s.a[p - 1] : s.a[p - 1];
                EXPECT_EQ(j == i, p == idiag[i]);
            }
        }
        for (std::size_t i = 0; i < n; ++i)
            for (std::size_t j = 0; j < n; ++j)
                for (std::size_t k = 0; k < n; ++k)
                    m[static_cast<std::size_t>(ipivp[i] - 1)][static_cast<std::size_t>(ipivq[j] - 1)] +=
                        l[i][k] * u[k][j];
        return m;
    }
};

struct Cholesky {
    Stored s;
    std::vector<Integer> ipiv, istr;
    Integer nnzc = -9, npivm = -9;
    Record fail;

    Cholesky(Integer n, const Elements &lower, Integer lfill, double dtol, Integer pstrat = Kor_SparseSym_NoPiv,
             Integer mic = Kor_SparseSym_UnModFact, std::vector<Integer> order = {}, double dscale = 0.0)
        : s{n, lower}, ipiv(std::move(order)), istr(static_cast<std::size_t>(n) + 1)
    {
        ipiv.resize(static_cast<std::size_t>(n));
        f11jac(n, s.nnz, &s.a, &s.la, &s.irow, &s.icol, lfill, dtol, mic, dscale, pstrat, ipiv.data(), istr.data(),
               &nnzc, &npivm, &fail);
    }
    Dense product() const
    {
        const auto n = static_cast<std::size_t>(s.n);
        Dense l(n, std::vector<double>(n)), m = l;
        std::vector<double> d(n);
        for (std::size_t i = 0; i < n; ++i) {
            for (Integer p = istr[i]; p < istr[i + 1]; ++p)
                l[i][static_cast<std::size_t>(s.icol[p - 1] - 1)] = s.a[p - 1];
            d[i] = 1.0 / l[i][i];
            l[i][i] = 1.0;
        }
        for (std::size_t i = 0; i < n; ++i)
            for (std::size_t j = 0; j < n; ++j)
                for (std::size_t k = 0; k < n; ++k)
                    m[static_cast<std::size_t>(ipiv[i] - 1)][static_cast<std::size_t>(ipiv[j] - 1)] +=
                        l[i][k] * d[k] * l[j][k];
        return m;
    }
    std::vector<double> solve(const std::vector<double> &y)
    {
        std::vector<double> x(y.size(), 99.0);
        f11jbc(s.n, s.a, s.la, s.irow, s.icol, ipiv.data(), istr.data(), y.data(), x.data(), &fail);
        return x;
    }
};

double largest_difference(const Dense &a, const Dense &b)
{
    double largest = 0.0;
    for (std::size_t i = 0; i < a.size(); ++i)
        for (std::size_t j = 0; j < a.size(); ++j) {
            const double difference = std::abs(a[i][j] - b[i][j]);
            largest = difference <= largest ? largest : difference; // a NaN counts
        }
    return largest;
}

std::vector<Integer> reversed(Integer n)
{
    std::vector<Integer> order(static_cast<std::size_t>(n));
    std::iota(order.rbegin(), order.rend(), 1);
    return order;
}

std::vector<Integer> in_order(Integer n)
{
    std::vector<Integer> order(static_cast<std::size_t>(n));
    std::iota(order.begin(), order.end(), 1);
    return order;
}

// Without fill and pivoting there is a short way; an order that is given, and that of A, takes the long one.
TEST(Factors, WithoutFillBothWaysLeadToTheSame)
{
    const Integer n = 40;
    const Elements full = scattered(n, 0.2, 6.0, 8);
    for (const Integer milu : {Kor_SparseNsym_UnModFact, Kor_SparseNsym_ModFact}) {
        const Lu a{n, full, 0, 0.0, Kor_SparseNsym_NoPiv, milu},
            b{n, full, 0, 0.0, Kor_SparseNsym_UserPiv, milu, in_order(n), in_order(n)};
        EXPECT_EQ(a.istr, b.istr);
        EXPECT_EQ(a.idiag, b.idiag);
        EXPECT_EQ(a.pattern(), b.pattern());
        for (Integer p = a.s.nnz; p < 2 * a.s.nnz; ++p)
            EXPECT_NEAR(a.s.a[p], b.s.a[p], 4 * 0x1p-53 * std::abs(b.s.a[p]));
    }
    const Cholesky a{n, lower_triangle(full), 0, 0.0},
        b{n, lower_triangle(full), 0, 0.0, Kor_SparseSym_UserPiv, Kor_SparseSym_UnModFact, in_order(n)};
    EXPECT_EQ(a.npivm, 0);
    EXPECT_EQ(a.istr, b.istr);
    for (Integer p = a.s.nnz; p < 2 * a.s.nnz; ++p) EXPECT_EQ(a.s.a[p], b.s.a[p]);
}

constexpr double kRoundOff = 200 * 0x1p-53; // of a complete factorisation of order 60, elements of size 10

TEST(IncompleteLu, WithoutFillKeepsThePatternAndTheElementsOfA)
{
    const Integer side = 7, n = side * side;
    const Elements elements = grid(side, 0.3);
    const Lu lu{n, elements, 0, 0.0};
    EXPECT_SUCCESS(lu.fail);
    EXPECT_EQ(lu.npivm, 0);
    EXPECT_EQ(lu.nnzc, lu.s.nnz);
    EXPECT_EQ(lu.s.la, 2 * lu.s.nnz);
    EXPECT_EQ(lu.istr.front(), lu.s.nnz + 1);
    EXPECT_EQ(lu.istr.back(), lu.s.nnz + lu.nnzc + 1);
    // What defines the factor: LU agrees with A wherever A has an element.
    const Dense product = lu.product(), a = dense(n, elements);
    for (const auto &[place, value] : elements) {
        EXPECT_TRUE(lu.pattern().contains(place));
        EXPECT_NEAR(product[static_cast<std::size_t>(place.first - 1)][static_cast<std::size_t>(place.second - 1)],
                    value, 8 * 0x1p-53);
    }
    // Modified: the rows of LU have the sums of those of A.
    const Lu modified{n, elements, 0, 0.0, Kor_SparseNsym_NoPiv, Kor_SparseNsym_ModFact};
    const Dense same_sums = modified.product();
    for (std::size_t i = 0; i < a.size(); ++i)
        EXPECT_NEAR(std::reduce(same_sums[i].begin(), same_sums[i].end()), std::reduce(a[i].begin(), a[i].end()),
                    40 * 0x1p-53);
}

TEST(IncompleteLu, AllFillGivesTheCompleteFactors)
{
    const Integer n = 60;
    const Elements elements = scattered(n, 0.06, 6.0, 21);
    const Dense a = dense(n, elements);
    std::vector<Integer> rotated(static_cast<std::size_t>(n));
    for (Integer i = 0; i < n; ++i) rotated[static_cast<std::size_t>(i)] = (i + 7) % n + 1;
    const Integer strategies[] = {Kor_SparseNsym_NoPiv, Kor_SparseNsym_PartialPiv, Kor_SparseNsym_CompletePiv};
    for (const Integer pstrat : strategies) {
        const Lu lu{n, elements, -1, 0.0, pstrat};
        EXPECT_SUCCESS(lu.fail);
        EXPECT_EQ(lu.npivm, 0);
        EXPECT_LT(largest_difference(lu.product(), a), kRoundOff) << pstrat;
        // The same factors, when their orders are given.
        const Lu again{n, elements, -1, 0.0, Kor_SparseNsym_UserPiv, Kor_SparseNsym_UnModFact, lu.ipivp, lu.ipivq};
        EXPECT_EQ(again.nnzc, lu.nnzc);
        EXPECT_EQ(again.product(), lu.product());
    }
    const Lu user{n, elements, -1, 0.0, Kor_SparseNsym_UserPiv, Kor_SparseNsym_UnModFact, rotated, rotated};
    EXPECT_LT(largest_difference(user.product(), a), kRoundOff);
    const Lu levels{n, elements, n, 0.0};
    EXPECT_LT(largest_difference(levels.product(), a), kRoundOff);
}

TEST(IncompleteLu, FillIsOneLevelAboveTheHigherOfItsParents)
{
    // (3,4) arises from pivot 1 and (5,3) from pivot 2, both at level 1. They are the parents of (5,4): level 2, where a sum
    // of their levels would give 3.
    const Elements elements = {{{1, 1}, 4.0}, {{2, 2}, 4.0}, {{3, 3}, 4.0}, {{4, 4}, 4.0}, {{5, 5}, 4.0},
                               {{3, 1}, 1.0}, {{1, 4}, 1.0}, {{5, 2}, 1.0}, {{2, 3}, 1.0}};
    Pattern expected;
    for (const auto &element : elements) expected.insert(element.first);
    EXPECT_EQ((Lu{5, elements, 0, 0.0}.pattern()), expected);
    expected.insert({{3, 4}, {5, 3}});
    EXPECT_EQ((Lu{5, elements, 1, 0.0}.pattern()), expected);
    expected.insert({5, 4});
    EXPECT_EQ((Lu{5, elements, 2, 0.0}.pattern()), expected);

    Elements lower;
    for (Integer i = 1; i <= 5; ++i) lower[{i, i}] = 4.0;
    lower.insert({{{3, 1}, 1.0}, {{4, 1}, 1.0}, {{3, 2}, 1.0}, {{5, 2}, 1.0}});
    EXPECT_EQ((Cholesky{5, lower, 0, 0.0}.nnzc), 9);
    EXPECT_EQ((Cholesky{5, lower, 1, 0.0}.nnzc), 11); // (4,3) and (5,3)
    EXPECT_EQ((Cholesky{5, lower, 2, 0.0}.nnzc), 12); // (5,4), of level 2
}

TEST(IncompleteLu, FillIsDroppedByItsSize)
{
    // Fill at (2,3), of -0.5 x 0.25 = -0.125, next to a greatest element of 4.
    const Elements elements = {{{1, 1}, 4.0}, {{1, 3}, 0.25}, {{2, 1}, 2.0}, {{2, 2}, 4.0}, {{3, 3}, 4.0}};
    for (const Integer milu : {Kor_SparseNsym_UnModFact, Kor_SparseNsym_ModFact}) {
        const Lu kept{3, elements, -1, 0.03125, Kor_SparseNsym_NoPiv, milu};
        EXPECT_EQ(kept.nnzc, 6);
        EXPECT_EQ(kept.s.a[kept.idiag[1] - 1], 0.25);
        const Lu dropped{3, elements, -1, 0.032, Kor_SparseNsym_NoPiv, milu};
        EXPECT_EQ(dropped.nnzc, 5);
        EXPECT_EQ(dropped.s.a[dropped.idiag[1] - 1], milu == Kor_SparseNsym_ModFact ? 1.0 / 3.875 : 0.25);
    }
}

TEST(IncompleteLu, PivotsThatAreMissingOrTooSmallAreReplaced)
{
    const Elements no_diagonal = {{{1, 2}, 2.0}, {{2, 1}, 3.0}};
    const Lu forced{2, no_diagonal, -1, 0.0};
    EXPECT_SUCCESS(forced.fail);
    EXPECT_EQ(forced.npivm, 1); // the second is filled in
    EXPECT_EQ(forced.s.a[forced.idiag[0] - 1], 1.0);
    EXPECT_EQ(forced.s.a[forced.idiag[1] - 1], -1.0 / 6.0);
    for (const Integer pstrat : {Kor_SparseNsym_PartialPiv, Kor_SparseNsym_CompletePiv}) {
        const Lu pivoted{2, no_diagonal, 0, 0.0, pstrat};
        EXPECT_EQ(pivoted.npivm, 0);
        EXPECT_EQ(largest_difference(pivoted.product(), dense(2, no_diagonal)), 0.0);
    }
    // An empty row, whatever the strategy.
    for (const Integer pstrat : {Kor_SparseNsym_NoPiv, Kor_SparseNsym_PartialPiv, Kor_SparseNsym_CompletePiv})
        EXPECT_EQ((Lu{3, {{{1, 1}, 2.0}, {{3, 2}, 1.0}, {{3, 3}, 4.0}}, 0, 0.0, pstrat}.npivm), 1);
    // The bound lies at 10 times the precision, however small the elements.
    EXPECT_EQ((Lu{1, {{{1, 1}, 1.11e-15}}, 0, 0.0}.npivm), 1);
    EXPECT_EQ((Lu{1, {{{1, 1}, 1.12e-15}}, 0, 0.0}.npivm), 0);
    EXPECT_EQ((Lu{2, {{{1, 1}, 1000.0}, {{2, 2}, 1.11e-13}}, 0, 0.0}.npivm), 1);
    EXPECT_EQ((Lu{2, {{{1, 1}, 1000.0}, {{2, 2}, 1.12e-13}}, 0, 0.0}.npivm), 0);
}

// Row 3 has nothing left for a pivot without its fill: it is done again with all of it.
TEST(IncompleteLu, ARowWithoutPivotIsDoneAgainWithoutDropping)
{
    const Elements elements = {{{1, 1}, 4.0}, {{1, 3}, 1.0}, {{2, 2}, 4.0},
                               {{2, 3}, 1.0}, {{3, 1}, 4.0}, {{3, 2}, 4.0}};
    const Lu plain{3, elements, 0, 0.0};
    EXPECT_EQ(plain.npivm, 0);
    EXPECT_EQ(plain.nnzc, plain.s.nnz + 1);
    EXPECT_LT(largest_difference(plain.product(), dense(3, elements)), 8 * 0x1p-53);
    const Lu complete{3, elements, 0, 0.0, Kor_SparseNsym_CompletePiv};
    EXPECT_EQ(complete.npivm, -1);
}

TEST(IncompleteCholesky, AllFillGivesTheCompleteFactorsAndSolves)
{
    const Integer side = 8, n = side * side;
    const Elements lower = lower_triangle(grid(side));
    const Dense a = dense(n, lower, true);
    std::vector<double> y;
    for (Integer i = 0; i < n; ++i) y.push_back(std::cos(1.3 * i));
    for (const Integer pstrat : {Kor_SparseSym_NoPiv, Kor_SparseSym_MarkPiv, Kor_SparseSym_UserPiv}) {
        Cholesky c{n, lower, -1, 0.0, pstrat, Kor_SparseSym_UnModFact, reversed(n)};
        EXPECT_SUCCESS(c.fail);
        EXPECT_EQ(c.npivm, 0);
        EXPECT_LT(largest_difference(c.product(), a), 20 * 0x1p-53) << pstrat;
        // The storage has grown by whole steps of 1 percent, not beyond what was needed.
        const Integer step = (c.s.nnz + 50) / 100, needed = c.s.nnz + c.nnzc;
        EXPECT_EQ((c.s.la - 2 * c.s.nnz) % step, 0);
        EXPECT_TRUE(c.s.la >= needed && c.s.la < needed + step);

        const std::vector<double> x = c.solve(y);
        EXPECT_SUCCESS(c.fail);
        for (std::size_t i = 0; i < y.size(); ++i)
            EXPECT_NEAR(std::inner_product(a[i].begin(), a[i].end(), x.begin(), 0.0), y[i], 200 * 0x1p-53);
    }
    // The order by the number of neighbours is there to save fill.
    const Integer natural = Cholesky{n, lower, -1, 0.0}.nnzc,
                  markowitz = Cholesky{n, lower, -1, 0.0, Kor_SparseSym_MarkPiv}.nnzc;
    EXPECT_LT(markowitz, 0.8 * natural);
}

// Nodes with many neighbours, which are looked up in another way than those with few.
TEST(IncompleteCholesky, RowsMayBeLong)
{
    const Integer n = 400;
    Elements lower = lower_triangle(scattered(n, 0.01, 8.0, 4));
    for (Integer i = 1; i <= n; ++i)
        for (const Integer dense : {17, 250, n - 1, n})
            lower[{std::max(i, dense), std::min(i, dense)}] = i == dense ? 300.0 : 0.5 + 0.001 * i;
    for (const Integer pstrat : {Kor_SparseSym_NoPiv, Kor_SparseSym_MarkPiv}) {
        const Cholesky c{n, lower, -1, 0.0, pstrat};
        EXPECT_EQ(c.npivm, 0);
        EXPECT_LT(largest_difference(c.product(), dense(n, lower, true)), 1000 * n * 0x1p-53);
    }
}

TEST(IncompleteCholesky, WithoutFillAgreesWithAWhereAHasElements)
{
    const Integer side = 6, n = side * side;
    const Elements lower = lower_triangle(grid(side));
    const Dense a = dense(n, lower, true);
    for (const Integer pstrat : {Kor_SparseSym_NoPiv, Kor_SparseSym_MarkPiv, Kor_SparseSym_UserPiv}) {
        const Cholesky c{n, lower, 0, 0.0, pstrat, Kor_SparseSym_UnModFact, reversed(n)};
        EXPECT_EQ(c.nnzc, c.s.nnz);
        const Dense product = c.product();
        for (const auto &[place, value] : lower)
            EXPECT_NEAR(product[static_cast<std::size_t>(place.first - 1)][static_cast<std::size_t>(place.second - 1)],
                        value, 8 * 0x1p-53);
        const Cholesky modified{n, lower, 0, 0.0, pstrat, Kor_SparseSym_ModFact, reversed(n)};
        const Dense same_sums = modified.product();
        for (std::size_t i = 0; i < a.size(); ++i)
            EXPECT_NEAR(std::reduce(same_sums[i].begin(), same_sums[i].end()), std::reduce(a[i].begin(), a[i].end()),
                        40 * 0x1p-53);
    }
    EXPECT_EQ((Cholesky{1, {{{1, 1}, 3.0}}, 0, 0.0, Kor_SparseSym_NoPiv, Kor_SparseSym_UnModFact, {}, 0.25}.s.a[1]),
              1.0 / 3.75);
}

TEST(IncompleteCholesky, PivotsThatAreNotPositiveAreRaised)
{
    // The second pivot is 1 - 4 = -3; beside it stands nothing any more.
    const Cholesky indefinite{2, {{{1, 1}, 1.0}, {{2, 1}, 2.0}, {{2, 2}, 1.0}}, 0, 0.0};
    EXPECT_EQ(indefinite.npivm, 1);
    EXPECT_EQ(indefinite.s.a[5], 1.0);
    // The first is 1 percent of what stands beside it.
    const Cholesky raised{2, {{{1, 1}, 0.02}, {{2, 1}, 2.0}, {{2, 2}, 9.0}}, 0, 0.0};
    EXPECT_EQ(raised.npivm, 1);
    EXPECT_EQ(raised.s.a[3], 0.5);
    EXPECT_EQ((Cholesky{2, {{{1, 1}, 0.0201}, {{2, 1}, 2.0}, {{2, 2}, 9e3}}, 0, 0.0}.npivm), 0);
}

TEST(Factors, SayWhatIsWrong)
{
    const Elements lower = {{{1, 1}, 4.0}, {{2, 1}, 1.0}, {{2, 2}, 5.0}};
    const auto lu = [&](Integer n, Integer lfill, double dtol, Integer pstrat, Integer milu, std::vector<Integer> p) {
        Lu tried{2, lower, 0, 0.0}; // gives arrays
        tried.nnzc = -9;
        tried.ipivp = std::move(p);
        f11dac(n, tried.s.nnz, &tried.s.a, &tried.s.la, &tried.s.irow, &tried.s.icol, lfill, dtol, pstrat, milu,
               tried.ipivp.data(), tried.ipivq.data(), tried.istr.data(), tried.idiag.data(), &tried.nnzc, &tried.npivm,
               &tried.fail);
        EXPECT_EQ(tried.nnzc, -9);
        return tried.fail;
    };
    const Integer no_piv = Kor_SparseNsym_NoPiv, user = Kor_SparseNsym_UserPiv, plain = Kor_SparseNsym_UnModFact;
    EXPECT_REPORT(lu(0, 0, 0.0, no_piv, plain, {1, 2}), NE_INT_ARG_LT, "n", "1", "n", 0);
    EXPECT_REPORT(lu(1, 0, 0.0, no_piv, plain, {1, 2}), NE_INT_2, "n", 1, "nnz", 3, "1 <= nnz <= n * n");
    EXPECT_REPORT(lu(2, -1, -0.5, no_piv, plain, {1, 2}), NE_REAL_INT_ARG_CONS, "dtol", -0.5, "lfill", -1,
                  "dtol >= 0.0 if lfill < 0");
    EXPECT_REPORT(lu(2, 0, -0.5, 0, plain, {1, 2}), NE_BAD_PARAM, "pstrat");
    EXPECT_REPORT(lu(2, 0, -0.5, no_piv, 0, {1, 2}), NE_BAD_PARAM, "milu");
    EXPECT_REPORT(lu(2, 0, 0.0, user, plain, {1, 1}), NE_INVALID_ROWCOL_PIVOT);
    EXPECT_REPORT(lu(2, 0, 0.0, user, plain, {0, 2}), NE_INVALID_ROWCOL_PIVOT);

    Stored s{2, lower};
    Integer ipiv[2] = {2, 2}, istr[3] = {}, idiag[2], nnzc = -9, npivm = -9, short_la = 5;
    Record fail;
    f11jac(2, 3, &s.a, &short_la, &s.irow, &s.icol, 0, 0.0, Kor_SparseSym_UnModFact, 0.0, Kor_SparseSym_NoPiv, ipiv,
           istr, &nnzc, &npivm, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "la", 5, "2*nnz", 6, "la", "2*nnz");
    f11jac(2, 3, &s.a, &s.la, &s.irow, &s.icol, 0, 0.0, Kor_SparseSym_UnModFact, 0.0, Kor_SparseSym_UserPiv, ipiv, istr,
           &nnzc, &npivm, &fail);
    EXPECT_REPORT(fail, NE_INVALID_ROW_PIVOT);
    f11jac(2, 3, &s.a, &s.la, &s.irow, &s.icol, 0, 0.0, 0, 0.0, Kor_SparseSym_UserPiv, ipiv, istr, &nnzc, &npivm,
           &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "mic");
    std::swap(s.irow[0], s.irow[2]);
    f11jac(2, 3, &s.a, &s.la, &s.irow, &s.icol, 0, 0.0, Kor_SparseSym_UnModFact, 0.0, Kor_SparseSym_NoPiv, ipiv, istr,
           &nnzc, &npivm, &fail);
    EXPECT_REPORT(fail, NE_SYMM_MATRIX_DUP);
    f11dac(2, 3, &s.a, &s.la, &s.irow, &s.icol, 0, 0.0, no_piv, plain, ipiv, ipiv, istr, idiag, &nnzc, &npivm, &fail);
    EXPECT_REPORT(fail, NE_NONSYMM_MATRIX_DUP);
    EXPECT_EQ(nnzc, -9);
    EXPECT_EQ(ipiv[0], 2);

    // A factor that has been tampered with.
    Cholesky c{2, lower, 0, 0.0};
    for (const Integer change : {-1, 1, 40}) {
        c.istr[1] += change;
        EXPECT_EQ(c.solve({1.0, 2.0})[0], 99.0);
        EXPECT_REPORT(c.fail, NE_INVALID_SCS_PRECOND);
        c.istr[1] -= change;
    }
    c.s.icol[4] = 7;
    c.solve({1.0, 2.0});
    EXPECT_REPORT(c.fail, NE_INVALID_SCS_PRECOND);
}

// Not a number and the infinities neither hang nor crash the elimination.
TEST(Factors, TakeAnyNumbers)
{
    for (const double bad : {double{NAN}, double{INFINITY}, -double{INFINITY}, 1e308, 5e-324}) {
        Elements elements = grid(4, 0.2);
        elements[{6, 6}] = bad;
        elements[{7, 6}] = bad;
        for (const Integer pstrat : {Kor_SparseNsym_NoPiv, Kor_SparseNsym_PartialPiv, Kor_SparseNsym_CompletePiv})
            EXPECT_SUCCESS((Lu{16, elements, -1, 1e-3, pstrat}.fail));
        for (const Integer pstrat : {Kor_SparseSym_NoPiv, Kor_SparseSym_MarkPiv})
            EXPECT_SUCCESS((Cholesky{16, lower_triangle(elements), -1, 1e-3, pstrat}.fail));
    }
}

} // namespace
} // namespace kor::testing
