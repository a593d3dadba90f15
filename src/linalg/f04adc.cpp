// f04adc: solution of complex linear systems with several right-hand sides.
#include <kor/f04.h>

#include "frame/report.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/lu.hpp"

void f04adc(Integer n, Integer nrhs, Complex a[], Integer tda, Complex b[], Integer tdb, Complex x[], Integer tdx,
            KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f04adc", fail};
    if (below_one(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;
    if (below_one(report, "nrhs", nrhs) || shorter(report, "tdb", tdb, "nrhs", nrhs)) return;
    if (shorter(report, "tdx", tdx, "nrhs", nrhs)) return;
    const Scratch<Complex, 10 * 10> factors{kor::Count{n} * n};
    const Scratch<Integer, kSmallSystem> pivot{n};
    ScaledLu<Complex> lu{n};
    if (no_memory(report, factors && pivot && lu)) return;

    copy_rows(n, n, a, tda, factors.data(), n);
    if (lu.factor(factors.data(), n, pivot.data()) != 0) return report.error<NE_SINGULAR>();
    copy_rows(n, nrhs, b, tdb, x, tdx);
    lu_solve(n, nrhs, factors.data(), n, pivot.data(), x, tdx);
    report.success();
}
