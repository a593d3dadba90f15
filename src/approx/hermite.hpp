// The piecewise cubic in Hermite form: values f and derivatives d at increasing nodes x.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "approx/interval_search.hpp"
#include "frame/report.hpp"

namespace kor::approx {

struct ValueAndSlope {
    double value, slope;
};

struct HermiteCubic {
    Integer n;
    const double *x;
    const double *f;
    const double *d;

    bool holds(double p) const { return p >= x[0] && p <= x[n - 1]; }

    // The interval i, from x[i] to x[i+1], of a point, given that of the point before; the first or the last one for points
    // outside.
    Integer interval(double p, Integer before) const { return static_cast<Integer>(interval_near(x, n, p, before)); }

    // The cubic of interval i, about its nearer end: exact at both.
    ValueAndSlope at(Integer i, double p) const
    {
        const double h = x[i + 1] - x[i];
        const bool upper = p - x[i] > x[i + 1] - p;
        const Integer near = i + upper, far = i + !upper;
        const double reciprocal = 1.0 / (upper ? -h : h);
        const double u = p - x[near];
        const double slope = (f[far] - f[near]) * reciprocal;
        const double e1 = (d[near] - slope) * reciprocal, e2 = (d[far] - slope) * reciprocal;
        const double c2 = -(e1 + e1 + e2), c3 = (e1 + e2) * reciprocal;
        return {f[near] + u * (d[near] + u * (c2 + u * c3)), d[near] + u * (2.0 * c2 + u * 3.0 * c3)};
    }

    // The integral of the cubic of interval i from p to q.
    double integral(Integer i, double p, double q) const
    {
        // Simpson's rule is exact for a cubic.
        const double middle = p + 0.5 * (q - p);
        return (q - p) * ((at(i, p).value + at(i, q).value) + 4.0 * at(i, middle).value) / 6.0;
    }

    // The integral over the whole of interval i.
    double integral(Integer i) const
    {
        const double h = x[i + 1] - x[i];
        return h * (0.5 * (f[i] + f[i + 1]) + h * (d[i] - d[i + 1]) / 12.0);
    }
};

inline bool nodes_right(const Report &report, Integer n, const double *x)
{
    if (n < 2) {
        report.error<NE_INT_ARG_LT>("n", "2", "n", n);
        return false;
    }
    for (Integer i = 1; i < n; ++i) {
        if (x[i - 1] < x[i]) continue;
        report.error<NE_NOT_MONOTONIC>();
        return false;
    }
    if (std::isfinite(x[0]) && std::isfinite(x[n - 1])) return true;
    report.error<NE_NOT_MONOTONIC>();
    return false;
}

// e01bfc and e01bgc: `store(j, value and slope)` for each of the points. Points outside get the cubic of the end interval,
// and the last of them is named in a warning.
template <class Store>
void evaluate_hermite(const Report &report, const HermiteCubic &cubic, Integer m, const double *px, Store store)
{
    if (!nodes_right(report, cubic.n, cubic.x)) return;
    if (m < 1) return report.error<NE_INT_ARG_LT>("m", "1", "m", m);

    Integer i = 0, outside = -1;
    for (Integer j = 0; j < m; ++j) {
        i = cubic.interval(px[j], i);
        if (!cubic.holds(px[j])) outside = j;
        store(j, cubic.at(i, px[j]));
    }
    if (outside >= 0) return report.error<NW_EXTRAPOLATE>(px[outside]);
    report.success();
}

} // namespace kor::approx
