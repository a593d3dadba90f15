// A symmetric system whose matrix is at hand: answers the requests of the iteration.
#include "sparse/symmetric_driver.hpp"

#include <algorithm>

#include "frame/workspace.hpp"
#include "sparse/arguments.hpp"
#include "sparse/krylov_symmetric.hpp"
#include "sparse/products.hpp"

namespace kor::sparse {

void solve_and_report(const Report &report, const SymmetricSystem &system, double x[], double *rnorm, Integer *itn,
                      double *anorm)
{
    const Integer n = system.a.n;
    double norm = *anorm;
    if (norm == 0.0) {
        const Workspace<double> sums{n};
        if (!sums) return report.error<NE_ALLOC_FAIL>();
        norm = infinity_norm(system.a, Triangle::lower, sums.data());
    }
    const SymmetricRules rules{.method = system.method == Kor_SparseSym_CG ? SymmetricMethod::conjugate_gradient
                                                                           : SymmetricMethod::lanczos,
                               .n = n,
                               .preconditioned = system.preconditioned,
                               .tol = system.tol,
                               .limit = system.limit,
                               .norm = Norm::infinity,
                               .matrix_norm = norm};
    Workspace<double> block;
    SymmetricSolver *const solver = SymmetricSolver::create(rules, block);
    if (solver == nullptr) return report.error<NE_ALLOC_FAIL>();

    Request request = solver->start(system.b, x);
    for (; request != Request::finished; request = solver->proceed()) {
        if (request == Request::multiply)
            multiply_symmetric(system.a, system.start, solver->source(), solver->target());
        else
            system.precondition(solver->source(), solver->target());
    }
    std::copy_n(solver->solution(), n, x);
    const SymmetricFigures figures = solver->figures();
    *rnorm = figures.residual;
    *itn = figures.count;
    *anorm = norm;
    report_outcome(report, solver->outcome());
}

} // namespace kor::sparse
