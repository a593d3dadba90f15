// f04asc: solution of one real symmetric positive-definite system, refined to full accuracy.
#include <kor/f04.h>

#include "frame/report.hpp"
#include "linalg/cholesky_below.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/refinement.hpp"
#include "linalg/scratch.hpp"

void f04asc(Integer n, double a[], Integer tda, const double b[], double x[], double p[], double bb[], KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f04asc", fail};
    if (below_one(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;
    const Scratch<double, 10 * 12> memory{kor::Count{n} * n + kor::Count{n} * 2};
    if (no_memory(report, bool{memory})) return;

    Determinant<double> determinant;
    if (cholesky_below(n, a, tda, p, determinant) != 0) return report.error<NE_NOT_POS_DEF>();
    // The residuals read whole rows of A.
    double *const work = memory.data(), *const whole = work + 2 * std::ptrdiff_t{n};
    complete_symmetric(n, a, tda, whole, n);
    const auto solve = [=](double *r, Integer tdr) { cholesky_below_solve(n, 1, a, tda, p, r, tdr); };
    Integer iterations;
    if (!refine(n, 1, whole, n, solve, b, 1, x, 1, bb, 1, iterations, work)) return report.error<NE_ITER_FAIL_CONV>();
    report.success();
}
