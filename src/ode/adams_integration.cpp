#include "ode/adams_integration.hpp"

namespace kor::ode {

namespace {

constexpr int64_t kStiffRun = 50; // steps of low order in a row

} // namespace

void AdamsIntegration::start(Integer neq, double *work, double t0, const double *y0, Derivative f, double tout,
                             EventFunction g)
{
    adams.start(neq, work, t0, y0, f, tout);
    t = t0;
    events.begin(t0, adams.y(), adams.yp(), g);
}

void AdamsIntegration::restart_events(EventFunction g, double *y, double *yp)
{
    adams.interpolate(t, static_cast<Integer>(adams.size()), y, yp);
    events.begin(t, y, yp, g);
    events.examine(adams.t(), adams.y(), adams.yp(), g);
}

Advance AdamsIntegration::advance(Derivative f, const Tolerances &tolerances, const AdvanceLimits &limits,
                                  EventFunction g)
{
    const double direction = adams.direction();
    const auto reaches = [&](double a, double b) { return (a - b) * direction >= 0.0; };
    const auto solution = [&](double at, double *y, double *yp) {
        adams.interpolate(at, static_cast<Integer>(adams.size()), y, yp);
    };
    bool looks_stiff = false;
    for (Integer steps = 0;;) {
        // What the steps have covered already comes first.
        if (const Event first = events.next(g, solution); first.index >= 0 && reaches(limits.tout, first.t)) {
            events.take(first);
            t = first.t;
            event = first.index;
            return first.singular ? Advance::singular : Advance::at_event;
        }
        if (reaches(adams.t(), limits.tout)) {
            t = limits.tout;
            if (t == adams.t()) events.pass();
            return Advance::at_end;
        }
        const bool moved = t != adams.t();
        t = adams.t();
        events.pass();
        if (limits.one_step && moved) return Advance::at_step;
        if (steps == limits.max_steps) return looks_stiff ? Advance::stiff : Advance::too_many_steps;

        switch (adams.step(f, tolerances, limits.t_stop, limits.hmax)) {
        case AdamsOutcome::taken:
            break;
        case AdamsOutcome::too_accurate:
            return Advance::too_accurate;
        case AdamsOutcome::zero_weight:
            return Advance::zero_weight;
        }
        ++steps;
        looks_stiff |= adams.low_order_steps() >= kStiffRun;
        events.examine(adams.t(), adams.y(), adams.yp(), g);
    }
}

} // namespace kor::ode
