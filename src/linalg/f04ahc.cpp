// f04ahc: solution of real linear systems with the factors of f03afc, refined to full accuracy.
#include <kor/f04.h>

#include "frame/report.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/lu.hpp"
#include "linalg/refinement.hpp"

void f04ahc(Integer n, Integer nrhs, const double a[], Integer tda, const double aa[], Integer tdaa,
            const Integer pivot[], const double b[], Integer tdb, double x[], Integer tdx, double bb[], Integer tdbb,
            Integer *iterations, KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f04ahc", fail};
    if (below_one(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;
    if (shorter(report, "tdaa", tdaa, "n", n)) return;
    if (below_one(report, "nrhs", nrhs) || shorter(report, "tdb", tdb, "nrhs", nrhs)) return;
    if (shorter(report, "tdx", tdx, "nrhs", nrhs) || shorter(report, "tdbb", tdbb, "nrhs", nrhs)) return;
    if (!interchanges_are_sound(n, pivot)) return report.error<NE_BAD_PARAM>("pivot");
    if (!diagonal_is_sound(n, aa, tdaa)) return report.error<NE_SINGULAR>();
    const Scratch<double, 2 * kSmallSystem> work{kor::Count{n} * 2};
    if (no_memory(report, bool{work})) return;

    const auto solve = [=](double *r, Integer tdr) { lu_solve(n, nrhs, aa, tdaa, pivot, r, tdr); };
    if (!refine(n, nrhs, a, tda, solve, b, tdb, x, tdx, bb, tdbb, *iterations, work.data()))
        return report.error<NE_ITER_FAIL_CONV>();
    report.success();
}
