// The tests of arguments that the routines of these chapters share. Each reports what it finds, and says whether all is
// well. A NaN fails every test.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdio>

#include <kor/e02.h>

#include "approx/cubic_bspline.hpp"
#include "frame/report.hpp"

namespace kor::approx {

// The name of an element in a report: "x[12]".
class ElementName {
  public:
    ElementName(const char *array, Integer i)
    {
        std::snprintf(text_, sizeof text_, "%s[%ld]", array, static_cast<long>(i));
    }
    const char *c_str() const { return text_; }

  private:
    char text_[40];
};

inline bool all_finite(const Report &report, const char *name, Integer n, const double *values)
{
    for (Integer i = 0; i < n; ++i) {
        if (std::isfinite(values[i])) continue;
        report.error<NE_REAL_ARRAY_CONS>(name, i, values[i], "every value is finite");
        return false;
    }
    return true;
}

inline bool strictly_increasing(const Report &report, const char *name, Integer n, const double *x)
{
    for (Integer i = 1; i < n; ++i) {
        if (x[i - 1] < x[i]) continue;
        report.error<NE_NOT_STRICTLY_INCREASING>(name, name, i - 1, x[i - 1], name, i, x[i]);
        return false;
    }
    // What increases can be infinite at its ends alone.
    if (std::isfinite(x[0]) && std::isfinite(x[n - 1])) return true;
    return all_finite(report, name, n, x);
}

inline bool weights_positive(const Report &report, Integer m, const double *weights)
{
    for (Integer i = 0; i < m; ++i) {
        if (weights[i] > 0.0 && std::isfinite(weights[i])) continue;
        report.error<NE_WEIGHTS_NOT_POSITIVE>(i);
        return false;
    }
    return true;
}

inline bool knots_of_spline(const Report &report, const KorSpline *spline)
{
    if (spline->n < kEndKnots) {
        report.error<NE_INT_ARG_LT>("spline.n", "8", "spline.n", spline->n);
        return false;
    }
    const Knots knots{spline->lamda, spline->n};
    if (knots.first() < knots.last()) return true;
    report.error<NE_SPLINE_RANGE_INVALID>("spline.lamda[3]", "spline.lamda[spline.n-4]", knots.first(), knots.last());
    return false;
}

inline bool within_knots(const Report &report, const Knots &knots, double x)
{
    if (knots.holds(x)) return true;
    report.error<NE_ABSCI_OUTSIDE_KNOT_INTVL>("x", "spline.lamda[3]", "spline.lamda[spline.n-4]", x, knots.first(),
                                              knots.last());
    return false;
}

inline bool knots_of_spline(const Report &report, const KorSpline2D *spline)
{
    if (spline->nx < kEndKnots || spline->ny < kEndKnots) {
        report.error<NE_NUM_KNOTS_2D_LT>("spline.nx", "spline.ny", spline->nx, spline->ny);
        return false;
    }
    const Knots x{spline->lamda, spline->nx}, y{spline->mu, spline->ny};
    if (!(x.first() < x.last())) {
        report.error<NE_SPLINE_RANGE_INVALID>("spline.lamda[3]", "spline.lamda[spline.nx-4]", x.first(), x.last());
        return false;
    }
    if (!(y.first() < y.last())) {
        report.error<NE_SPLINE_RANGE_INVALID>("spline.mu[3]", "spline.mu[spline.ny-4]", y.first(), y.last());
        return false;
    }
    return true;
}

inline bool within_rectangle(const Report &report, const Knots &x_knots, const Knots &y_knots, Integer i, double x,
                             Integer j, double y)
{
    if (x_knots.holds(x) && y_knots.holds(y)) return true;
    report.error<NE_POINT_OUTSIDE_RECT>(ElementName{"x", i}.c_str(), ElementName{"y", j}.c_str(), x, y, x_knots.first(),
                                        x_knots.last(), y_knots.first(), y_knots.last());
    return false;
}

} // namespace kor::approx
