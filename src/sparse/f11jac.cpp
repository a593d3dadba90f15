// f11jac: incomplete Cholesky factorisation of a symmetric matrix.
#include <kor/f11.h>

#include "frame/workspace.hpp"
#include "sparse/arguments.hpp"
#include "sparse/incomplete_cholesky.hpp"

void f11jac(Integer n, Integer nnz, double **a, Integer *la, Integer **irow, Integer **icol, Integer lfill, double dtol,
            Integer mic, double dscale, Integer pstrat, Integer ipiv[], Integer istr[], Integer *nnzc, Integer *npivm,
            KorError *fail)
{
    using namespace kor::sparse;
    const kor::Report report{"f11jac", fail};
    if (reports_size(report, n, nnz, Triangle::lower) || reports_length(report, *la, nnz, "2*nnz")) return;
    if (reports_drop_rule(report, lfill, dtol)) return;
    if (mic != Kor_SparseSym_ModFact && mic != Kor_SparseSym_UnModFact) return report.error<NE_BAD_PARAM>("mic");
    CholeskyRules rules{lfill, dtol, mic == Kor_SparseSym_ModFact, dscale, CholeskyPivoting::none};
    switch (pstrat) {
    case Kor_SparseSym_NoPiv:
        break;
    case Kor_SparseSym_MarkPiv:
        rules.pivoting = CholeskyPivoting::fewest_neighbours;
        break;
    case Kor_SparseSym_UserPiv:
        rules.pivoting = CholeskyPivoting::given;
        break;
    default:
        return report.error<NE_BAD_PARAM>("pstrat");
    }
    const Matrix matrix{n, nnz, *a, *irow, *icol};
    if (!is_sound(matrix, Triangle::lower)) return report.error<NE_SYMM_MATRIX_DUP>();
    if (rules.pivoting == CholeskyPivoting::given) {
        const kor::Workspace<Integer> inverse{n};
        if (!inverse) return report.error<NE_ALLOC_FAIL>();
        if (!invert_order(n, ipiv, inverse.data())) return report.error<NE_INVALID_ROW_PIVOT>();
    }

    CholeskyResult result{ipiv, istr, 0, 0};
    if (reports_failure(report, factorise_cholesky(matrix, rules, {a, la, irow, icol}, result))) return;
    *nnzc = result.elements;
    *npivm = result.modified_pivots;
    report.success();
}
