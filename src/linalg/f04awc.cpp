// f04awc: solution of Hermitian positive-definite systems with the factor of f01bnc.
#include <kor/f04.h>

#include "frame/report.hpp"
#include "linalg/cholesky_below.hpp"
#include "linalg/dense_arguments.hpp"

void f04awc(Integer n, Integer nrhs, const Complex a[], Integer tda, const double p[], const Complex b[], Integer tdb,
            Complex x[], Integer tdx, KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f04awc", fail};
    if (below_one(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;
    if (below_one(report, "nrhs", nrhs) || shorter(report, "tdb", tdb, "nrhs", nrhs)) return;
    if (shorter(report, "tdx", tdx, "nrhs", nrhs)) return;
    if (!reciprocals_are_sound(n, p)) return report.error<NE_NOT_POS_DEF_FACT>();

    copy_rows(n, nrhs, b, tdb, x, tdx);
    cholesky_below_solve(n, nrhs, a, tda, p, x, tdx);
    report.success();
}
