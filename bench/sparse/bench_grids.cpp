// Poisson's equation, and convection with diffusion, on grids of two and three dimensions: factors and solvers beside Eigen
// and PETSc. Column of counts: iterations.
#include <memory>

#include "problems.hpp"
#include "support/ratio_table.hpp"

namespace {

using namespace kor::bench;

const Heading heading{"Model problems on grids: factors without fill and solvers",
                      "|b - Ax| / |b| in 2-norms, 1e-8 asked for (the counts below are iterations)"};

// Both are kept alive until the end: the entries refer to them.
template <class T, class... Args>
T &keep_alive(Args &&...args)
{
    static std::vector<std::unique_ptr<T>> all;
    all.push_back(std::make_unique<T>(std::forward<Args>(args)...));
    return *all.back();
}

void add_symmetric(const Problem &problem)
{
    auto &kor = keep_alive<KorMatrix>(problem, true);
    add_with_setup(
        "IC(0) " + problem.name + "/KOR", [&] { kor.load(); }, [&] { kor.factor(0, 0.0, Kor_SparseSym_NoPiv); });
    kor.factor(0, 0.0, Kor_SparseSym_NoPiv);
    add_solver("CG + IC(0) " + problem.name + "/KOR", problem, [&, tol = problem.tolerance()](std::vector<double> &x) {
        return kor.solve(Kor_SparseSym_CG, 0, tol, x);
    });
#ifdef KOR_HAVE_EIGEN
    const auto &matrix = keep_alive<EigenColumns>(eigen_matrix<EigenColumns>(problem));
    auto &eigen = keep_alive<EigenCg>();
    eigen.setTolerance(kReduction);
    eigen.setMaxIterations(kMostIterations);
    eigen.compute(matrix);
    add("IC(0) " + problem.name + "/Eigen", [&] { eigen.compute(matrix); });
    add_solver("CG + IC(0) " + problem.name + "/Eigen", problem, [&](std::vector<double> &x) {
        const Eigen::VectorXd found = eigen.solve(Eigen::Map<const Eigen::VectorXd>(problem.b.data(), problem.n));
        x.assign(found.begin(), found.end());
        return eigen.iterations();
    });
#endif
#ifdef KOR_HAVE_PETSC
    auto &petsc = keep_alive<PetscSystem>(problem, KSPCG, PCICC, 0);
    add("IC(0) " + problem.name + "/PETSc", [&] { petsc.factor_anew(PCICC); });
    add_solver("CG + IC(0) " + problem.name + "/PETSc", problem,
               [&](std::vector<double> &x) { return petsc.solve(x); });
#endif
}

void add_general(const Problem &problem, bool factors)
{
    auto &kor = keep_alive<KorMatrix>(problem, false);
    kor.factor(0, 0.0, Kor_SparseNsym_NoPiv);
    if (factors)
        add_with_setup(
            "ILU(0) " + problem.name + "/KOR", [&] { kor.load(); }, [&] { kor.factor(0, 0.0, Kor_SparseNsym_NoPiv); });
    const double tol = problem.tolerance();
    add_solver("BiCGSTAB(1) + ILU(0) " + problem.name + "/KOR", problem,
               [&, tol](std::vector<double> &x) { return kor.solve(Kor_SparseNsym_BiCGSTAB, 1, tol, x); });
    add_solver("BiCGSTAB(2) + ILU(0) " + problem.name + "/KOR", problem,
               [&, tol](std::vector<double> &x) { return kor.solve(Kor_SparseNsym_BiCGSTAB, 2, tol, x); });
    add_solver("GMRES(30) + ILU(0) " + problem.name + "/KOR", problem,
               [&, tol](std::vector<double> &x) { return kor.solve(Kor_SparseNsym_RGMRES, 30, tol, x); });
#ifdef KOR_HAVE_EIGEN
    // It has no ILU(0); its factors by drop tolerance are better and cost more.
    const auto &matrix = keep_alive<EigenMatrix>(eigen_matrix<EigenMatrix>(problem));
    auto &eigen = keep_alive<EigenBicgstab>();
    eigen.preconditioner().setDroptol(1e-2);
    eigen.preconditioner().setFillfactor(2);
    eigen.setTolerance(kReduction);
    eigen.setMaxIterations(kMostIterations);
    eigen.compute(matrix);
    add_solver("BiCGSTAB(1) + ILU(0) " + problem.name + "/Eigen", problem, [&](std::vector<double> &x) {
        const Eigen::VectorXd found = eigen.solve(Eigen::Map<const Eigen::VectorXd>(problem.b.data(), problem.n));
        x.assign(found.begin(), found.end());
        return eigen.iterations();
    });
#endif
#ifdef KOR_HAVE_PETSC
    const struct {
        const char *name;
        KSPType type;
        PetscInt basis;
    } methods[] = {{"BiCGSTAB(1)", KSPBCGS, 0}, {"GMRES(30)", KSPGMRES, 30}};
    for (const auto &method : methods) {
        auto &petsc = keep_alive<PetscSystem>(problem, method.type, PCILU, method.basis);
        if (factors && method.basis == 0) add("ILU(0) " + problem.name + "/PETSc", [&] { petsc.factor_anew(PCILU); });
        add_solver(method.name + (" + ILU(0) " + problem.name) + "/PETSc", problem,
                   [&](std::vector<double> &x) { return petsc.solve(x); });
    }
#endif
}

const bool registered = [] {
    add_symmetric(keep_alive<Problem>(grid(250, 2, 0.0)));
    add_symmetric(keep_alive<Problem>(grid(100, 3, 0.0)));
    for (const double wind : {0.1, 1.0, 2.0}) add_general(keep_alive<Problem>(grid(200, 2, wind)), wind < 1.0);
    add_general(keep_alive<Problem>(grid(60, 3, 0.5)), true);
    return true;
}();

} // namespace
