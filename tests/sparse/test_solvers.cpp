// The solvers: all methods and preconditioners, how they end, and what they say.
#include <chrono>
#include <cmath>
#include <string>

#include "sparse/matrices.hpp"
#include "support/expect_report.hpp"

namespace kor::testing {
namespace {

constexpr double kEps = 0x1p-53;

std::vector<double> wave(Integer n, double size = 1.0)
{
    std::vector<double> v;
    for (Integer i = 0; i < n; ++i) v.push_back(size * (std::sin(0.7 * i) + 0.3));
    return v;
}

struct Norms {
    double residual, solution, matrix, right_hand;
    double relative() const { return residual / (matrix * solution + right_hand); }
};

// In extended precision, from scratch.
Norms norms(const Elements &elements, bool symmetric, const std::vector<double> &x, const std::vector<double> &b)
{
    std::vector<long double> r(b.begin(), b.end()), sums(b.size(), 0.0L);
    const auto use = [&](std::size_t i, std::size_t j, double value) {
        r[i] -= static_cast<long double>(value) * x[j];
        sums[i] += std::abs(value);
    };
    for (const auto &[place, value] : elements) {
        const auto i = static_cast<std::size_t>(place.first - 1), j = static_cast<std::size_t>(place.second - 1);
        use(i, j, value);
        if (symmetric && i != j) use(j, i, value);
    }
    const auto largest = [](const auto &v) {
        long double greatest = 0.0L;
        for (const auto &e : v)
            if (!(std::abs(e) <= greatest)) greatest = std::abs(e);
        return static_cast<double>(greatest);
    };
    return {largest(r), largest(x), largest(sums), largest(b)};
}

// A solver's arguments and results; the preconditioner is one of f11dec's or f11jec's, or 0 for incomplete factors.
struct Trial {
    Integer method = 0, precon = 0;
    double tol = 1e-10, omega = 1.2;
    Integer m = 4, maxitn = 500;
    Integer lfill = 0;
    std::vector<double> x{};
    double rnorm = -9.0, anorm = 0.0;
    Integer itn = -9;
    Record fail{};

