// f04agc: solution of real symmetric positive-definite systems with the factor of f03aec.
#include <kor/f04.h>

#include "frame/report.hpp"
#include "linalg/cholesky_below.hpp"
#include "linalg/dense_arguments.hpp"

void f04agc(Integer n, Integer nrhs, const double a[], Integer tda, const double p[], const double b[], Integer tdb,
            double x[], Integer tdx, KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f04agc", fail};
    if (below_one(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;
    if (below_one(report, "nrhs", nrhs) || shorter(report, "tdb", tdb, "nrhs", nrhs)) return;
    if (shorter(report, "tdx", tdx, "nrhs", nrhs)) return;
    if (!reciprocals_are_sound(n, p)) return report.error<NE_NOT_POS_DEF_FACT>();

    copy_rows(n, nrhs, b, tdb, x, tdx);
    cholesky_below_solve(n, nrhs, a, tda, p, x, tdx);
    report.success();
}
