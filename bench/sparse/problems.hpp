// Systems for the benchmarks, and how each library solves them: the same preconditioner, the same residual asked for.
#pragma once

#include <algorithm>
#include <cmath>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include <kor/f11.h>
#include <kor/x04.h>

#include "support/ratio_table.hpp"

#ifdef KOR_HAVE_EIGEN
#include <Eigen/IterativeLinearSolvers>
#include <Eigen/Sparse>
#endif
#ifdef KOR_HAVE_PETSC
#include <petscksp.h>
#endif

namespace kor::bench {

constexpr double kReduction = 1e-8; // of the residual, against the right-hand side
constexpr Integer kMostIterations = 20000;

// All elements, row by row; rows and columns from 0. The solution is known, but not to the solvers.
struct Problem {
    std::string name;
    Integer n = 0;
    std::vector<Integer> row, column;
    std::vector<double> value;
    std::vector<double> b, solution;

    void set_right_hand_side()
    {
        for (Integer i = 0; i < n; ++i) solution.push_back(std::sin(0.37 * i) + 0.001 * (i % 1000));
        b = product(solution);
    }
    std::vector<double> product(const std::vector<double> &x) const
    {
        std::vector<double> y(x.size(), 0.0);
        for (std::size_t p = 0; p < value.size(); ++p) y[row[p]] += value[p] * x[column[p]];
        return y;
    }
    double relative_residual(const std::vector<double> &x) const
    {
        const std::vector<double> y = product(x);
        double r = 0.0, size = 0.0;
        for (std::size_t i = 0; i < y.size(); ++i) {
            r += (b[i] - y[i]) * (b[i] - y[i]);
            size += b[i] * b[i];
        }
        return std::sqrt(r / size);
    }
    // What the stopping test of the library must be told for |r| <= kReduction |b|.
    double tolerance() const
    {
        std::vector<double> sums(static_cast<std::size_t>(n), 0.0);
        for (std::size_t p = 0; p < value.size(); ++p) sums[row[p]] += std::abs(value[p]);
        const auto largest = [](const std::vector<double> &v) {
            double greatest = 0.0;
            for (const double e : v) greatest = std::max(greatest, std::abs(e));
            return greatest;
        };
        return kReduction * largest(b) / (largest(sums) * largest(solution) + largest(b));
    }
};

// Convection and diffusion on a grid of `side` points in each of 2 or 3 directions, central differences; `wind`: the cell
// Peclet number, along the first direction and half of it along the second. 0: Poisson's equation.
inline Problem grid(Integer side, int directions, double wind)
{
    Problem problem;
    const Integer layers = directions == 3 ? side : 1;
    problem.n = side * side * layers;
    problem.name = std::to_string(directions) + "-D " + std::to_string(problem.n);
    if (wind > 0.0) problem.name += " Pe " + std::to_string(wind).substr(0, 3);
    const auto put = [&](Integer i, Integer j, double value) {
        problem.row.push_back(i);
        problem.column.push_back(j);
        problem.value.push_back(value);
    };
    for (Integer k = 0; k < layers; ++k)
        for (Integer j = 0; j < side; ++j)
            for (Integer i = 0; i < side; ++i) {
                const Integer at = i + side * (j + side * k);
                if (k > 0) put(at, at - side * side, -1.0);
                if (j > 0) put(at, at - side, -1.0 - 0.5 * wind);
                if (i > 0) put(at, at - 1, -1.0 - wind);
                put(at, at, 2.0 * directions);
                if (i + 1 < side) put(at, at + 1, -1.0 + wind);
                if (j + 1 < side) put(at, at + side, -1.0 + 0.5 * wind);
                if (k + 1 < layers) put(at, at + side * side, -1.0);
            }
    problem.set_right_hand_side();
    return problem;
}

// --- KOR

struct KorMatrix {
    const Problem &problem;
    const bool symmetric;
    Integer nnz = 0, la = 0;
    double *a = nullptr;
    Integer *irow = nullptr, *icol = nullptr;
    std::vector<Integer> ipivp, ipivq, istr, idiag;
    Integer nnzc = 0, npivm = 0;
    KorError fail = {};

