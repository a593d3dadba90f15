// e02bac: the least-squares cubic spline on given knots.
#include <kor/e02.h>

#include <algorithm>
#include <cmath>

#include "approx/arguments.hpp"
#include "approx/banded_triangle.hpp"
#include "approx/knot_conditions.hpp"
#include "frame/workspace.hpp"

namespace {

using namespace kor::approx;

Integer distinct_values(Integer m, const double x[])
{
    Integer count = 1;
    for (Integer r = 1; r < m; ++r) count += x[r] > x[r - 1];
    return count;
}

bool abscissae_in_order(const kor::Report &report, Integer m, const double x[])
{
    for (Integer r = 1; r < m; ++r) {
        if (x[r - 1] <= x[r]) continue;
        report.error<NE_NOT_NON_DECREASING>("x");
        return false;
    }
    return all_finite(report, "x", m, x);
}

// Interior knots between the first and the last point, in order.
bool interior_knots_right(const kor::Report &report, const Knots &knots, double first, double last)
{
    if (knots.interior() == 0) return true;
    const Integer end = knots.n - kOrder;
    for (const Integer j : {kOrder, end - 1}) {
        if (first < knots[j] && knots[j] < last) continue;
        const char *const name = j == kOrder ? "spline.lamda[4]" : "spline.lamda[spline.n-5]";
        report.error<NE_KNOTS_OUTSIDE_DATA_INTVL>(name, "x[0]", "x[m-1]", knots[j], first, last);
        return false;
    }
    for (Integer j = kOrder + 1; j < end; ++j) {
        if (knots[j - 1] <= knots[j]) continue;
        report.error<NE_NOT_INCREASING>("spline.lamda", "spline.lamda", j - 1, knots[j - 1], "spline.lamda", j,
                                        knots[j]);
        return false;
    }
    return true;
}

} // namespace

void e02bac(Integer m, const double x[], const double y[], const double weights[], double *ss, KorSpline *spline,
            KorError *fail)
{
    const kor::Report report{"e02bac", fail};
    if (m < kOrder) return report.error<NE_INT_ARG_LT>("m", "4", "m", m);
    if (!abscissae_in_order(report, m, x) || !weights_positive(report, m, weights)) return;
    const Integer n = spline->n;
    if (n < kEndKnots) return report.error<NE_INT_ARG_LT>("spline.n", "8", "spline.n", n);
    if (!interior_knots_right(report, {spline->lamda, n}, x[0], x[m - 1])) return;
    if (n - kOrder > distinct_values(m, x)) return report.error<NE_KNOTS_DISTINCT_ABSCI_CONS>();

    const kor::Workspace<double> t(kor::Count{n}), r(kor::Count{n} * kor::Count{kOrder}), z(kor::Count{n});
    kor::Workspace<double> c(kor::Count{n});
    if (!t || !r || !z || !c) return report.error<NE_ALLOC_FAIL>();
    std::copy_n(spline->lamda, n, t.data());
    std::fill_n(t.data(), kOrder, x[0]);
    std::fill_n(t.data() + n - kOrder, kOrder, x[m - 1]);
    const Knots knots{t.data(), n};
    if (const Integer i = first_without_point(knots, m, x); i >= 0) return report.error<NE_SW_COND_FAIL>(i);

    const BandedTriangle triangle{r.data(), z.data(), knots.basis_size(), kOrder};
    triangle.clear();
    double sum = 0.0;
    Integer l = kDegree;
    for (Integer i = 0; i < m; ++i) {
        while (l < n - kOrder - 1 && x[i] >= t[l + 1]) ++l;
        double b[kOrder];
        basis_values(t.data(), l, x[i], b);
        for (double &value : b) value *= weights[i];
        const double left = triangle.add_row(l - kDegree, b, kOrder, weights[i] * y[i]);
        sum += left * left;
    }
    triangle.solve(c.data());
    std::fill(c.begin() + knots.basis_size(), c.end(), 0.0);

    *ss = sum;
    std::copy_n(t.data(), n, spline->lamda);
    spline->c = c.release();
    report.success();
}
