// The driver over a whole range: tests, tolerances, the way from step to step, and reports. An integrator gives the steps.
#pragma once

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"
#include "frame/report.hpp"
#include "ode/range_watch.hpp"

namespace kor::ode {

// Reports the first offence; false when there is one.
inline bool range_accepted(const Report &report, Integer neq, double tol, double x, double xend, Integer err_c)
{
    if (neq < 1)
        report.error<NE_INT_ARG_LT>("neq", "1", "neq", neq);
    else if (!(tol > 0.0))
        report.error<NE_REAL_ARG_LE>("tol", "0.0", "tol", tol);
    else if (x == xend)
        report.error<NE_2_REAL_ARG_EQ>("x", x, "tend", xend, "x", "tend");
    else if (err_c < Kor_Relative || err_c > Kor_Mixed)
        report.error<NE_BAD_PARAM>("err_c");
    else
        return true;
    return false;
}

struct RangeTolerances {
    double relative, absolute;
};

// `least` is the smallest relative tolerance that the integrator works with. A tolerance below the precision stays as it is:
// the integrator refuses it at the start.
inline RangeTolerances range_tolerances(double tol, Integer err_c, double least, Integer neq, const double *y)
{
    const double relative = tol < kPrecision ? tol : std::max(tol, least);
    if (err_c == Kor_Absolute) return {0.0, tol};
    if (err_c == Kor_Mixed) return {relative, tol};
    // A component that starts as zero has no digits to be kept: nothing is asked of it below the rounding errors of the
    // greatest one.
    double greatest = 0.0;
    for (Integer i = 0; i < neq; ++i) greatest = std::max(greatest, std::fabs(y[i]));
    return {relative, tol * kPrecision * (greatest > 0.0 && greatest <= kLargest ? greatest : 1.0)};
}

// The report on a wrong output point.
inline void report_output_point(const Report &report, const RangeWatch &watch, WatchOutcome outcome)
{
    switch (outcome) {
    case WatchOutcome::xsol_behind_start:
        return report.error<NE_XSOL_SET_WRONG>(watch.xsol(), watch.x());
    case WatchOutcome::xsol_not_moved:
        return report.error<NE_XSOL_NOT_RESET>(watch.calls());
    case WatchOutcome::xsol_behind:
        return report.error<NE_XSOL_INCONSIST>(watch.xsol(), watch.x());
    case WatchOutcome::go_on:
    case WatchOutcome::root:
        break;
    }
    report.error<NE_INTERNAL_ERROR>();
}

struct RangeArguments {
    Integer neq;
    double *x, *y;
    double xend, tol;
    OutputFunction output;
    RootFunction g;
    void *comm;
    double *scratch; // neq elements
};

// What an integrator has: t() and y(), the point reached; step(), false when no step can be taken; interpolate(t, sol) within
// the last step; started(), whether there has been one.
template <class Integrator>
void integrate_range(const Report &report, const RangeArguments &a, Integrator &integrator)
{
    RangeWatch watch{a.neq, *a.x, a.xend, a.output, a.g, a.comm, a.scratch};
    WatchOutcome outcome = watch.start(a.y);
    if (outcome != WatchOutcome::go_on) return report_output_point(report, watch, outcome);

    const auto interpolate = [&](double at, double *sol) { integrator.interpolate(at, sol); };
    bool moves = true;
    while (outcome == WatchOutcome::go_on && !(integrator.started() && integrator.t() == a.xend)) {
        moves = integrator.step();
        if (!moves) break;
        outcome = watch.step(integrator.t(), integrator.y(), interpolate);
    }
    if (!moves && !integrator.started()) return report.error<NE_TOL_TOO_SMALL>(a.tol);

    const bool stopped = outcome != WatchOutcome::go_on;
    *a.x = stopped ? watch.x() : integrator.t();
    if (*a.x == integrator.t())
        std::copy_n(integrator.y(), a.neq, a.y);
    else
        integrator.interpolate(*a.x, a.y);
    if (!moves) return report.error<NE_TOL_PROGRESS>(a.tol, *a.x);
    if (outcome == WatchOutcome::root) return report.success();
    if (stopped) return report_output_point(report, watch, outcome);
    if (a.g != nullptr) return report.error<NE_NO_SIGN_CHANGE>();
    report.success();
}

} // namespace kor::ode
