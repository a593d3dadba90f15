// Published matrices: iterations, accuracy and time beside Eigen and PETSc. Count column: iterations.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>

#include "problems.hpp"
#include "support/ratio_table.hpp"

namespace {

using namespace kor::bench;

const Heading heading{"Published matrices (bench/sparse/data): solvers with factors",
                      "|b - Ax| / |b| in 2-norms, 1e-8 asked for (the counts below are iterations)"};

// Matrix Market, coordinates; of a symmetric matrix the file holds the lower triangle.
Problem read(const std::string &name, bool &symmetric)
{
    std::ifstream file{std::filesystem::path{__FILE__}.parent_path() / "data" / (name + ".mtx")};
    std::string line;
    std::getline(file, line);
    symmetric = line.find("symmetric") != std::string::npos;
    while (std::getline(file, line) && line[0] == '%') {}
    Problem problem;
    Integer rows = 0, columns = 0, count = 0;
    std::istringstream{line} >> rows >> columns >> count;
    problem.n = rows;
    problem.name = name;
    std::vector<std::tuple<Integer, Integer, double>> elements;
    Integer i, j;
    double value;
    while (file >> i >> j >> value) {
        elements.emplace_back(i - 1, j - 1, value);
        if (symmetric && i != j) elements.emplace_back(j - 1, i - 1, value);
    }
    std::sort(elements.begin(), elements.end());
    for (const auto &[row, column, element] : elements) {
        problem.row.push_back(row);
        problem.column.push_back(column);
        problem.value.push_back(element);
    }
    problem.set_right_hand_side();
    return problem;
}

template <class T, class... Args>
T &keep_alive(Args &&...args)
{
    static std::vector<std::unique_ptr<T>> all;
    all.push_back(std::make_unique<T>(std::forward<Args>(args)...));
    return *all.back();
}

// Factors anew each time, as somebody with one system does.
void add_matrix(const std::string &name)
{
    bool symmetric;
    const Problem &problem = keep_alive<Problem>(read(name, symmetric));
    const double tol = problem.tolerance();
    if (problem.n == 0) {
        note(name + ": the file is missing");
        return;
    }
    auto &kor = keep_alive<KorMatrix>(problem, symmetric);
    if (symmetric) {
        const std::string work = "CG + IC(0) " + name;
        add_solver(work + "/KOR", problem, [&, tol](std::vector<double> &x) {
            kor.factor(0, 0.0, Kor_SparseSym_NoPiv);
            return kor.solve(Kor_SparseSym_CG, 0, tol, x);
        });
#ifdef KOR_HAVE_EIGEN
        const auto &matrix = keep_alive<EigenColumns>(eigen_matrix<EigenColumns>(problem));
        add_solver(work + "/Eigen", problem, [&](std::vector<double> &x) {
            EigenCg eigen;
            eigen.setTolerance(kReduction);
            eigen.setMaxIterations(kMostIterations);
            eigen.compute(matrix);
            const Eigen::VectorXd found = eigen.solve(Eigen::Map<const Eigen::VectorXd>(problem.b.data(), problem.n));
            x.assign(found.begin(), found.end());
            return eigen.iterations();
        });
#endif
#ifdef KOR_HAVE_PETSC
        add_solver(work + "/PETSc", problem, [&](std::vector<double> &x) {
            return PetscSystem{problem, KSPCG, PCICC, 0}.solve(x);
        });
#endif
        return;
    }
    const Integer basis = std::min<Integer>(30, problem.n);
    const std::string work = "GMRES(30) + ILU(0) " + name;
    add_solver(work + "/KOR", problem, [&, tol, basis](std::vector<double> &x) {
        kor.factor(0, 0.0, Kor_SparseNsym_NoPiv);
        return kor.solve(Kor_SparseNsym_RGMRES, basis, tol, x);
    });
    const std::string dropping = "BiCGSTAB + ILU(1e-4) " + name;
    add_solver(dropping + "/KOR", problem, [&, tol](std::vector<double> &x) {
        kor.factor(-1, 1e-4, Kor_SparseNsym_PartialPiv);
        return kor.solve(Kor_SparseNsym_BiCGSTAB, 1, tol, x);
    });
#ifdef KOR_HAVE_EIGEN
    const auto &matrix = keep_alive<EigenMatrix>(eigen_matrix<EigenMatrix>(problem));
    add_solver(dropping + "/Eigen", problem, [&](std::vector<double> &x) {
        EigenBicgstab eigen;
        eigen.preconditioner().setDroptol(1e-4);
        eigen.setTolerance(kReduction);
        eigen.setMaxIterations(kMostIterations);
        eigen.compute(matrix);
        const Eigen::VectorXd found = eigen.solve(Eigen::Map<const Eigen::VectorXd>(problem.b.data(), problem.n));
        x.assign(found.begin(), found.end());
        return eigen.iterations();
    });
#endif
#ifdef KOR_HAVE_PETSC
    add_solver(work + "/PETSc", problem, [&, basis](std::vector<double> &x) {
        return PetscSystem{problem, KSPGMRES, PCILU, basis}.solve(x);
    });
#endif
}

const bool registered = [] {
    for (const char *name : {"lfat5", "lund_a", "knex", "counties", "pores_1", "utm300", "add32"}) add_matrix(name);
    return true;
}();

} // namespace
