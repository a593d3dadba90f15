// e02bdc: the integral of a cubic spline over its range.
#include <kor/e02.h>

#include "approx/arguments.hpp"

namespace {

using kor::approx::kDegree;
using kor::approx::Knots;
using kor::approx::kOrder;

bool ends_coincide(const Knots &knots)
{
    for (Integer j = 0; j < kDegree; ++j)
        if (knots[j] != knots.first() || knots[knots.n - 1 - j] != knots.last()) return false;
    return true;
}

// Gauss's rule of two points is exact for a cubic.
double integral_by_spans(const Knots &knots, const double *c)
{
    constexpr double node = 0.21132486540518712; // (1 - 1/sqrt(3))/2
    double sum = 0.0;
    for (Integer l = kDegree; l < knots.n - kOrder; ++l) {
        const double h = knots[l + 1] - knots[l];
        if (!(h > 0.0)) continue;
        sum += 0.5 * h *
               (kor::approx::spline_value(knots.t, c, l, knots[l] + node * h) +
                kor::approx::spline_value(knots.t, c, l, knots[l + 1] - node * h));
    }
    return sum;
}

} // namespace

void e02bdc(double *integral, const KorSpline *spline, KorError *fail)
{
    const kor::Report report{"e02bdc", fail};
    if (!kor::approx::knots_of_spline(report, spline)) return;
    const Knots knots{spline->lamda, spline->n};
    for (Integer j = 1; j < knots.n; ++j) {
        if (knots[j - 1] <= knots[j]) continue;
        return report.error<NE_KNOTS_CONS>(kor::approx::ElementName{"spline.lamda", j - 1}.c_str(),
                                           kor::approx::ElementName{"spline.lamda", j}.c_str(), knots[j - 1], knots[j]);
    }

    if (ends_coincide(knots)) {
        // A B-spline's integral is the mean length of the spans that it covers.
        double sum = 0.0;
        for (Integer i = 0; i < knots.basis_size(); ++i) sum += spline->c[i] * (knots[i + kOrder] - knots[i]);
        *integral = sum / kOrder;
    } else {
        *integral = integral_by_spans(knots, spline->c);
    }
    report.success();
}
