// f04arc: solution of one real linear system.
#include <kor/f04.h>

#include <algorithm>

#include "frame/report.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/lu.hpp"

void f04arc(Integer n, const double a[], Integer tda, const double b[], double x[], KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f04arc", fail};
    if (below_one(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;
    const Scratch<double, 16 * 16> factors{kor::Count{n} * n};
    const Scratch<Integer, kSmallSystem> pivot{n};
    ScaledLu<double> lu{n};
    if (no_memory(report, factors && pivot && lu)) return;

    copy_rows(n, n, a, tda, factors.data(), n);
    if (lu.factor(factors.data(), n, pivot.data()) != 0) return report.error<NE_SINGULAR>();
    copy_rows(n, 1, b, 1, x, 1);
    lu_solve(n, 1, factors.data(), n, pivot.data(), x, 1);
    report.success();
}
