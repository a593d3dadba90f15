// e02dbc: values of a bicubic spline at points that e02zac has linked panel by panel.
#include <kor/e02.h>

#include "approx/arguments.hpp"
#include "approx/bicubic.hpp"
#include "approx/panels.hpp"

namespace {

using namespace kor::approx;

bool end_panels_not_empty(const kor::Report &report, const char *name, const Knots &knots)
{
    struct Pair {
        Integer low, high;
    };
    for (const Pair pair : {Pair{kDegree, kOrder}, Pair{knots.n - kOrder - 1, knots.n - kOrder}}) {
        if (knots[pair.low] < knots[pair.high]) continue;
        char rule[96];
        std::snprintf(rule, sizeof rule, "%s < %s", ElementName{name, pair.low}.c_str(),
                      ElementName{name, pair.high}.c_str());
        report.error<NE_END_KNOTS_CONS>(rule, knots[pair.low], knots[pair.high]);
        return false;
    }
    return true;
}

// Walks the chains, whatever they hold: every point must come once, in its own panel. As a point belongs to one panel, a
// walk of m steps that ends has met all of them. Returns the first index at fault, or -1.
Integer fault_in_chains(const Panels &panels, Integer m, const double x[], const double y[], const Integer point[])
{
    Integer steps = 0;
    for (int64_t panel = 0; panel < panels.count(); ++panel) {
        auto index = static_cast<Integer>(m + panel);
        while (point[index] != 0) {
            const Integer r = point[index] - 1;
            if (r < 0 || r >= m || ++steps > m || panels.panel_of(x[r], y[r]) != panel) return index;
            index = r;
        }
    }
    return steps == m ? -1 : m;
}

} // namespace

void e02dbc(Integer m, const double x[], const double y[], double ff[], const Integer point[],
            const KorSpline2D *spline, KorError *fail)
{
    const kor::Report report{"e02dbc", fail};
    if (m < 1) return report.error<NE_INT_ARG_LT>("m", "1", "m", m);
    // These texts call the numbers of knots by the names of the arguments of e02zac.
    if (spline->nx < kEndKnots) return report.error<NE_INT_ARG_LT>("spline.px", "8", "spline.px", spline->nx);
    if (spline->ny < kEndKnots) return report.error<NE_INT_ARG_LT>("spline.py", "8", "spline.py", spline->ny);
    const Panels panels{{spline->lamda, spline->nx}, {spline->mu, spline->ny}};
    if (!end_panels_not_empty(report, "spline.lamda", panels.x) || !end_panels_not_empty(report, "spline.mu", panels.y))
        return;
    for (Integer r = 0; r < m; ++r)
        if (!within_rectangle(report, panels.x, panels.y, r, x[r], r, y[r])) return;
    if (const Integer fault = fault_in_chains(panels, m, x, y, point); fault >= 0)
        return report.error<NE_PANEL_ORDER>("point", fault);

    for (int64_t panel = 0; panel < panels.count(); ++panel) {
        const Integer lx = panels.x_span(panel), ly = panels.y_span(panel);
        for (Integer next = point[m + panel]; next != 0; next = point[next - 1]) {
            const Integer r = next - 1;
            double bx[kOrder], by[kOrder];
            basis_values(panels.x.t, lx, x[r], bx);
            basis_values(panels.y.t, ly, y[r], by);
            ff[r] = bicubic_value(spline->c, panels.y.basis_size(), lx, bx, ly, by);
        }
    }
    report.success();
}