    KorMatrix(const Problem &p, bool is_symmetric) : problem{p}, symmetric{is_symmetric}
    {
        for (std::size_t e = 0; e < p.value.size(); ++e) nnz += !symmetric || p.column[e] <= p.row[e];
        const auto order = static_cast<std::size_t>(p.n);
        ipivp.resize(order);
        ipivq.resize(order);
        istr.resize(order + 1);
        idiag.resize(order);
        load();
    }
    KorMatrix(const KorMatrix &) = delete;
    ~KorMatrix() { free(); }
    void free()
    {
        void *blocks[] = {a, irow, icol};
        for (void *&block : blocks) x04bdc(&block);
    }
    void load()
    {
        free();
        la = 2 * nnz;
        a = static_cast<double *>(x04bbc(static_cast<std::size_t>(la) * sizeof *a));
        irow = static_cast<Integer *>(x04bbc(static_cast<std::size_t>(la) * sizeof *irow));
        icol = static_cast<Integer *>(x04bbc(static_cast<std::size_t>(la) * sizeof *icol));
        Integer at = 0;
        for (std::size_t e = 0; e < problem.value.size(); ++e) {
            if (symmetric && problem.column[e] > problem.row[e]) continue;
            a[at] = problem.value[e];
            irow[at] = problem.row[e] + 1;
            icol[at++] = problem.column[e] + 1;
        }
    }
    void factor(Integer lfill, double dtol, Integer pstrat)
    {
        if (symmetric)
            f11jac(problem.n, nnz, &a, &la, &irow, &icol, lfill, dtol, Kor_SparseSym_UnModFact, 0.0, pstrat,
                   ipivp.data(), istr.data(), &nnzc, &npivm, &fail);
        else
            f11dac(problem.n, nnz, &a, &la, &irow, &icol, lfill, dtol, pstrat, Kor_SparseNsym_UnModFact, ipivp.data(),
                   ipivq.data(), istr.data(), idiag.data(), &nnzc, &npivm, &fail);
    }
    Integer solve(Integer method, Integer m, double tol, std::vector<double> &x)
    {
        x.assign(static_cast<std::size_t>(problem.n), 0.0);
        double rnorm, anorm = 0.0;
        Integer itn = 0;
        if (symmetric)
            f11jcc(method, problem.n, nnz, a, la, irow, icol, ipivp.data(), istr.data(), problem.b.data(), tol,
                   kMostIterations, x.data(), &rnorm, &itn, &anorm, nullptr, &fail);
        else
            f11dcc(method, problem.n, nnz, a, la, irow, icol, ipivp.data(), ipivq.data(), istr.data(), idiag.data(),
                   problem.b.data(), m, tol, kMostIterations, x.data(), &rnorm, &itn, nullptr, &fail);
        return itn;
    }
};

// --- the peers

#ifdef KOR_HAVE_EIGEN
using EigenMatrix = Eigen::SparseMatrix<double, Eigen::RowMajor>;
using EigenColumns = Eigen::SparseMatrix<double>;

template <class Matrix>
Matrix eigen_matrix(const Problem &p)
{
    std::vector<Eigen::Triplet<double>> triplets;
    for (std::size_t e = 0; e < p.value.size(); ++e) triplets.emplace_back(p.row[e], p.column[e], p.value[e]);
    Matrix matrix(p.n, p.n);
    matrix.setFromTriplets(triplets.begin(), triplets.end());
    return matrix;
}
using EigenCg = Eigen::ConjugateGradient<EigenColumns, Eigen::Lower,
                                         Eigen::IncompleteCholesky<double, Eigen::Lower, Eigen::NaturalOrdering<int>>>;
using EigenBicgstab = Eigen::BiCGSTAB<EigenMatrix, Eigen::IncompleteLUT<double>>;
#endif

#ifdef KOR_HAVE_PETSC
struct PetscSystem {
    std::vector<PetscInt> start, column;
    std::vector<double> value;
    Mat matrix = nullptr;
    KSP solver = nullptr;
    Vec b = nullptr, x = nullptr;
    PetscInt n;

