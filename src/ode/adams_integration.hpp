// An Adams integration with events and output points: what d02qfc and its relatives have in common.
#pragma once

#include "ode/adams.hpp"
#include "ode/events.hpp"

namespace kor::ode {

enum class Advance {
    at_end,   // t is the point wanted
    at_step,  // a step was taken, as asked for
    at_event, // t is the first event
    too_many_steps,
    too_accurate, // Adams::tolerance_factor() tells by how much
    zero_weight,  // Adams::bad_component() tells where
    stiff,        // too many steps, fifty of them in a row of low order
    singular,     // an event function changes its sign through infinity at t
};

struct AdvanceLimits {
    double tout;
    double t_stop; // the steps must not pass it; infinite: no limit
    double hmax;   // 0: no limit
    Integer max_steps;
    bool one_step;
};

// Plain data: it may be kept in a record between calls.
struct AdamsIntegration {
    Adams adams;
    EventSearch events;
    double t;      // the present point: the steps may be ahead of it
    Integer event; // index of the last event, from 0

    // Begins at (t0, y0); `events` must be attached.
    void start(Integer neq, double *work, double t0, const double *y0, Derivative f, double tout, EventFunction g);
    // Looks at the event functions afresh at the present point.
    void restart_events(EventFunction g, double *y, double *yp);
    // Goes on to the first of: tout, the next event, the end of a step if so asked, a failure.
    Advance advance(Derivative f, const Tolerances &tolerances, const AdvanceLimits &limits, EventFunction g);
};

} // namespace kor::ode
