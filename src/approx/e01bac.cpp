// e01bac: the cubic spline through given points.
#include <kor/e01.h>

#include <algorithm>

#include "approx/arguments.hpp"
#include "approx/collocation.hpp"
#include "frame/workspace.hpp"

void e01bac(Integer m, const double x[], const double y[], KorSpline *spline, KorError *fail)
{
    using namespace kor::approx;
    const kor::Report report{"e01bac", fail};
    if (m < kOrder) return report.error<NE_INT_ARG_LT>("m", "4", "m", m);
    if (!strictly_increasing(report, "x", m, x)) return;

    const kor::Count knots = kor::Count{m} + kor::Count{kOrder};
    kor::Workspace<double> lamda(knots), c(knots);
    const kor::Workspace<double> work(m);
    if (!lamda || !c || !work) return report.error<NE_ALLOC_FAIL>();

    interpolation_knots(m, x, lamda.data());
    std::fill(std::copy_n(y, m, c.begin()), c.end(), 0.0);
    collocate(m, x, lamda.data(), work.data(), c.data());

    spline->n = m + kOrder;
    spline->lamda = lamda.release();
    spline->c = c.release();
    report.success();
}