    PetscSystem(const Problem &p, KSPType method, PCType factors, PetscInt basis)
        : column(p.column.begin(), p.column.end()), value{p.value}, n{p.n}
    {
        static const bool initialised = (PetscInitializeNoArguments(), true);
        (void)initialised;
        start.assign(static_cast<std::size_t>(n) + 1, 0);
        for (const Integer row : p.row) ++start[static_cast<std::size_t>(row) + 1];
        for (PetscInt i = 0; i < n; ++i) start[static_cast<std::size_t>(i) + 1] += start[static_cast<std::size_t>(i)];
        MatCreateSeqAIJWithArrays(PETSC_COMM_SELF, n, n, start.data(), column.data(), value.data(), &matrix);
        MatSetOption(matrix, MAT_SYMMETRIC, method == std::string{KSPCG} ? PETSC_TRUE : PETSC_FALSE);
        KSPCreate(PETSC_COMM_SELF, &solver);
        KSPSetOperators(solver, matrix, matrix);
        KSPSetType(solver, method);
        if (method == std::string{KSPGMRES}) KSPGMRESSetRestart(solver, basis);
        if (method == std::string{KSPCG})
            KSPSetNormType(solver, KSP_NORM_UNPRECONDITIONED);
        else
            KSPSetPCSide(solver, PC_RIGHT);
        KSPSetTolerances(solver, kReduction, PETSC_DEFAULT, PETSC_DEFAULT, kMostIterations);
        PC pc;
        KSPGetPC(solver, &pc);
        PCSetType(pc, factors);
        PCFactorSetLevels(pc, 0);
        VecCreateSeq(PETSC_COMM_SELF, n, &b);
        VecDuplicate(b, &x);
        double *at;
        VecGetArray(b, &at);
        std::copy(p.b.begin(), p.b.end(), at);
        VecRestoreArray(b, &at);
        KSPSetUp(solver);
    }
    PetscSystem(const PetscSystem &) = delete;
    ~PetscSystem()
    {
        KSPDestroy(&solver);
        MatDestroy(&matrix);
        VecDestroy(&b);
        VecDestroy(&x);
    }
    // From the pattern to the numbers, as the others do it.
    void factor_anew(PCType factors) const
    {
        PC pc;
        PCCreate(PETSC_COMM_SELF, &pc);
        PCSetOperators(pc, matrix, matrix);
        PCSetType(pc, factors);
        PCFactorSetLevels(pc, 0);
        PCSetUp(pc);
        PCDestroy(&pc);
    }
    PetscInt solve(std::vector<double> &result)
    {
        VecSet(x, 0.0);
        KSPSolve(solver, b, x);
        const double *at;
        VecGetArrayRead(x, &at);
        result.assign(at, at + n);
        VecRestoreArrayRead(x, &at);
        PetscInt iterations;
        KSPGetIterationNumber(solver, &iterations);
        return iterations;
    }
};
#endif

// A solver's entry: solves once outside the clock for its figures. What is no solution has no place in the table.
template <class Solve>
void add_solver(const std::string &name, const Problem &problem, Solve solve)
{
    constexpr double kSolved = 1e3 * kReduction;
    std::vector<double> x;
    const double count = static_cast<double>(solve(x)), residual = problem.relative_residual(x);
    if (!(residual <= kSolved)) {
        std::ostringstream text;
        text << name << ": no solution after " << count << " iterations, |b - Ax| / |b| = " << residual;
        return note(text.str());
    }
    add(name,
        [solve] {
            std::vector<double> found;
            solve(found);
            keep(found);
        },
        {.error = residual, .calls = count});
}

} // namespace kor::bench
