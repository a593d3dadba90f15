// e02bbc: the value of a cubic spline.
#include <kor/e02.h>

#include "approx/arguments.hpp"

void e02bbc(double x, double *s, const KorSpline *spline, KorError *fail)
{
    const kor::Report report{"e02bbc", fail};
    if (!kor::approx::knots_of_spline(report, spline)) return;
    const kor::approx::Knots knots{spline->lamda, spline->n};
    if (!within_knots(report, knots, x)) return;

    *s = kor::approx::spline_value(knots.t, spline->c, knots.span(x), x);
    report.success();
}
