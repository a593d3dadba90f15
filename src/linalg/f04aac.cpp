// f04aac: solution of real linear systems with several right-hand sides, by partial pivoting.
#include <kor/f04.h>

#include <algorithm>
#include <limits>

#include "frame/report.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/lu.hpp"

void f04aac(Integer n, Integer nrhs, double a[], Integer tda, const double b[], Integer tdb, double c[], Integer tdc,
            KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f04aac", fail};
    if (below_one(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;
    if (below_one(report, "nrhs", nrhs) || shorter(report, "tdb", tdb, "nrhs", nrhs)) return;
    if (shorter(report, "tdc", tdc, "nrhs", nrhs)) return;
    const Scratch<Integer, kSmallSystem> pivot{n};
    const Scratch<double, kSmallSystem> scale{n};
    const Scratch<double, 1> work{lu_work(n)};
    if (no_memory(report, pivot && scale && work)) return;

    // Rows as they are: only a pivot of exactly 0 ends the factorisation.
    std::fill(scale.data(), scale.data() + n, 1.0);
    constexpr double kNotZero = std::numeric_limits<double>::denorm_min();
    if (lu_factor(n, a, tda, scale.data(), kNotZero, pivot.data(), work.data()) != 0)
        return report.error<NE_SINGULAR>();
    copy_rows(n, nrhs, b, tdb, c, tdc);
    lu_solve(n, nrhs, a, tda, pivot.data(), c, tdc);
    report.success();
}
