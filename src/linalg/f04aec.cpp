// f04aec: solution of real linear systems with several right-hand sides, refined to full accuracy.
#include <kor/f04.h>

#include "frame/report.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/lu.hpp"
#include "linalg/refinement.hpp"

void f04aec(Integer n, Integer nrhs, const double a[], Integer tda, const double b[], Integer tdb, double x[],
            Integer tdx, double aa[], Integer tdaa, double bb[], Integer tdbb, KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f04aec", fail};
    if (below_one(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;
    if (below_one(report, "nrhs", nrhs) || shorter(report, "tdb", tdb, "nrhs", nrhs)) return;
    if (shorter(report, "tdx", tdx, "nrhs", nrhs) || shorter(report, "tdaa", tdaa, "n", n)) return;
    if (shorter(report, "tdbb", tdbb, "nrhs", nrhs)) return;
    const Scratch<Integer, kSmallSystem> pivot{n};
    const Scratch<double, 2 * kSmallSystem> work{kor::Count{n} * 2};
    ScaledLu<double> lu{n};
    if (no_memory(report, pivot && work && lu)) return;

    copy_rows(n, n, a, tda, aa, tdaa);
    if (lu.factor(aa, tdaa, pivot.data()) != 0) return report.error<NE_SINGULAR>();
    const auto solve = [&](double *r, Integer tdr) { lu_solve(n, nrhs, aa, tdaa, pivot.data(), r, tdr); };
    Integer iterations;
    if (!refine(n, nrhs, a, tda, solve, b, tdb, x, tdx, bb, tdbb, iterations, work.data()))
        return report.error<NE_ITER_FAIL_CONV>();
    report.success();
}
