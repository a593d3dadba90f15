// Events along an integration: points where functions g_k(t, y, y') change their sign, in the order in which they come.
//
// After each step of an integrator examine() is told of it; next() then gives the events within it, one by one. The values within
// a step come from the integrator's own interpolant, so that an event is as exact as the solution there; its place on the
// interpolant is exact to rounding. Plain data over the caller's blocks, for any integrator with dense output.
#pragma once

#include <kor.h>

#include "frame/function_ref.hpp"

namespace kor::ode {

// g_k, k counted from 0.
using EventFunction = FunctionRef<double(double t, const double *y, const double *yp, Integer k)>;
// The solution and its derivative at a point of the last step.
using DenseOutput = FunctionRef<void(double t, double *y, double *yp)>;

// What is known of one event function between the present point and the end of the last step.
struct EventState {
    double value;     // at the present point
    double end_value; // at the end of the step
    double root;      // the next event, when there is one
    double root_value;
    Integer sign; // of the function just behind the present point; 0 while it is not known
    Integer root_sign;
    bool searched, found, singular;
};

struct Event {
    Integer index; // of the function, from 0; -1: no event
    double t;
    bool singular; // the function changes its sign through infinity
};

class EventSearch {
  public:
    // `states` for each function; y and yp are scratch of the size of the system. A thorough search also looks for events in
    // pairs within one step, and for points where a function touches zero.
    void attach(EventState *states, Integer count, double *y, double *yp, bool thorough);
    // Takes the signs at a point: what is zero there is no event.
    void begin(double t, const double *y, const double *yp, EventFunction g);
    // The integrator has gone on to t_end.
    void examine(double t_end, const double *y_end, const double *yp_end, EventFunction g);
    // The first event between the present point and the end of the step.
    Event next(EventFunction g, DenseOutput solution);
    // Moves the present point to an event that next() has given, or forgets it.
    void take(const Event &event);
    // Moves the present point to the end of the step.
    void pass();

    Integer count() const { return count_; }

  private:
    struct Sample {
        double t, value;
    };
    void search(Integer k, EventFunction g, DenseOutput solution);
    void locate(Integer k, Sample before, Sample after, EventFunction g, DenseOutput solution);
    bool search_between(Integer k, Sample before, Sample middle, Sample after, EventFunction g, DenseOutput solution);
    double value(Integer k, double t, EventFunction g, DenseOutput solution);

    EventState *states_;
    double *y_, *yp_;
    double t_, t_end_;
    Integer count_;
    bool thorough_;
};

} // namespace kor::ode
