// f11jbc: solves with the factors of an incomplete Cholesky factorisation.
#include <kor/f11.h>

#include "frame/report.hpp"
#include "sparse/preconditioners.hpp"

void f11jbc(Integer n, const double a[], Integer la, const Integer irow[], const Integer icol[], const Integer ipiv[],
            const Integer istr[], const double y[], double x[], KorError *fail)
{
    const kor::Report report{"f11jbc", fail};
    if (n < 1) return report.error<NE_INT_ARG_LT>("n", "1", "n", n);
    if (la < 1) return report.error<NE_INT_ARG_LT>("la", "1", "la", la);
    const kor::Workspace<double> work{n};
    const kor::Workspace<Integer> inverse{n};
    if (!work || !inverse) return report.error<NE_ALLOC_FAIL>();
    const kor::sparse::CholeskyFactor factor{n, a, irow, icol, istr, ipiv, kor::sparse::is_identity(n, ipiv)};
    if (istr[0] < 1 || !factor.is_sound(istr[0] - 1, la, inverse.data())) return report.error<NE_INVALID_SCS_PRECOND>();
    factor.solve(y, x, work.data());
    report.success();
}
