// f04afc: solution of real symmetric positive-definite systems with the factor of f03aec, refined to full accuracy.
#include <kor/f04.h>

#include "frame/report.hpp"
#include "linalg/cholesky_below.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/refinement.hpp"
#include "linalg/scratch.hpp"

void f04afc(Integer n, Integer nrhs, const double a[], Integer tda, const double p[], const double b[], Integer tdb,
            double x[], Integer tdx, double bb[], Integer tdbb, Integer *iterations, KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f04afc", fail};
    if (below_one(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;
    if (below_one(report, "nrhs", nrhs) || shorter(report, "tdb", tdb, "nrhs", nrhs)) return;
    if (shorter(report, "tdx", tdx, "nrhs", nrhs) || shorter(report, "tdbb", tdbb, "nrhs", nrhs)) return;
    if (!reciprocals_are_sound(n, p)) return report.error<NE_NOT_POS_DEF_FACT>();
    const Scratch<double, 10 * 12> memory{kor::Count{n} * n + kor::Count{n} * 2};
    if (no_memory(report, bool{memory})) return;

    // The residuals read whole rows of A.
    double *const work = memory.data(), *const whole = work + 2 * std::ptrdiff_t{n};
    complete_symmetric(n, a, tda, whole, n);
    const auto solve = [=](double *r, Integer tdr) { cholesky_below_solve(n, nrhs, a, tda, p, r, tdr); };
    if (!refine(n, nrhs, whole, n, solve, b, tdb, x, tdx, bb, tdbb, *iterations, work))
        return report.error<NE_ITER_FAIL_CONV>();
    report.success();
}
