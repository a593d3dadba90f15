// d02qfc: integrates by an Adams method of variable order and step, and finds events on the way.
#include <kor/d02.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "frame/report.hpp"
#include "ode/adams_record.hpp"

namespace {

using namespace kor::ode;

// May the integration go from t to tout? If not, it has been reported.
bool may_go(const kor::Report &report, KorAdamsOptions &opt, double t, double tout)
{
    if (!std::isfinite(t) || !std::isfinite(tout) || !std::isfinite(tout - t))
        return report.error<NE_2_REAL_ARG_CONS>("t", t, "tout", tout, "abs(tout-t) finite"), false;
    if (opt.state != Kor_Continue && tout == t) return report.error<NE_T_SAME_TOUT>(t, tout), false;
    double direction = tout > t ? 1.0 : -1.0;
    if (opt.state == Kor_Continue) {
        if (t != opt.last_t) return report.error<NE_T_CHANGED>(t, opt.last_t), false;
        direction = integration_of(opt).adams.direction();
        if ((tout - t) * direction < 0.0) return report.error<NE_DIRECTION_CHANGE>(), false;
    }
    if (opt.crit && !((opt.tcrit - tout) * direction >= 0.0))
        return report.error<NE_TOUT_TCRIT>(tout, opt.tcrit), false;
    return true;
}

void record_results(KorAdamsOptions &opt, Advance outcome)
{
    const AdamsIntegration &integration = integration_of(opt);
    // Whatever the outcome: steps that were taken may be looked into.
    opt.setup_done = kIntegrated;
    opt.state = Kor_Continue;
    opt.last_t = integration.t;
    opt.root_found = outcome == Advance::at_event;
    opt.root_index = outcome == Advance::at_event || outcome == Advance::singular ? integration.event + 1 : 0;
    opt.steps_taken =
        static_cast<Integer>(std::min<int64_t>(integration.adams.steps(), std::numeric_limits<Integer>::max()));
    opt.hlast = integration.adams.last_step();
    opt.hnext = integration.adams.next_step();
    opt.order = integration.adams.last_order();
    opt.tolfac = outcome == Advance::too_accurate ? integration.adams.tolerance_factor() : 1.0;
}

void report_outcome(const kor::Report &report, KorAdamsOptions &opt, const double *y, Advance outcome)
{
    switch (outcome) {
    case Advance::at_end:
    case Advance::at_step:
    case Advance::at_event:
        return report.success();
    case Advance::too_many_steps:
        return report.error<NE_MAX_STEP>(opt.max_step);
    case Advance::too_accurate:
        return report.error<NE_ODE_TOL>(opt.tolfac);
    case Advance::zero_weight: {
        const Integer component = integration_of(opt).adams.bad_component();
        report.set_errnum(component + 1);
        return report.error<NE_WEIGHT_ZERO>(component + 1, y[component]);
    }
    case Advance::stiff:
        return report.error<NE_STIFF_PROBLEM>();
    case Advance::singular:
        return report.error<NE_SINGULAR_POINT>();
    }
    report.error<NE_INTERNAL_ERROR>();
}

} // namespace

void d02qfc(Integer neqf, void (*fcn)(Integer neqf, double t, const double y[], double f[], void *comm), double *t,
            double y[], double tout,
            double (*g)(Integer neqf, double t, const double y[], const double yp[], Integer k, void *comm), void *comm,
            KorAdamsOptions *opt, KorError *fail)
{
    const kor::Report report{"d02qfc", fail};
    if (!is_stamped(*opt)) return report.error<NE_NO_SETUP>(kAdamsSetupName);
    if (!was_set_up(*opt)) return report.error<NE_SETUP_ERROR>(kAdamsSetupName);
    if (neqf != opt->neqf) return report.error<NE_NEQF>(neqf, opt->neqf);
    if (opt->neqg > 0 && g == nullptr) return report.error<NE_NO_G_FUN>(opt->neqg);
    if (!may_go(report, *opt, *t, tout)) return;

    const auto derivative = [=](double at, const double *values, double *slopes) {
        fcn(neqf, at, values, slopes, comm);
    };
    const auto event_function = [=](double at, const double *values, const double *slopes, Integer k) {
        return g(neqf, at, values, slopes, k + 1, comm);
    };
    const Tolerances tolerances{opt->rtol, opt->atol, opt->vectol != 0};
    AdamsIntegration &integration = integration_of(*opt);
    double *scratch = scratch_of(*opt);
    integration.events.attach(static_cast<EventState *>(opt->events), opt->neqg, scratch, scratch + neqf,
                              opt->sophist != 0);

    if (opt->state != Kor_Continue)
        integration.start(neqf, opt->work, *t, y, derivative, tout, event_function);
    else if (opt->events_stale)
        integration.restart_events(event_function, scratch, scratch + neqf);
    opt->events_stale = false;
    const double t_stop = opt->crit ? opt->tcrit : Adams::kNoStop;
    const Advance outcome = integration.advance(
        derivative, tolerances, {tout, t_stop, opt->hmax, opt->max_step, opt->one_step != 0}, event_function);

    *t = integration.t;
    integration.adams.interpolate(*t, neqf, y, nullptr);
    record_results(*opt, outcome);
    report_outcome(report, *opt, y, outcome);
}
