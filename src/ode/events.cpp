#include "ode/events.hpp"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "frame/constants.hpp"
#include "roots/zero_stepper.hpp"

namespace kor::ode {

namespace {

// Where a thorough search looks into a step. The outermost points tell whether a function turns back close to an end.
constexpr double kSamples[] = {0x1p-10, 0.125, 0.375, 0.625, 0.875, 1.0 - 0x1p-10};
constexpr int kMaxZeroSteps = 300; // bisections of a bracket of doubles need no more
constexpr int kMaxMinimumSteps = 100;
constexpr double kSingularGrowth = 10.0; // a function that has grown so much at its change of sign has a pole there
constexpr double kTouch = 128.0 * kPrecision;  // of the values around: a minimum that is zero but for rounding
constexpr double kGolden = 0.3819660112501051; // (3 - sqrt(5))/2
constexpr double kMinimumWidth = 1e-8;         // of the step: a minimum cannot be told more exactly
constexpr double kHopeless = 0.01;             // a minimum that still changes by less of its value will not reach zero

Integer sign_of(double value) { return value > 0.0 ? 1 : value < 0.0 ? -1 : 0; }

} // namespace

void EventSearch::attach(EventState *states, Integer count, double *y, double *yp, bool thorough)
{
    states_ = states;
    count_ = count;
    y_ = y;
    yp_ = yp;
    thorough_ = thorough;
}

void EventSearch::begin(double t, const double *y, const double *yp, EventFunction g)
{
    t_ = t_end_ = t;
    for (Integer k = 0; k < count_; ++k) {
        EventState &state = states_[k];
        state = {};
        state.value = state.end_value = g(t, y, yp, k);
        state.sign = sign_of(state.value);
        state.searched = true;
    }
}

void EventSearch::examine(double t_end, const double *y_end, const double *yp_end, EventFunction g)
{
    t_end_ = t_end;
    for (Integer k = 0; k < count_; ++k) {
        EventState &state = states_[k];
        state.end_value = g(t_end, y_end, yp_end, k);
        state.searched = state.found = false;
    }
}

Event EventSearch::next(EventFunction g, DenseOutput solution)
{
    Event first{-1, t_end_, false};
    for (Integer k = 0; k < count_; ++k) {
        EventState &state = states_[k];
        if (!state.searched) search(k, g, solution);
        if (state.found && (first.index < 0 || std::fabs(state.root - t_) < std::fabs(first.t - t_)))
            first = {k, state.root, state.singular};
    }
    return first;
}

void EventSearch::take(const Event &event)
{
    EventState &state = states_[event.index];
    t_ = event.t;
    state.value = state.root_value;
    state.sign = state.root_sign;
    state.found = false;
    state.searched = t_ == t_end_;
}

void EventSearch::pass()
{
    t_ = t_end_;
    for (Integer k = 0; k < count_; ++k) {
        EventState &state = states_[k];
        state.value = state.end_value;
        if (const Integer sign = sign_of(state.end_value); sign != 0) state.sign = sign;
        state.searched = true;
        state.found = false;
    }
}

double EventSearch::value(Integer k, double t, EventFunction g, DenseOutput solution)
{
    solution(t, y_, yp_);
    return g(t, y_, yp_, k);
}

void EventSearch::search(Integer k, EventFunction g, DenseOutput solution)
{
    EventState &state = states_[k];
    state.searched = true;
    state.found = false;

    constexpr int kLast = static_cast<int>(std::size(kSamples)) + 1;
    Sample samples[kLast + 1];
    int count = 0;
    samples[0] = {t_, state.value};
    if (thorough_)
        for (const double share : kSamples) {
            const double t = t_ + share * (t_end_ - t_);
            samples[++count] = {t, value(k, t, g, solution)};
        }
    samples[++count] = {t_end_, state.end_value};

    // A function that starts from zero has the sign that it shows first.
    int first = 1;
    for (; first <= count && state.sign == 0; ++first) state.sign = sign_of(samples[first].value);
    if (state.sign == 0) return;
    // Behind an event the value may still be zero, or have the old sign by a rounding error: the sign counts.
    const double sign = state.sign;
    if (!(sign * samples[0].value > 0.0)) samples[0].value = sign * kSmallest;

    for (int i = first; i <= count; ++i) {
        const bool dips = i < count && sign * samples[i].value < sign * samples[i - 1].value &&
                          sign * samples[i].value <= sign * samples[i + 1].value;
        if (sign_of(samples[i].value) != state.sign && !std::isnan(samples[i].value))
            return locate(k, samples[i - 1], samples[i], g, solution);
        if (dips && search_between(k, samples[i - 1], samples[i], samples[i + 1], g, solution)) return;
    }
}

// The change of sign between two points, as close as doubles can tell; the event is at the first point behind it.
void EventSearch::locate(Integer k, Sample before, Sample after, EventFunction g, DenseOutput solution)
{
    EventState &state = states_[k];
    const double largest_outside = std::max(std::fabs(before.value), std::fabs(after.value));
    const double start = before.t, length = after.t - before.t;
    const Integer sign_behind = sign_of(after.value);

    double x = 1.0, fx = after.value, y = 0.0, c[roots::kZeroStateSize];
    c[0] = before.value;
    Integer ind = -1;
    constexpr Integer kAbsolute = 1;
    for (int i = 0; i < kMaxZeroSteps && after.value != 0.0; ++i) {
        if (roots::zero_step(x, y, fx, kPrecision, kAbsolute, c, ind) != roots::ZeroStatus::evaluate) break;
        const double t = start + x * length;
        fx = value(k, t, g, solution);
        if (std::isnan(fx)) break;
        (sign_of(fx) == state.sign ? before : after) = {t, fx};
    }
    state.found = true;
    state.root = after.t;
    state.root_value = after.value;
    // A zero that was met exactly has no sign: the function has the one behind it, if that is known.
    state.root_sign = after.value != 0.0 ? sign_of(after.value) : sign_behind;
    state.singular = std::min(std::fabs(before.value), std::fabs(after.value)) > kSingularGrowth * largest_outside;
}

// The function dips towards zero between two points and is on the same side at both. Does it get there?
bool EventSearch::search_between(Integer k, Sample before, Sample middle, Sample after, EventFunction g,
                                 DenseOutput solution)
{
    EventState &state = states_[k];
    const double sign = state.sign;
    const double size = std::max(std::fabs(before.value), std::fabs(after.value));
    const Sample start = before;
    const double narrow = kMinimumWidth * std::fabs(t_end_ - t_);
    for (int i = 0; i < kMaxMinimumSteps && std::fabs(after.t - before.t) > narrow; ++i) {
        // The minimum of the parabola through the three points, or else a point of the golden section.
        const double left = middle.t - before.t, right = after.t - middle.t;
        const double p = left * left * (middle.value - after.value) - right * right * (middle.value - before.value);
        const double q = left * (middle.value - after.value) + right * (middle.value - before.value);
        const double shift = 0.5 * p / q;
        double t = middle.t - shift;
        const bool within = (t - before.t) * (after.t - t) > 0.0 && std::fabs(shift) > 0.1 * narrow;
        const bool in_turn = i % 3 == 2; // keeps both ends moving
        if (!within || in_turn)
            t = std::fabs(left) > std::fabs(right) ? middle.t - kGolden * left : middle.t + kGolden * right;
        const Sample sample{t, value(k, t, g, solution)};
        if (!(sign * sample.value > 0.0)) {
            if (std::isnan(sample.value)) return false;
            locate(k, start, sample, g, solution);
            return true;
        }
        const double least = sign * middle.value;
        if (sign * sample.value < least) {
            ((sample.t - middle.t) * (after.t - middle.t) > 0.0 ? before : after) = middle;
            middle = sample;
        } else {
            ((sample.t - middle.t) * (after.t - middle.t) > 0.0 ? after : before) = sample;
        }
        const bool stalls = std::fabs(sign * sample.value - least) < kHopeless * sign * middle.value;
        if (i >= 3 && stalls && sign * middle.value > kTouch * size && !in_turn) return false;
    }
    if (!(sign * middle.value <= kTouch * size)) return false;
    state.found = true;
    state.root = middle.t;
    state.root_value = middle.value;
    state.root_sign = state.sign;
    state.singular = false;
    return true;
}

} // namespace kor::ode
