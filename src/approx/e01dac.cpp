// e01dac: the bicubic spline through the values on a grid.
#include <kor/e01.h>

#include <algorithm>

#include "approx/arguments.hpp"
#include "approx/collocation.hpp"
#include "frame/workspace.hpp"

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
    const auto m_x = static_cast<std::ptrdiff_t>(mx), m_y = static_cast<std::ptrdiff_t>(my);
    interpolation_knots(my, y, mu.data());
    transpose(m_x, m_y, f, transposed.data());
    collocate(my, y, mu.data(), work.data(), transposed.data(), m_x);

    interpolation_knots(mx, x, lamda.data());
    transpose(m_y, m_x, transposed.data(), c.data());
    collocate(mx, x, lamda.data(), work.data(), c.data(), m_y);

    spline->nx = mx + kOrder;
    spline->ny = my + kOrder;
    spline->lamda = lamda.release();
    spline->mu = mu.release();
    spline->c = c.release();
    report.success();
}