    void general(Integer n, const Elements &elements, const std::vector<double> &b)
    {
        Stored s{n, elements};
        if (x.empty()) x.assign(b.size(), 0.0);
        if (precon != 0)
            return f11dec(method, precon, n, s.nnz, s.a, s.irow, s.icol, omega, b.data(), m, tol, maxitn, x.data(),
                          &rnorm, &itn, nullptr, &fail);
        std::vector<Integer> p(b.size()), q(b.size()), istr(b.size() + 1), idiag(b.size());
        Integer nnzc, npivm;
        f11dac(n, s.nnz, &s.a, &s.la, &s.irow, &s.icol, lfill, 0.0, Kor_SparseNsym_PartialPiv, Kor_SparseNsym_UnModFact,
               p.data(), q.data(), istr.data(), idiag.data(), &nnzc, &npivm, &fail);
        f11dcc(method, n, s.nnz, s.a, s.la, s.irow, s.icol, p.data(), q.data(), istr.data(), idiag.data(), b.data(), m,
               tol, maxitn, x.data(), &rnorm, &itn, nullptr, &fail);
    }
    void symmetric(Integer n, const Elements &lower, const std::vector<double> &b)
    {
        Stored s{n, lower};
        if (x.empty()) x.assign(b.size(), 0.0);
        if (precon != 0)
            return f11jec(method, precon, n, s.nnz, s.a, s.la, s.irow, s.icol, omega, b.data(), tol, maxitn, x.data(),
                          &rnorm, &itn, &anorm, nullptr, &fail);
        std::vector<Integer> p(b.size()), istr(b.size() + 1);
        Integer nnzc, npivm;
        f11jac(n, s.nnz, &s.a, &s.la, &s.irow, &s.icol, lfill, 0.0, Kor_SparseSym_UnModFact, 0.0, Kor_SparseSym_MarkPiv,
               p.data(), istr.data(), &nnzc, &npivm, &fail);
        f11jcc(method, n, s.nnz, s.a, s.la, s.irow, s.icol, p.data(), istr.data(), b.data(), tol, maxitn, x.data(),
               &rnorm, &itn, &anorm, nullptr, &fail);
    }
};

const Integer kGeneralMethods[] = {Kor_SparseNsym_RGMRES, Kor_SparseNsym_CGS, Kor_SparseNsym_BiCGSTAB};
const Integer kGeneralPrecons[] = {0, Kor_SparseNsym_NoPrec, Kor_SparseNsym_JacPrec, Kor_SparseNsym_SSORPrec};
const Integer kSymmetricMethods[] = {Kor_SparseSym_CG, Kor_SparseSym_Lanczos};
const Integer kSymmetricPrecons[] = {0, Kor_SparseSym_NoPrec, Kor_SparseSym_JacPrec, Kor_SparseSym_SSORPrec};

TEST(GeneralSolvers, ReachTheAccuracyThatIsAskedFor)
{
    const Integer side = 15, n = side * side;
    const std::vector<double> b = wave(n);
    for (const double wind : {0.0, 0.5, 3.0})
        for (const Integer method : kGeneralMethods)
            for (const Integer precon : kGeneralPrecons)
                for (const double tol : {1e-4, 1e-10, 1e-14}) {
                    // Far beyond a cell Peclet number of 1 the simple preconditioners are of little use.
                    if (wind > 1.0 && precon != 0) continue;
                    const Elements elements = grid(side, wind);
                    Trial run{.method = method, .precon = precon, .tol = tol};
                    if (method == Kor_SparseNsym_RGMRES) run.m = 30;
                    run.general(n, elements, b);
                    EXPECT_SUCCESS(run.fail) << method << " " << precon << " " << wind << " " << tol;
                    const Norms found = norms(elements, false, run.x, b);
                    EXPECT_LE(found.relative(), 10.0 * tol) << method << " " << precon << " " << wind;
                    EXPECT_NEAR(run.rnorm, found.residual,
                                20 * kEps * (found.matrix * found.solution + found.right_hand));
                }
}

TEST(SymmetricSolvers, ReachTheAccuracyThatIsAskedFor)
{
    const Integer side = 15, n = side * side;
    const std::vector<double> b = wave(n);
    const Elements lower = lower_triangle(grid(side));
    for (const Integer precon : kSymmetricPrecons)
        for (const double tol : {1e-4, 1e-10, 1e-14}) {
            Integer count[2];
            for (const Integer method : kSymmetricMethods) {
                Trial run{.method = method, .precon = precon, .tol = tol};
                run.symmetric(n, lower, b);
                EXPECT_SUCCESS(run.fail) << method << " " << precon << " " << tol;
                const Norms found = norms(lower, true, run.x, b);
                EXPECT_LE(found.relative(), 10.0 * tol) << method << " " << precon;
                EXPECT_NEAR(run.rnorm, found.residual, 20 * kEps * (found.matrix * found.solution + found.right_hand));
                EXPECT_EQ(run.anorm, 8.0);
                count[method == Kor_SparseSym_Lanczos] = run.itn;
            }
            // For a positive-definite matrix the better of the two points is that of the conjugate gradients.
            EXPECT_NEAR(count[0], count[1], 2);
        }
    // The ends of the range of omega are in it.
    for (const double omega : {0.0, 2.0}) {
        Trial run{.method = Kor_SparseSym_CG, .precon = Kor_SparseSym_SSORPrec, .omega = omega};
        run.symmetric(n, lower, b);
        EXPECT_SUCCESS(run.fail);
    }
}

// The counts that theory and experience tell for the five-point grid.
TEST(Solvers, PreconditionersSaveIterations)
{
    const Integer side = 40, n = side * side;
    const std::vector<double> b = wave(n);
    const Elements lower = lower_triangle(grid(side)), full = grid(side, 0.2);
    const auto count = [&](Integer precon, Integer lfill) {
        Trial run{.method = Kor_SparseSym_CG, .precon = precon, .omega = 1.7, .lfill = lfill};
        run.symmetric(n, lower, b);
        return run.itn;
    };
    const Integer none = count(Kor_SparseSym_NoPrec, 0);
    EXPECT_LT(count(Kor_SparseSym_SSORPrec, 0), none / 2);
    EXPECT_LT(count(0, 0), none / 2);
    EXPECT_LT(count(0, 2), count(0, 0));
    const auto general_count = [&](Integer precon, Integer lfill) {
        Trial run{.method = Kor_SparseNsym_BiCGSTAB, .precon = precon, .m = 2, .lfill = lfill};
        run.general(n, full, b);
        return run.itn;
    };
    EXPECT_LT(general_count(0, 0), general_count(Kor_SparseNsym_NoPrec, 0) / 2);
    EXPECT_LE(general_count(0, n), 2); // complete factors
}

TEST(Solvers, EasyBeginningsAndSizes)
{
    const Integer side = 9, n = side * side;
    const Elements full = grid(side, 0.3), lower = lower_triangle(grid(side));
    const std::vector<double> solution = wave(n), zeros(static_cast<std::size_t>(n), 0.0);
    std::vector<double> b = zeros, b_symmetric = zeros;
    for (const auto &[place, value] : full)
        b[static_cast<std::size_t>(place.first - 1)] += value * solution[static_cast<std::size_t>(place.second - 1)];
    const Stored s{n, lower};
    Record quiet;
    f11xec(n, s.nnz, s.a, s.irow, s.icol, Kor_SparseSym_Check, solution.data(), b_symmetric.data(), &quiet);

    const auto each = [&](const std::vector<double> &right, const std::vector<double> &right_symmetric, double factor,
                          const std::vector<double> &start, auto look) {
        const auto scaled = [&](std::vector<double> v) {
            for (double &e : v) e *= factor;
            return v;
        };
        for (const Integer method : kGeneralMethods)
            for (const Integer precon : kGeneralPrecons) {
                Trial run{.method = method, .precon = precon, .tol = 1e-12, .x = start};
                run.general(n, full, scaled(right));
                EXPECT_SUCCESS(run.fail);
                look(run);
            }
        for (const Integer method : kSymmetricMethods)
            for (const Integer precon : kSymmetricPrecons) {
                Trial run{.method = method, .precon = precon, .tol = 1e-12, .x = start};
                run.symmetric(n, lower, scaled(right_symmetric));
                EXPECT_SUCCESS(run.fail);
                look(run);
            }
    };
    // The solution itself for a start.
    each(b, b_symmetric, 1.0, solution, [&](const Trial &run) {
        EXPECT_EQ(run.itn, 0);
        EXPECT_EQ(run.x, solution);
    });
    // Nothing on the right.
    each(zeros, zeros, 1.0, solution, [&](const Trial &run) {
        EXPECT_EQ(run.itn, 0);
        EXPECT_EQ(run.rnorm, 0.0);
        EXPECT_EQ(run.x, zeros);
    });
    // Right-hand sides whose squares overflow or underflow.
    std::vector<std::vector<double>> found;
    each(b, b_symmetric, 1.0, zeros, [&](const Trial &run) { found.push_back(run.x); });
    for (const double factor : {0x1p-950, 0x1p950}) {
        std::size_t at = 0;
        each(b, b_symmetric, factor, zeros, [&](const Trial &run) {
            for (std::size_t i = 0; i < run.x.size(); ++i) EXPECT_EQ(run.x[i], found[at][i] * factor);
            ++at;
        });
    }
    // One equation.
    for (const Integer method : kGeneralMethods) {
        Trial run{.method = method, .precon = Kor_SparseNsym_NoPrec, .m = 1};
        run.general(1, {{{1, 1}, -3.0}}, {6.0});
        EXPECT_SUCCESS(run.fail);
        EXPECT_EQ(run.x[0], -2.0);
    }
}

TEST(Solvers, TooFewIterationsLeaveTheBestApproximation)
{
    const Integer side = 20, n = side * side;
    const std::vector<double> b = wave(n);
    const Elements full = grid(side, 0.3), lower = lower_triangle(grid(side));
    for (const Integer method : kGeneralMethods) {
        Trial run{.method = method, .precon = Kor_SparseNsym_JacPrec, .maxitn = 7};
        run.general(n, full, b);
        EXPECT_REPORT(run.fail, NE_NOT_REQ_ACC);
        EXPECT_EQ(run.itn, 7);
        const Norms found = norms(full, false, run.x, b);
        EXPECT_NEAR(run.rnorm, found.residual, 1e-12);
        EXPECT_LE(found.residual, found.right_hand);
    }
    for (const Integer method : kSymmetricMethods) {
        Trial run{.method = method, .precon = Kor_SparseSym_NoPrec, .maxitn = 7};
        run.symmetric(n, lower, b);
        EXPECT_REPORT(run.fail, NE_NOT_REQ_ACC);
        EXPECT_EQ(run.itn, 7);
        EXPECT_NEAR(run.rnorm, norms(lower, true, run.x, b).residual, 1e-12);
    }
}

TEST(SymmetricSolvers, IndefiniteMatricesAreForLanczos)
{
    const Integer side = 12, n = side * side;
    Elements lower = lower_triangle(grid(side));
    for (Integer i = 1; i <= n; ++i) lower[{i, i}] -= 1.37; // some of the eigenvalues become negative
    const Elements shifted = lower;
    const std::vector<double> b = wave(n);
    Trial cg{.method = Kor_SparseSym_CG, .precon = Kor_SparseSym_NoPrec};
    cg.symmetric(n, lower, b);
    EXPECT_REPORT(cg.fail, NE_COEFF_NOT_POS_DEF);
    for (const Integer precon : kSymmetricPrecons) {
        // Factors of a matrix that is far from definite, all pivots raised, are of no use; next to the border they are.
        if (precon == 0)
            for (Integer i = 1; i <= n; ++i) lower[{i, i}] += 1.1;
        else
            lower = shifted;
        Trial run{.method = Kor_SparseSym_Lanczos, .precon = precon, .tol = 1e-12, .maxitn = 2000};
        run.symmetric(n, lower, b);
        EXPECT_SUCCESS(run.fail) << precon;
        EXPECT_LE(norms(lower, true, run.x, b).relative(), 1e-11) << precon;
    }
    // Diagonal blocks (0 1; 1 0) have no point of the conjugate gradients after an odd number of steps.
    Elements swap;
    for (Integer i = 2; i <= 10; i += 2) swap[{i, i - 1}] = i;
    Trial run{.method = Kor_SparseSym_Lanczos, .precon = Kor_SparseSym_NoPrec, .tol = 1e-14};
    run.symmetric(10, swap, {1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 9.0, 10.0});
    EXPECT_SUCCESS(run.fail);
    for (Integer i = 0; i < 10; ++i)
        EXPECT_NEAR(run.x[static_cast<std::size_t>(i)], i % 2 == 0 ? (i + 2.0) / (i + 2.0) : i / (i + 1.0), 1e-12);

    Trial jacobi{.method = Kor_SparseSym_CG, .precon = Kor_SparseSym_JacPrec};
    jacobi.symmetric(2, {{{1, 1}, 3.0}, {{2, 1}, 1.0}, {{2, 2}, -5.0}}, {1.0, 4.0});
    EXPECT_REPORT(jacobi.fail, NE_PRECOND_NOT_POS_DEF);
}

TEST(GeneralSolvers, BreakdownsAreAnsweredOrReported)
{
    // Skew-symmetric: r'Ar = 0 for every r, on which the first step of CGS and of BiCG founders.
    const Integer n = 24;
    Elements skew;
    for (Integer i = 1; i < n; ++i) {
        skew[{i, i + 1}] = 1.0 + 0.1 * i;
        skew[{i + 1, i}] = -1.0 - 0.1 * i;
    }
    for (const Integer method : {Kor_SparseNsym_RGMRES, Kor_SparseNsym_BiCGSTAB}) {
        Trial run{.method = method, .precon = Kor_SparseNsym_NoPrec, .tol = 1e-9, .maxitn = 4000};
        if (method == Kor_SparseNsym_RGMRES) run.m = n;
        run.general(n, skew, wave(n));
        EXPECT_SUCCESS(run.fail) << method;
        EXPECT_LE(norms(skew, false, run.x, wave(n)).relative(), 1e-8);
    }
    // A cyclic shift: GMRES makes no progress before step n.
    Elements shift;
    for (Integer i = 1; i <= n; ++i) shift[{i, i % n + 1}] = 1.0;
    std::vector<double> first(static_cast<std::size_t>(n), 0.0);
    first[0] = 1.0;
    Trial complete{.method = Kor_SparseNsym_RGMRES, .precon = Kor_SparseNsym_NoPrec, .m = n};
    complete.general(n, shift, first);
    EXPECT_SUCCESS(complete.fail);
    EXPECT_EQ(complete.itn, n);
    EXPECT_EQ(complete.x[1], 1.0);
    Trial restarted{.method = Kor_SparseNsym_RGMRES, .precon = Kor_SparseNsym_NoPrec, .m = n - 1, .maxitn = 100000};
    restarted.general(n, shift, first);
    EXPECT_REPORT(restarted.fail, NE_NOT_REQ_ACC);
    EXPECT_LE(restarted.rnorm, 1.0);
    EXPECT_LT(restarted.itn, 1000); // a standstill is noticed
}

// A singular system whose right-hand side lies next to the range: whatever the outcome, the solution is of use.
TEST(Solvers, ASingularSystemLeavesASmallResidual)
{
    const Integer n = 40;
    Elements full;
    for (Integer i = 1; i <= n; ++i) {
        full[{i, i}] = i == 1 || i == n ? 1.0 : 2.0;
        if (i > 1) full[{i, i - 1}] = full[{i - 1, i}] = -1.0;
    }
    std::vector<double> b = wave(n);
    double mean = 0.0;
    for (const double e : b) mean += e / n;
    for (double &e : b) e -= mean * (1.0 - 1e-10);
    for (const Integer method : kSymmetricMethods) {
        Trial run{.method = method, .precon = Kor_SparseSym_NoPrec, .tol = 1e-15, .maxitn = 2000};
        run.symmetric(n, lower_triangle(full), b);
        EXPECT_LE(norms(full, false, run.x, b).relative(), 1e-7);
    }
    for (const Integer method : kGeneralMethods) {
        Trial run{.method = method, .precon = Kor_SparseNsym_NoPrec, .tol = 1e-15, .m = 8, .maxitn = 2000};
        run.general(n, full, b);
        EXPECT_LE(norms(full, false, run.x, b).relative(), 1e-7) << method;
    }
}

TEST(Solvers, NumbersThatAreNotFiniteEndTheIteration)
{
    const Integer side = 6, n = side * side;
    for (const double bad : {double{NAN}, double{INFINITY}})
        for (const bool in_matrix : {false, true}) {
            Elements full = grid(side, 0.2);
            std::vector<double> b = wave(n);
            (in_matrix ? full[{8, 8}] : b[7]) = bad;
            for (const Integer method : kGeneralMethods)
                for (const Integer precon : kGeneralPrecons) {
                    Trial run{.method = method, .precon = precon, .maxitn = 1000000};
                    run.general(n, full, b);
                    EXPECT_REPORT(run.fail, NE_NOT_REQ_ACC);
                    EXPECT_LT(run.itn, 10000);
                }
            for (const Integer method : kSymmetricMethods)
                for (const Integer precon : kSymmetricPrecons) {
                    Trial run{.method = method, .precon = precon, .maxitn = 1000000};
                    run.symmetric(n, lower_triangle(full), b);
                    EXPECT_NE(run.fail.code, NE_NOERROR);
                    EXPECT_LT(run.itn, 10000);
                }
        }
}

TEST(Solvers, SayWhatIsWrong)
{
    const Elements lower = {{{1, 1}, 4.0}, {{2, 1}, 1.0}, {{2, 2}, 5.0}, {{3, 3}, 2.0}};
    const std::vector<double> b = {1.0, 2.0, 3.0};
    struct Case {
        Integer method, precon, m, maxitn;
        double tol, omega;
        Integer code;
        std::string text;
    };
    const Integer gmres = Kor_SparseNsym_RGMRES, stab = Kor_SparseNsym_BiCGSTAB, jacobi = Kor_SparseNsym_JacPrec,
                  ssor = Kor_SparseNsym_SSORPrec;
    const Case general[] = {
        {0, jacobi, 2, 9, 0.1, 1.0, NE_BAD_PARAM, message_of(NE_BAD_PARAM, "method")},
        {Kor_SparseSym_CG, 0, 2, 9, 0.1, 1.0, NE_BAD_PARAM, message_of(NE_BAD_PARAM, "method")},
        {gmres, Kor_SparseSym_JacPrec, 2, 9, 0.1, 1.0, NE_BAD_PARAM, message_of(NE_BAD_PARAM, "precon")},
        {gmres, 0, 2, 0, 0.1, 1.0, NE_INT_ARG_LT, message_of(NE_INT_ARG_LT, "maxitn", "1", "maxitn", 0)},
        {gmres, 0, 2, 9, 1.0, 1.0, NE_REAL_ARG_GE, message_of(NE_REAL_ARG_GE, "tol", "1.0", "tol", 1.0)},
        {gmres, 0, 4, 9, 0.1, 1.0, NE_INT_2,
         message_of(NE_INT_2, "n", 3, "m", 4, "0 < m <= min(n,50) when method = Kor_SparseNsym_RGMRES")},
        {stab, 0, 0, 9, 0.1, 1.0, NE_INT_2,
         message_of(NE_INT_2, "n", 3, "m", 0, "0 < m <= min(n,10) when method = Kor_SparseNsym_BiCGSTAB")},
        {gmres, jacobi, 0, 9, 0.1, 1.0, NE_INT_2,
         message_of(NE_INT_2, "n", 3, "m", 0, "1 < m <= MIN(n,50) when method = Kor_SparseNsym_RGMRES")},
        {stab, jacobi, 4, 9, 0.1, 1.0, NE_INT_2,
         message_of(NE_INT_2, "n", 3, "m", 4, "1 < m <= MIN(n,10) when method = Kor_SparseNsym_BiCGSTAB ")},
        {gmres, ssor, 1, 9, 0.1, 2.0, NE_REAL,
         message_of(NE_REAL, "omega", 2.0, "0.0 < omega < 2.0) when precon = Kor_SparseNsym_SSORPrec")},
        {gmres, ssor, 1, 9, 0.1, 0.0, NE_REAL,
         message_of(NE_REAL, "omega", 0.0, "0.0 < omega < 2.0) when precon = Kor_SparseNsym_SSORPrec")},
    };
    for (const Case &c : general) {
        Trial run{.method = c.method, .precon = c.precon, .tol = c.tol, .omega = c.omega, .m = c.m, .maxitn = c.maxitn};
        run.x = {7.0, 7.0, 7.0};
        run.general(3, lower, b);
        EXPECT_EQ(run.fail.code, c.code);
        EXPECT_EQ(run.fail.message, c.text);
        EXPECT_EQ(run.itn, -9);
        EXPECT_EQ(run.x[1], 7.0);
    }
    for (const Integer m : {1, 3}) { // the ends of the range
        Trial run{.method = gmres, .precon = jacobi, .m = m};
        run.general(3, lower, b);
        EXPECT_SUCCESS(run.fail);
    }
    const Integer cg = Kor_SparseSym_CG;
    const Case symmetric[] = {
        {gmres, 0, 0, 9, 0.1, 1.0, NE_BAD_PARAM, message_of(NE_BAD_PARAM, "method")},
        {cg, Kor_SparseSym_Prec, 0, 9, 0.1, 1.0, NE_BAD_PARAM, message_of(NE_BAD_PARAM, "precon")},
        {cg, 0, 0, 0, 0.1, 1.0, NE_INT_ARG_LT, message_of(NE_INT_ARG_LT, "maxitn", "1", "maxitn", 0)},
        {cg, 0, 0, 9, NAN, 1.0, NE_REAL_ARG_GE, message_of(NE_REAL_ARG_GE, "tol", "1.0", "tol", double{NAN})},
        {cg, Kor_SparseSym_SSORPrec, 0, 9, 0.1, 2.1, NE_REAL,
         message_of(NE_REAL, "omega", 2.1, "0.0 <= omega <= 2.0.")},
    };
    for (const Case &c : symmetric) {
        Trial run{.method = c.method, .precon = c.precon, .tol = c.tol, .omega = c.omega, .maxitn = c.maxitn};
        run.symmetric(3, lower, b);
        EXPECT_EQ(run.fail.code, c.code);
        EXPECT_EQ(run.fail.message, c.text);
        EXPECT_EQ(run.itn, -9);
    }
    Trial norm{.method = cg, .precon = Kor_SparseSym_NoPrec, .anorm = -1.0};
    norm.symmetric(3, lower, b);
    EXPECT_REPORT(norm.fail, NE_REAL_ARG_LT, "anorm", "0.0", "anorm", -1.0);
    // Zeros on the diagonal, given or missing.
    for (const Elements &holed : {Elements{{{1, 1}, 1.0}, {{2, 2}, 0.0}}, Elements{{{1, 1}, 1.0}, {{2, 1}, 2.0}}}) {
        for (const Integer precon : {jacobi, ssor}) {
            Trial run{.method = gmres, .precon = precon, .m = 1};
            run.general(2, holed, {1.0, 1.0});
            EXPECT_REPORT(run.fail, NE_ZERO_DIAGONAL_ELEM);
        }
        Trial run{.method = cg, .precon = Kor_SparseSym_JacPrec};
        run.symmetric(2, holed, {1.0, 1.0});
        EXPECT_REPORT(run.fail, NE_ZERO_DIAGONAL_ELEM);
    }

    // Matrices and factors that are none, short arrays, impossible counts.
    Stored s{3, lower};
    Integer p[3], q[3], istr[4], idiag[3], nnzc, npivm, itn = -9;
    double x[3] = {}, rnorm, anorm = 0.0;
    Record fail{};
    f11dac(3, s.nnz, &s.a, &s.la, &s.irow, &s.icol, 0, 0.0, Kor_SparseNsym_NoPiv, Kor_SparseNsym_UnModFact, p, q, istr,
           idiag, &nnzc, &npivm, &fail);
    const auto with_lu = [&](Integer n, Integer nnz, Integer la) {
        f11dcc(gmres, n, nnz, s.a, la, s.irow, s.icol, p, q, istr, idiag, b.data(), 1, 0.1, 9, x, &rnorm, &itn, nullptr,
               &fail);
        return fail;
    };
    const auto with_cholesky = [&](Integer n, Integer nnz, Integer la) {
        f11jcc(cg, n, nnz, s.a, la, s.irow, s.icol, p, istr, b.data(), 0.1, 9, x, &rnorm, &itn, &anorm, nullptr, &fail);
        return fail;
    };
    EXPECT_SUCCESS(with_lu(3, 4, 8));
    itn = -9;
    EXPECT_REPORT(with_lu(3, 4, 7), NE_2_INT_ARG_LT, "la", 7, "2 * nnz", 8, "la", "2 * nnz");
    EXPECT_REPORT(with_lu(3, 10, 20), NE_INT_2, "n", 3, "nnz", 10, "1 <= nnz <= n * n");
    EXPECT_REPORT(with_lu(0, 4, 8), NE_INT_ARG_LT, "n", "1", "n", 0);
    EXPECT_REPORT(with_lu(3, 3, 8), NE_INVALID_CS_PRECOND);
    EXPECT_REPORT(with_cholesky(3, 7, 14), NE_INT_2, "n", 3, "nnz", 7, "1 <= nnz <= n*(n+1)/2");
    EXPECT_REPORT(with_cholesky(3, 3, 8), NE_INVALID_SCS_PRECOND);
    f11jec(cg, Kor_SparseSym_NoPrec, 3, 4, s.a, 3, s.irow, s.icol, 0.0, b.data(), 0.1, 9, x, &rnorm, &itn, &anorm,
           nullptr, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "la", 3, "nnz", 4, "la", "nnz");
    std::swap(idiag[1], idiag[2]);
    EXPECT_REPORT(with_lu(3, 4, 8), NE_INVALID_CS_PRECOND);
    std::swap(idiag[1], idiag[2]);
    p[0] = p[1];
    EXPECT_REPORT(with_lu(3, 4, 8), NE_INVALID_CS_PRECOND);
    s.icol[0] = 4;
    EXPECT_REPORT(with_lu(3, 4, 8), NE_INVALID_CS);
    EXPECT_REPORT(with_cholesky(3, 4, 8), NE_INVALID_SCS);
    EXPECT_EQ(itn, -9);
}

} // namespace
} // namespace kor::testing
