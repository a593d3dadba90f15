// e02dfc: values of a bicubic spline on a mesh.
#include <kor/e02.h>

#include "approx/arguments.hpp"
#include "approx/bicubic.hpp"
#include "frame/dispatch.hpp"
#include "frame/workspace.hpp"

namespace {

using namespace kor::approx;

// The span of a coordinate and the basis values there.
struct Line {
    Integer span;
    double basis[kOrder];
};

void find_lines(const Knots &knots, Integer m, const double x[], Line *lines)
{
    Integer l = kDegree;
    for (Integer r = 0; r < m; ++r) {
        l = knots.span_near(x[r], l);
        lines[r].span = l;
        basis_values(knots.t, l, x[r], lines[r].basis);
    }
}

// For each line of constant x the surface is one spline in y, whose coefficients are found first.
KOR_CLONES
void evaluate(Integer mx, const Line *x_lines, Integer my, const Line *y_lines, const double *c, std::ptrdiff_t columns,
              double *curve, double *ff)
{
    for (Integer i = 0; i < mx; ++i) {
        const double *const b = x_lines[i].basis;
        const double *const c0 = c + (x_lines[i].span - kDegree) * columns;
        const double *const c1 = c0 + columns, *const c2 = c1 + columns, *const c3 = c2 + columns;
        for (std::ptrdiff_t j = 0; j < columns; ++j)
            curve[j] = (b[0] * c0[j] + b[1] * c1[j]) + (b[2] * c2[j] + b[3] * c3[j]);
        for (Integer j = 0; j < my; ++j) {
            const double *const v = y_lines[j].basis;
            const double *const d = curve + (y_lines[j].span - kDegree);
            *ff++ = (v[0] * d[0] + v[1] * d[1]) + (v[2] * d[2] + v[3] * d[3]);
        }
    }
}

} // namespace

void e02dfc(Integer mx, Integer my, const double x[], const double y[], double ff[], const KorSpline2D *spline,
            KorError *fail)
{
    const kor::Report report{"e02dfc", fail};
    if (mx < 1) return report.error<NE_INT_ARG_LT>("mx", "1", "mx", mx);
    if (my < 1) return report.error<NE_INT_ARG_LT>("my", "1", "my", my);
    if (!knots_of_spline(report, spline)) return;
    const Knots x_knots{spline->lamda, spline->nx}, y_knots{spline->mu, spline->ny};
    for (Integer i = 0; i < mx; ++i)
        if (!within_rectangle(report, x_knots, y_knots, i, x[i], 0, y[0])) return;
    for (Integer j = 0; j < my; ++j)
        if (!within_rectangle(report, x_knots, y_knots, 0, x[0], j, y[j])) return;

    const kor::Workspace<Line> x_lines(kor::Count{mx}), y_lines(kor::Count{my});
    const kor::Workspace<double> curve(kor::Count{y_knots.basis_size()});
    if (!x_lines || !y_lines || !curve) return report.error<NE_ALLOC_FAIL>();

    find_lines(x_knots, mx, x, x_lines.data());
    find_lines(y_knots, my, y, y_lines.data());
    evaluate(mx, x_lines.data(), my, y_lines.data(), spline->c, y_knots.basis_size(), curve.data(), ff);
    report.success();
}
