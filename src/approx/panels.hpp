// The panels of a pair of knot sets, and points linked panel by panel.
//
// Panel q = (interval in x) (py-7) + (interval in y). The chains of e02zac: point[m + q] is the number, from 1, of the first
// point of panel q, and point[r - 1] that of the point after point r; 0 ends a chain.
#pragma once

#include <cstdint>

#include "approx/cubic_bspline.hpp"

namespace kor::approx {

struct Panels {
    Knots x, y;

    int64_t columns() const { return y.n - kEndKnots + 1; }
    int64_t count() const { return (x.n - kEndKnots + 1) * columns(); }
    Integer x_span(int64_t panel) const { return static_cast<Integer>(kDegree + panel / columns()); }
    Integer y_span(int64_t panel) const { return static_cast<Integer>(kDegree + panel % columns()); }
    // The nearest one for a point outside.
    int64_t panel_of(double px, double py) const { return (x.span(px) - kDegree) * columns() + (y.span(py) - kDegree); }
};

} // namespace kor::approx
