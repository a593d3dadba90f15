// f11jcc: a symmetric system by conjugate gradients or the method of Lanczos, with incomplete Cholesky factors.
#include <kor/f11.h>

#include "frame/workspace.hpp"
#include "sparse/arguments.hpp"
#include "sparse/preconditioners.hpp"
#include "sparse/symmetric_driver.hpp"

void f11jcc(Integer method, Integer n, Integer nnz, const double a[], Integer la, const Integer irow[],
            const Integer icol[], const Integer ipiv[], const Integer istr[], const double b[], double tol,
            Integer maxitn, double x[], double *rnorm, Integer *itn, double *anorm, KorComm *, KorError *fail)
{
    using namespace kor::sparse;
    const kor::Report report{"f11jcc", fail};
    if (!is_symmetric_method(method)) return report.error<NE_BAD_PARAM>("method");
    if (reports_size(report, n, nnz, Triangle::lower) || reports_length(report, la, nnz, "2 * nnz") ||
        reports_limits(report, maxitn, tol))
        return;
    if (!(*anorm >= 0.0)) return report.error<NE_REAL_ARG_LT>("anorm", "0.0", "anorm", *anorm);
    const Matrix matrix{n, nnz, a, irow, icol};
    if (!is_sound(matrix, Triangle::lower)) return report.error<NE_INVALID_SCS>();

    const kor::Workspace<Integer> start{kor::Count{n} + 1};
    const kor::Workspace<double> work{n};
    if (!start || !work) return report.error<NE_ALLOC_FAIL>();
    const CholeskyFactor factor{n, a, irow, icol, istr, ipiv, is_identity(n, ipiv)};
    if (!factor.is_sound(nnz, la, start.data())) return report.error<NE_INVALID_SCS_PRECOND>();
    find_row_starts(matrix, start.data());
    const auto precondition = [&](const double u[], double v[]) { factor.solve(u, v, work.data()); };
    solve_and_report(report, {matrix, start.data(), method, true, precondition, b, tol, maxitn}, x, rnorm, itn, anorm);
}
