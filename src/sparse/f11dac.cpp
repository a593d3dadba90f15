// f11dac: incomplete LU factorisation of a nonsymmetric matrix.
#include <kor/f11.h>

#include "frame/workspace.hpp"
#include "sparse/arguments.hpp"
#include "sparse/incomplete_lu.hpp"

void f11dac(Integer n, Integer nnz, double **a, Integer *la, Integer **irow, Integer **icol, Integer lfill, double dtol,
            Integer pstrat, Integer milu, Integer ipivp[], Integer ipivq[], Integer istr[], Integer idiag[],
            Integer *nnzc, Integer *npivm, KorError *fail)
{
    using namespace kor::sparse;
    const kor::Report report{"f11dac", fail};
    if (reports_size(report, n, nnz, Triangle::both) || reports_length(report, *la, nnz, "2*nnz")) return;
    if (reports_drop_rule(report, lfill, dtol)) return;
    LuRules rules{lfill, dtol, LuPivoting::none, milu == Kor_SparseNsym_ModFact};
    switch (pstrat) {
    case Kor_SparseNsym_NoPiv:
        break;
    case Kor_SparseNsym_UserPiv:
        rules.pivoting = LuPivoting::given;
        break;
    case Kor_SparseNsym_PartialPiv:
        rules.pivoting = LuPivoting::partial;
        break;
    case Kor_SparseNsym_CompletePiv:
        rules.pivoting = LuPivoting::complete;
        break;
    default:
        return report.error<NE_BAD_PARAM>("pstrat");
    }
    if (milu != Kor_SparseNsym_ModFact && milu != Kor_SparseNsym_UnModFact) return report.error<NE_BAD_PARAM>("milu");
    const Matrix matrix{n, nnz, *a, *irow, *icol};
    if (!is_sound(matrix, Triangle::both)) return report.error<NE_NONSYMM_MATRIX_DUP>();
    if (rules.pivoting == LuPivoting::given) {
        const kor::Workspace<Integer> inverse{n};
        if (!inverse) return report.error<NE_ALLOC_FAIL>();
        if (!invert_order(n, ipivp, inverse.data()) || !invert_order(n, ipivq, inverse.data()))
            return report.error<NE_INVALID_ROWCOL_PIVOT>();
    }

    LuResult result{ipivp, ipivq, istr, idiag, 0, 0};
    if (reports_failure(report, factorise_lu(matrix, rules, {a, la, irow, icol}, result))) return;
    *nnzc = result.elements;
    *npivm = result.modified_pivots;
    report.success();
}
