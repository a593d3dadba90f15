// d02ejc: integrates a stiff system over a range, with output and a stop at a root.
#include <kor/d02.h>

#include <algorithm>
#include <cmath>

#include "frame/workspace.hpp"
#include "ode/bdf.hpp"
#include "ode/range_report.hpp"

using namespace kor::ode;

namespace {

constexpr Integer kHistory = 6, kMaxOrder = 5;
constexpr double kLeastRelative = 5.0 * kor::kPrecision;
constexpr Integer kScalarTolerances = 1;

} // namespace

void d02ejc(Integer neq, void (*fcn)(Integer neq, double x, const double y[], double f[], void *comm),
            void (*pederv)(Integer neq, double x, const double y[], double pw[], void *comm), double *x, double y[],
            double xend, double tol, Integer err_c,
            void (*output)(Integer neq, double *xsol, const double y[], void *comm),
            double (*g)(Integer neq, double x, const double y[], void *comm), void *comm, KorError *fail)
{
    const kor::Report report{"d02ejc", fail};
    if (!range_accepted(report, neq, tol, *x, xend, err_c)) return;

    const kor::Count n{neq};
    const kor::Workspace<double> jacobian{n * n}, matrix{n * (n + 5)}, history{n * kHistory}, vectors{n * 4};
    const kor::Workspace<Integer> pivots{n};
    if (!jacobian || !matrix || !history || !vectors || !pivots) return report.error<NE_ALLOC_FAIL>();
    double *const u = vectors.data(), *const slope = u + neq, *const correction = slope + neq,
                  *const scratch = correction + neq;

    KorBdfState st;
    Integer status;
    d02nvc(neq, kHistory, kMaxOrder, &st, &status);
    d02nsc(neq, pederv != nullptr ? "ANALYT" : "NUMERI", &st, &status);
    st.ysav = history.data();
    st.work = matrix.data();
    st.iwork = pivots.data();
    st.one_step = st.crit = 1;
    st.tcrit = xend;

    std::copy_n(y, neq, u);
    const RangeTolerances tolerances = range_tolerances(tol, err_c, kLeastRelative, neq, y);
    RangeWatch watch{neq, *x, xend, output, g, comm, scratch};
    WatchOutcome outcome = watch.start(u);
    if (outcome != WatchOutcome::go_on) return report_output_point(report, watch, outcome);

    double t = *x;
    const auto interpolate = [&](double at, double *sol) {
        Integer ignored;
        d02xkc(at, sol, neq, history.data(), neq, kHistory, &st, &ignored);
    };
    while (st.steps == 0 || t != xend) {
        Integer request = 0;
        do {
            d02nmc(neq, &t, xend, u, slope, &tolerances.relative, &tolerances.absolute, kScalarTolerances, correction,
                   jacobian.data(), &st, &request, &status);
            if (request == static_cast<Integer>(BdfRequest::slope)) fcn(neq, t, u, slope, comm);
            if (request == static_cast<Integer>(BdfRequest::jacobian)) pederv(neq, t, u, jacobian.data(), comm);
        } while (request != 0);
        if (status != 0) break;
        outcome = watch.step(t, u, interpolate);
        if (outcome != WatchOutcome::go_on) break;
    }

    if (status != 0) {
        if (st.steps == 0) return report.error<NE_TOL_TOO_SMALL>(tol);
        *x = t;
        std::copy_n(u, neq, y);
        return report.error<NE_TOL_PROGRESS>(tol, t);
    }
    *x = outcome == WatchOutcome::go_on ? xend : watch.x();
    if (*x == t)
        std::copy_n(u, neq, y);
    else
        interpolate(*x, y);
    if (outcome == WatchOutcome::root) return report.success();
    if (outcome != WatchOutcome::go_on) return report_output_point(report, watch, outcome);
    if (g != nullptr) return report.error<NE_NO_SIGN_CHANGE>();
    report.success();
}
