// e02dec: values of a bicubic spline at a list of points.
#include <kor/e02.h>

#include "approx/arguments.hpp"
#include "approx/bicubic.hpp"

void e02dec(Integer m, const double x[], const double y[], double ff[], const KorSpline2D *spline, KorError *fail)
{
    using namespace kor::approx;
    const kor::Report report{"e02dec", fail};
    if (m < 1) return report.error<NE_INT_ARG_LT>("m", "1", "m", m);
    if (!knots_of_spline(report, spline)) return;
    const Knots x_knots{spline->lamda, spline->nx}, y_knots{spline->mu, spline->ny};
    for (Integer r = 0; r < m; ++r)
        if (!within_rectangle(report, x_knots, y_knots, r, x[r], r, y[r])) return;

    Integer lx = kDegree, ly = kDegree;
    for (Integer r = 0; r < m; ++r) {
        double bx[kOrder], by[kOrder];
        lx = x_knots.span_near(x[r], lx);
        ly = y_knots.span_near(y[r], ly);
        basis_values(x_knots.t, lx, x[r], bx);
        basis_values(y_knots.t, ly, y[r], by);
        ff[r] = bicubic_value(spline->c, y_knots.basis_size(), lx, bx, ly, by);
    }
    report.success();
}
