// f11dec: a nonsymmetric system by RGMRES, CGS or BiCGSTAB(l), with a preconditioner that needs no factors.
#include <kor/f11.h>

#include <algorithm>

#include "frame/workspace.hpp"
#include "sparse/arguments.hpp"
#include "sparse/general_driver.hpp"
#include "sparse/preconditioners.hpp"

void f11dec(Integer method, Integer precon, Integer n, Integer nnz, const double a[], const Integer irow[],
            const Integer icol[], double omega, const double b[], Integer m, double tol, Integer maxitn, double x[],
            double *rnorm, Integer *itn, KorComm *, KorError *fail)
{
    using namespace kor::sparse;
    const kor::Report report{"f11dec", fail};
    if (!is_general_method(method)) return report.error<NE_BAD_PARAM>("method");
    if (precon != Kor_SparseNsym_NoPrec && precon != Kor_SparseNsym_JacPrec && precon != Kor_SparseNsym_SSORPrec)
        return report.error<NE_BAD_PARAM>("precon");
    if (reports_size(report, n, nnz, Triangle::both) || reports_limits(report, maxitn, tol)) return;
    // The trailing blank and, below, the bracket without a partner are what callers compare with.
    constexpr DegreeTexts texts{"1 < m <= MIN(n,50) when method = Kor_SparseNsym_RGMRES",
                                "1 < m <= MIN(n,10) when method = Kor_SparseNsym_BiCGSTAB "};
    if (reports_degree(report, method, n, m, texts)) return;
    if (precon == Kor_SparseNsym_SSORPrec && !(omega > 0.0 && omega < 2.0))
        return report.error<NE_REAL>("omega", omega, "0.0 < omega < 2.0) when precon = Kor_SparseNsym_SSORPrec");
    const Matrix matrix{n, nnz, a, irow, icol};
    if (!is_sound(matrix, Triangle::both)) return report.error<NE_INVALID_CS>();

    const kor::Workspace<Integer> start{kor::Count{n} + 1};
    if (!start) return report.error<NE_ALLOC_FAIL>();
    find_row_starts(matrix, start.data());
    Diagonal diagonal;
    if (precon != Kor_SparseNsym_NoPrec && reports_failure(report, diagonal.find(matrix, start.data()))) return;
    const auto precondition = [&](const double u[], double v[]) {
        if (precon == Kor_SparseNsym_NoPrec)
            std::copy_n(u, n, v);
        else if (precon == Kor_SparseNsym_JacPrec)
            diagonal.jacobi(n, u, v);
        else
            diagonal.over_relax(matrix, start.data(), omega, u, v);
    };
    solve_and_report(report, {matrix, start.data(), method, m, precondition, b, tol, maxitn}, x, rnorm, itn);
}
