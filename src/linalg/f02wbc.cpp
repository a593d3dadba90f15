// f02wbc: singular value decomposition of a real matrix with no more rows than columns, for the least-squares solvers.
#include <kor/f02.h>

#include "linalg/singular_report.hpp"

void f02wbc(Integer m, Integer n, double a[], Integer tda, Boolean wantb, double b[], double sv[], double work[],
            Integer lwork, KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f02wbc", fail};
    if (below_one(report, "m", m) || shorter(report, "n", n, "m", m) || shorter(report, "tda", tda, "n", n) ||
        shorter(report, "lwork", lwork, "m", m))
        return;
    IterationRecord record{work};
    switch (singular_decomposition(m, n, a, tda, wantb ? 1 : 0, b, 1, sv, {nullptr, 0, a, tda}, record)) {
    case SingularOutcome::success:
        return report.success();
    case SingularOutcome::no_memory:
        return report.error<NE_ALLOC_FAIL>();
    case SingularOutcome::no_convergence:
        return report.error<NE_QR_FAIL_CONV>(step_limit(m));
    }
}
