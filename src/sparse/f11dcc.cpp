// f11dcc: a nonsymmetric system by RGMRES, CGS or BiCGSTAB(l), with incomplete LU factors.
#include <kor/f11.h>

#include "frame/workspace.hpp"
#include "sparse/arguments.hpp"
#include "sparse/general_driver.hpp"
#include "sparse/preconditioners.hpp"

void f11dcc(Integer method, Integer n, Integer nnz, const double a[], Integer la, const Integer irow[],
            const Integer icol[], const Integer ipivp[], const Integer ipivq[], const Integer istr[],
            const Integer idiag[], const double b[], Integer m, double tol, Integer maxitn, double x[], double *rnorm,
            Integer *itn, KorComm *, KorError *fail)
{
    using namespace kor::sparse;
    const kor::Report report{"f11dcc", fail};
    if (!is_general_method(method)) return report.error<NE_BAD_PARAM>("method");
    if (reports_size(report, n, nnz, Triangle::both) || reports_length(report, la, nnz, "2 * nnz") ||
        reports_limits(report, maxitn, tol))
        return;
    constexpr DegreeTexts texts{"0 < m <= min(n,50) when method = Kor_SparseNsym_RGMRES",
                                "0 < m <= min(n,10) when method = Kor_SparseNsym_BiCGSTAB"};
    if (reports_degree(report, method, n, m, texts)) return;
    const Matrix matrix{n, nnz, a, irow, icol};
    if (!is_sound(matrix, Triangle::both)) return report.error<NE_INVALID_CS>();

    const kor::Workspace<Integer> start{kor::Count{n} + 1};
    if (!start) return report.error<NE_ALLOC_FAIL>();
    const LuFactor factor{n, a, irow, icol, istr, idiag, ipivp, ipivq};
    if (!factor.is_sound(nnz, la, start.data())) return report.error<NE_INVALID_CS_PRECOND>();
    find_row_starts(matrix, start.data());
    LuSolver solver;
    if (!solver.prepare(factor)) return report.error<NE_ALLOC_FAIL>();
    const auto precondition = [&](const double u[], double v[]) { solver.solve(u, v); };
    solve_and_report(report, {matrix, start.data(), method, m, precondition, b, tol, maxitn}, x, rnorm, itn);
}
