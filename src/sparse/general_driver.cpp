// A nonsymmetric system whose matrix is at hand.
#include "sparse/general_driver.hpp"

#include <algorithm>

#include "frame/workspace.hpp"
#include "sparse/arguments.hpp"
#include "sparse/krylov_general.hpp"
#include "sparse/products.hpp"

namespace kor::sparse {

bool reports_degree(const Report &report, Integer method, Integer n, Integer m, const DegreeTexts &texts)
{
    constexpr Integer kMostOfGmres = 50, kMostOfBicgstab = 10;
    if (method == Kor_SparseNsym_RGMRES && (m < 1 || m > std::min(n, kMostOfGmres))) {
        report.error<NE_INT_2>("n", n, "m", m, texts.gmres);
        return true;
    }
    if (method == Kor_SparseNsym_BiCGSTAB && (m < 1 || m > std::min(n, kMostOfBicgstab))) {
        report.error<NE_INT_2>("n", n, "m", m, texts.bicgstab);
        return true;
    }
    return false;
}

void solve_and_report(const Report &report, const DrivenSystem &system, double x[], double *rnorm, Integer *itn)
{
    const Integer n = system.a.n;
    double norm;
    {
        const Workspace<double> sums{n};
        if (!sums) return report.error<NE_ALLOC_FAIL>();
        norm = infinity_norm(system.a, Triangle::both, sums.data());
    }
    const GeneralMethod method = system.method == Kor_SparseNsym_RGMRES ? GeneralMethod::gmres
                                 : system.method == Kor_SparseNsym_CGS  ? GeneralMethod::cgs
                                                                        : GeneralMethod::bicgstab;
    const auto product = [&](const double u[], double v[]) { multiply(system.a, system.start, u, v); };
    const Iteration iteration =
        solve_general({n, product, system.precondition, system.b, norm}, method, system.m, system.tol, system.limit, x);
    if (iteration.outcome != Solved::no_memory) {
        *rnorm = iteration.residual_norm;
        *itn = iteration.count;
    }
    report_outcome(report, iteration.outcome);
}

} // namespace kor::sparse
