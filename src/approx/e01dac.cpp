// e01dac: the bicubic spline through the values on a grid.
#include <kor/e01.h>

#include <algorithm>

#include "approx/arguments.hpp"
#include "approx/collocation.hpp"
#include "frame/workspace.hpp"
#include "linalg/transpose.hpp"

void e01dac(Integer mx, Integer my, const double x[], const double y[], const double f[], KorSpline2D *spline,
            KorError *fail)
{
    using namespace kor::approx;
    const kor::Report report{"e01dac", fail};
    if (mx < kOrder) return report.error<NE_INT_ARG_LT>("mx", "4", "mx", mx);
    if (my < kOrder) return report.error<NE_INT_ARG_LT>("my", "4", "my", my);
    if (!strictly_increasing(report, "x", mx, x) || !strictly_increasing(report, "y", my, y)) return;

    const kor::Count values = kor::Count{mx} * kor::Count{my};
    kor::Workspace<double> lamda(kor::Count{mx} + kor::Count{kOrder}), mu(kor::Count{my} + kor::Count{kOrder}),
        c(values);
    const kor::Workspace<double> transposed(values), work(std::max(mx, my));
    if (!lamda || !mu || !c || !transposed || !work) return report.error<NE_ALLOC_FAIL>();

    // One dimension at a time: first along y, for all x at once, then along x, for all y at once.
    interpolation_knots(my, y, mu.data());
    kor::linalg::transpose_into(mx, my, f, my, transposed.data(), mx);
    collocate(my, y, mu.data(), work.data(), transposed.data(), mx);

    interpolation_knots(mx, x, lamda.data());
    kor::linalg::transpose_into(my, mx, transposed.data(), mx, c.data(), my);
    collocate(mx, x, lamda.data(), work.data(), c.data(), my);

    spline->nx = mx + kOrder;
    spline->ny = my + kOrder;
    spline->lamda = lamda.release();
    spline->mu = mu.release();
    spline->c = c.release();
    report.success();
}
