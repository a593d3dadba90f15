// The step of the Runge-Kutta suite and its control.
#include "ode/runge_kutta.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "frame/constants.hpp"
#include "ode/runge_kutta_formula.hpp"
#include "ode/step_root.hpp"

namespace kor::ode {

namespace {

// Bounds on the factor between two steps. Halving and doubling are enough from step to step; the first step is found in
// larger strides.
constexpr double kGrow = 2.0;
constexpr double kShrink = 0.5;
constexpr double kFirstGrow = 8.0;       // of a first step that has turned out too short
constexpr double kFirstWorthwhile = 4.0; // a first step that could be so much longer is done again
constexpr double kFirstShrink = 0.125;   // of a first step that has turned out too long at its second stage
constexpr double kSafety = 0.8;          // aims below the tolerance, so that most tries pass
constexpr double kTrendLimit = 100.0;    // a trend of the error beyond it is no trend
constexpr double kSmoothing = 0.1;       // weight of the last step in the average
constexpr Integer kStopsBearable = 99;

constexpr int kVectors = 7;
constexpr int kStiffnessVectors = 3;

} // namespace

RungeKutta::RungeKutta(KorRKState &state, const RightHandSide *f)
    : state_{state}, f_{f}, pair_{figures_of(state.method)}, n_{static_cast<std::size_t>(state.neq)},
      bank_size_{n_ * static_cast<std::size_t>(pair_.slots)}
{
    double *next = state.work;
    const auto take = [&](std::size_t vectors) { return std::exchange(next, next + vectors * n_); };
    thres_ = take(1);
    y_ = take(1);
    yp_ = take(1);
    y_old_ = take(1);
    y_new_ = take(1);
    largest_ = take(1);
    scratch_ = take(1);
    products_ = take(kStiffnessVectors);
    stages_ = take(2 * pair_.slots);
    const bool errass = state.errass != 0;
    second_y_ = errass ? take(1) : nullptr;
    second_yp_ = errass ? take(1) : nullptr;
    second_new_ = errass ? take(1) : nullptr;
    squares_ = errass ? take(1) : nullptr;
    second_stages_ = errass ? take(pair_.stages) : nullptr;
}

Count RungeKutta::work_size(Integer neq, Integer method, bool errass)
{
    const PairFigures &pair = figures_of(method);
    const int assessment = errass ? 4 + pair.stages : 0;
    return Count{neq} * (kVectors + kStiffnessVectors + 2 * pair.slots + assessment);
}

void RungeKutta::begin(const double *ystart, const double *thres)
{
    std::copy_n(thres, n_, thres_);
    std::copy_n(ystart, n_, y_);
    for (std::size_t i = 0; i < n_; ++i) largest_[i] = std::fabs(ystart[i]);
    if (squares_ != nullptr) std::fill_n(squares_, n_, 0.0);
}

double RungeKutta::smallest_step(double t1, double t2) const
{
    return std::max(std::sqrt(kSafeSmall), state_.toosml * std::max(std::fabs(t1), std::fabs(t2)));
}

double RungeKutta::work_ahead() const { return pair_.cost * std::fabs((state_.range_end - state_.tnow) / state_.havg); }

double RungeKutta::weight(std::size_t i) const
{
    return std::max(thres_[i], 0.5 * std::fabs(y_old_[i]) + 0.5 * std::fabs(y_[i]));
}

void RungeKutta::start()
{
    (*f_)(state_.tnow, y_, yp_);
    ++state_.fcn_count;
    state_.started = true;
    if (state_.errass) {
        std::copy_n(y_, n_, second_y_);
        std::copy_n(yp_, n_, second_yp_);
    }
    if (state_.hstart != 0.0) return;

    state_.phase1 = state_.may_grow = true;
    double slope = 0.0;
    for (std::size_t i = 0; i < n_; ++i)
        slope = std::max(slope, std::fabs(yp_[i]) / std::max(std::fabs(y_[i]), thres_[i]));
    const double error_scale = std::pow(state_.tol, state_.expon);
    if (error_scale < state_.h * slope) state_.h = error_scale / slope;
    state_.h = std::max(state_.h, smallest_step(state_.tnow, state_.tnow + state_.dir * state_.h));
}

void RungeKutta::reset_end(double tend)
{
    state_.tend = tend;
    state_.last = false;
}

// Gives the step its direction and makes it meet the end; two steps share what one would leave too little of.
void RungeKutta::limit_step_to_end()
{
    state_.h = state_.dir * std::fabs(state_.h);
    const double rest = (state_.tend - state_.tnow) * state_.dir;
    state_.last = std::fabs(state_.h) >= rest;
    if (state_.last)
        state_.h = state_.tend - state_.tnow;
    else if (2.0 * std::fabs(state_.h) >= rest)
        state_.h = 0.5 * (state_.tend - state_.tnow);
}

// By how much a first step is to be cut, from what its second stage shows of the slopes; 1 leaves it.
double RungeKutta::restraint(double t, const double *stage_y, const double *stage_yp) const
{
    double old_size = 0.0, new_size = 0.0, change = 0.0, slope_change = 0.0;
    for (std::size_t i = 0; i < n_; ++i) {
        const double wt = std::max({thres_[i], std::fabs(y_[i]), std::fabs(stage_y[i])});
        old_size = std::max(old_size, std::fabs(y_[i]) / wt);
        new_size = std::max(new_size, std::fabs(stage_y[i]) / wt);
        change = std::max(change, std::fabs(stage_y[i] - y_[i]) / wt);
        slope_change = std::max(slope_change, std::fabs(stage_yp[i] - yp_[i]) / wt);
    }
    change = std::max(change, std::fabs((t - state_.tstart) / (state_.range_end - state_.tstart)));
    if (change <= 10.0 * kPrecision * std::max(old_size, new_size)) return 1.0;
    // h times an estimate of the Lipschitz constant should stay within the region of stability.
    const double stable = change * pair_.stability_radius;
    const double wanted = std::fabs(state_.h) * slope_change;
    return stable < wanted ? std::clamp(stable / wanted, kFirstShrink, kShrink) : 1.0;
}

RungeKutta::Try RungeKutta::attempt()
{
    struct Restraint final : StageWatch {
        explicit Restraint(const RungeKutta &owner) : owner{owner} {}
        bool operator()(double t, const double *y, const double *yp) override
        {
            factor = owner.restraint(t, y, yp);
            return factor < 1.0;
        }
        const RungeKutta &owner;
        double factor = 1.0;
    } watch{*this};

    double *k = stages_of_this_try();
    std::copy_n(yp_, n_, k);
    if (!pair_step(state_.method, *f_, state_.tnow, t_next(), state_.h, y_, k, y_new_,
                   state_.phase1 ? &watch : nullptr)) {
        ++state_.fcn_count;
        state_.h *= watch.factor;
        state_.may_grow = false;
        return {0.0, true};
    }
    state_.fcn_count += pair_.stages - 1;
    return {pair_error(state_.method, n_, state_.h, y_, y_new_, k, thres_), false};
}

// The factor to the next step, before its bounds. Besides the error it looks at the trend of the error per unit step.
double RungeKutta::next_factor(double root) const
{
    if (root == 0.0) return kFirstGrow;
    double factor = kSafety / root;
    if (!state_.first && state_.last_root > 0.0) {
        // The errors per unit step, crosswise.
        const double now = root * std::fabs(state_.hold), before = state_.last_root * std::fabs(state_.h);
        if (now < kTrendLimit * before && before < kTrendLimit * now) factor = kSafety * before / (root * now);
    }
    return std::min(factor, kFirstGrow);
}

StepStatus RungeKutta::step()
{
    if (state_.at_stop) {
        state_.at_stop = false;
        ++state_.tend_hits;
        if (state_.tend_hits > kStopsBearable && state_.tend_hits >= state_.steps_ok / 3) {
            state_.tend_hits = 0;
            return StepStatus::stops_too_frequent;
        }
    }
    const bool much_work = state_.fcn_count > kMuchWork;
    if (much_work) {
        state_.fcn_total += state_.fcn_count;
        state_.fcn_count = 0;
    }
    if (stiffness_is_due(much_work) && looks_stiff()) return StepStatus::stiff;
    if (much_work) return StepStatus::much_work;

    // The next step waits for the error of this one: what can be divided before it is known, is.
    const double per_tolerance = 1.0 / state_.tol;
    for (bool failed = false;;) {
        limit_step_to_end();
        if (!(std::fabs(state_.h) >= smallest_step(state_.tnow, state_.tnow + state_.h))) {
            state_.last = false;
            return StepStatus::step_too_small;
        }
        const Try result = attempt();
        if (result.restrained) continue;

        if (!(result.error <= state_.tol)) {
            ++state_.steps_failed;
            ++state_.hard_steps;
            state_.phase1 = false;
            double factor = kShrink;
            if (!failed && !state_.first)
                // In this order a NaN gives the bound.
                factor = std::max(kShrink, kSafety / step_root(result.error * per_tolerance, state_.expon));
            state_.h *= factor;
            failed = true;
            continue;
        }

        const double root = result.error > 0.0 ? step_root(result.error * per_tolerance, state_.expon) : 0.0;
        const double factor = next_factor(root);
        if (state_.phase1 && state_.may_grow && !state_.last && factor > kFirstWorthwhile) {
            state_.h *= factor;
            continue;
        }
        if (state_.errass && !state_.errass_failed && !assess()) {
            state_.errass_failed = true;
            state_.last = false;
            return StepStatus::assessment_failed;
        }
        move_on(root, failed, factor);
        return StepStatus::taken;
    }
}

void RungeKutta::move_on(double root, bool failed, double factor)
{
    factor = std::min(factor, failed ? 1.0 : kGrow);
    factor = std::max(factor, kShrink);

    const double t = t_next();
    state_.hold = state_.h;
    state_.h *= factor;
    state_.havg = state_.first ? state_.hold : (1.0 - kSmoothing) * state_.havg + kSmoothing * state_.hold;
    state_.first = state_.phase1 = false;
    state_.last_root = root;
    state_.told = state_.tnow;
    state_.tnow = t;
    state_.at_stop = state_.last;
    state_.after_failure = failed;
    ++state_.steps_ok;

    const double *k = stages_of_this_try();
    state_.bank = 1 - state_.bank;
    state_.extra_stages = false;
    state_.interp_nwant = 0;
    std::copy_n(y_, n_, y_old_);
    std::copy_n(y_new_, n_, y_);
    if (pair_.first_same_as_last) {
        std::copy_n(k + (pair_.stages - 1) * n_, n_, yp_);
    } else {
        (*f_)(state_.tnow, y_, yp_);
        ++state_.fcn_count;
    }
}

// Follows the step with a second integration in shorter steps and compares. False when that is not accurate enough to judge.
bool RungeKutta::assess()
{
    const int parts = pair_.secondary_steps;
    const double h = state_.h / parts;
    const double t_end = t_next();
    if (!(std::fabs(h) >= smallest_step(state_.tnow, t_end))) return false;

    int doubtful = 0;
    double t = state_.tnow;
    for (int part = 1; part <= parts; ++part) {
        const double t_part = part == parts ? t_end : state_.tnow + part * h;
        std::copy_n(second_yp_, n_, second_stages_);
        pair_step(state_.method, *f_, t, t_part, h, second_y_, second_stages_, second_new_, nullptr);
        state_.secondary_count += pair_.stages - 1;
        const double error = pair_error(state_.method, n_, h, second_y_, second_new_, second_stages_, thres_);
        if (!(error < state_.tol / parts)) return false;
        if (error > 0.1 * state_.tol && ++doubtful == 2) return false;
        std::copy_n(second_new_, n_, second_y_);
        if (pair_.first_same_as_last) {
            std::copy_n(second_stages_ + (pair_.stages - 1) * n_, n_, second_yp_);
        } else {
            (*f_)(t_part, second_y_, second_yp_);
            ++state_.secondary_count;
        }
        t = t_part;
    }
    for (std::size_t i = 0; i < n_; ++i) {
        const double wt = std::max(thres_[i], 0.5 * std::fabs(y_[i]) + 0.5 * std::fabs(y_new_[i]));
        const double error = std::fabs(second_y_[i] - y_new_[i]) / wt;
        squares_[i] += error * error;
        if (error > state_.max_err) {
            state_.max_err = error;
            state_.t_max_err = t_end;
        }
    }
    return true;
}

void RungeKutta::prepare_interpolant(Integer nwant)
{
    if (state_.method != 2 || state_.interp_nwant == nwant) return;
    double *k = stages_of_last_step();
    if (!state_.extra_stages) {
        extra_stages(*f_, state_.told, state_.hold, y_old_, k, scratch_);
        state_.fcn_count += 3;
        state_.extra_stages = true;
    }
    interpolant_coefficients(n_, static_cast<std::size_t>(nwant), state_.hold, k, state_.interp_work);
    state_.interp_nwant = nwant;
}

void RungeKutta::interpolate(double t, Integer nwant, double *y, double *yp) const
{
    const double h = state_.hold;
    const double sigma = (t - state_.tnow) / h;
    const auto count = static_cast<std::size_t>(nwant);
    if (state_.method == 1) {
        const double *slope_old = stages_of_last_step();
        for (std::size_t i = 0; i < count; ++i) {
            // The cubic that meets values and slopes at both ends.
            const double change = y_[i] - y_old_[i];
            const double c3 = h * (slope_old[i] + yp_[i]) - 2.0 * change;
            const double c2 = c3 + (h * yp_[i] - change);
            if (y != nullptr) y[i] = y_[i] + sigma * (h * yp_[i] + sigma * (c2 + sigma * c3));
            if (yp != nullptr) yp[i] = yp_[i] + sigma * (2.0 * c2 + sigma * (3.0 * c3)) / h;
        }
        return;
    }
    const double *c = state_.interp_work;
    for (std::size_t i = 0; i < count; ++i) {
        const double c2 = c[i], c3 = c[count + i], c4 = c[2 * count + i], c5 = c[3 * count + i], c6 = c[4 * count + i];
        if (y != nullptr)
            y[i] =
                y_[i] + sigma * (h * yp_[i] + sigma * (c2 + sigma * (c3 + sigma * (c4 + sigma * (c5 + sigma * c6)))));
        if (yp != nullptr)
            yp[i] = yp_[i] +
                    sigma *
                        (2.0 * c2 + sigma * (3.0 * c3 + sigma * (4.0 * c4 + sigma * (5.0 * c5 + sigma * (6.0 * c6))))) /
                        h;
    }
}

} // namespace kor::ode
