// f11jec: a symmetric system by conjugate gradients or the method of Lanczos, with a preconditioner that needs no factors.
#include <kor/f11.h>

#include "frame/workspace.hpp"
#include "sparse/arguments.hpp"
#include "sparse/preconditioners.hpp"
#include "sparse/symmetric_driver.hpp"

void f11jec(Integer method, Integer precon, Integer n, Integer nnz, const double a[], Integer la, const Integer irow[],
            const Integer icol[], double omega, const double b[], double tol, Integer maxitn, double x[], double *rnorm,
            Integer *itn, double *anorm, KorComm *, KorError *fail)
{
    using namespace kor::sparse;
    const kor::Report report{"f11jec", fail};
    if (!is_symmetric_method(method)) return report.error<NE_BAD_PARAM>("method");
    if (precon != Kor_SparseSym_NoPrec && precon != Kor_SparseSym_JacPrec && precon != Kor_SparseSym_SSORPrec)
        return report.error<NE_BAD_PARAM>("precon");
    if (reports_size(report, n, nnz, Triangle::lower)) return;
    if (la < nnz) return report.error<NE_2_INT_ARG_LT>("la", la, "nnz", nnz, "la", "nnz");
    if (reports_limits(report, maxitn, tol)) return;
    // The ends belong to the range: the preconditioner is left without the factor that vanishes there.
    if (precon == Kor_SparseSym_SSORPrec && !(omega >= 0.0 && omega <= 2.0))
        return report.error<NE_REAL>("omega", omega, "0.0 <= omega <= 2.0.");
    if (!(*anorm >= 0.0)) return report.error<NE_REAL_ARG_LT>("anorm", "0.0", "anorm", *anorm);
    const Matrix matrix{n, nnz, a, irow, icol};
    if (!is_sound(matrix, Triangle::lower)) return report.error<NE_INVALID_SCS>();

    const kor::Workspace<Integer> start{kor::Count{n} + 1};
    if (!start) return report.error<NE_ALLOC_FAIL>();
    find_row_starts(matrix, start.data());
    Diagonal diagonal;
    if (precon != Kor_SparseSym_NoPrec && reports_failure(report, diagonal.find(matrix, start.data()))) return;
    const auto precondition = [&](const double u[], double v[]) {
        if (precon == Kor_SparseSym_JacPrec)
            diagonal.jacobi(n, u, v);
        else
            diagonal.over_relax_symmetric(matrix, start.data(), omega, u, v);
    };
    solve_and_report(report,
                     {matrix, start.data(), method, precon != Kor_SparseSym_NoPrec, precondition, b, tol, maxitn}, x,
                     rnorm, itn, anorm);
}
