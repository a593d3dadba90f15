// e02bcc: the value and the derivatives of a cubic spline, from either side.
#include <kor/e02.h>

#include "approx/arguments.hpp"

void e02bcc(Integer derivs, double x, double s[4], const KorSpline *spline, KorError *fail)
{
    const kor::Report report{"e02bcc", fail};
    if (derivs != Kor_LeftDerivs && derivs != Kor_RightDerivs) return report.error<NE_BAD_PARAM>("derivs");
    if (!kor::approx::knots_of_spline(report, spline)) return;
    const kor::approx::Knots knots{spline->lamda, spline->n};
    if (!within_knots(report, knots, x)) return;

    const Integer span = derivs == Kor_LeftDerivs ? knots.span_from_left(x) : knots.span(x);
    kor::approx::spline_derivatives(knots.t, spline->c, span, x, s);
    report.success();
}
