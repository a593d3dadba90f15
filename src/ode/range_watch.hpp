// What a driver over a whole range does at each step of its integrator: the output points that were passed, in order, and
// the search for a root of g.
#pragma once

#include <algorithm>
#include <cmath>

#include <kor.h>

#include "frame/function_ref.hpp"
#include "roots/zero_stepper.hpp"

namespace kor::ode {

using OutputFunction = void (*)(Integer neq, double *xsol, const double y[], void *comm);
using RootFunction = double (*)(Integer neq, double x, const double y[], void *comm);

enum class WatchOutcome { go_on, root, xsol_behind_start, xsol_not_moved, xsol_behind };

class RangeWatch {
  public:
    // `scratch` holds neq elements.
    RangeWatch(Integer neq, double x, double xend, OutputFunction output, RootFunction g, void *comm, double *scratch)
        : neq_{neq},
          direction_{xend > x ? 1.0 : -1.0}, x_{x}, xsol_{x}, output_{output}, g_{g}, comm_{comm}, scratch_{scratch}
    {
    }

    // At the starting point.
    WatchOutcome start(const double *y)
    {
        if (g_ != nullptr) left_value_ = g_(neq_, x_, y, comm_);
        if (output_ == nullptr) return WatchOutcome::go_on;
        const double x = xsol_;
        ++calls_;
        output_(neq_, &xsol_, y, comm_);
        if (!((xsol_ - x) * direction_ >= 0.0)) return wrong(WatchOutcome::xsol_behind_start, x);
        // A point that was left where it is comes at once: the second call shows whether it ever moves.
        return xsol_ == x ? show(x, y) : WatchOutcome::go_on;
    }

    // After a step to `x` with solution `y`; `interpolate` gives the solution within the step.
    WatchOutcome step(double x, const double *y, FunctionRef<void(double, double *)> interpolate)
    {
        const double root = g_ != nullptr ? find_root(x, y, interpolate) : x;
        const double last = found_ ? root : x;
        while (output_ != nullptr && (last - xsol_) * direction_ >= 0.0) {
            const double at = xsol_;
            const double *values = y;
            if (at != x) {
                interpolate(at, scratch_);
                values = scratch_;
            }
            if (const WatchOutcome outcome = show(at, values); outcome != WatchOutcome::go_on) return outcome;
        }
        x_ = last;
        return found_ ? WatchOutcome::root : WatchOutcome::go_on;
    }

    // Where the driver stands after an outcome other than go_on: a root, or the output point of a wrong call.
    double x() const { return x_; }
    double xsol() const { return xsol_; }
    Integer calls() const { return calls_; }

  private:
    WatchOutcome wrong(WatchOutcome outcome, double x)
    {
        x_ = x;
        return outcome;
    }

    WatchOutcome show(double at, const double *values)
    {
        ++calls_;
        output_(neq_, &xsol_, values, comm_);
        if (xsol_ == at) return wrong(WatchOutcome::xsol_not_moved, at);
        if (!((xsol_ - at) * direction_ > 0.0)) return wrong(WatchOutcome::xsol_behind, at);
        return WatchOutcome::go_on;
    }

    // The first change of sign in the step, seen at its quarters and located to the last bits of x. A zero at the starting point of
    // the range is no root: the sign after it counts.
    double find_root(double x, const double *y, FunctionRef<void(double, double *)> interpolate)
    {
        constexpr int kParts = 4;
        const double start = x_;
        double left = start;
        for (int part = 1; part <= kParts; ++part) {
            const double right = part == kParts ? x : start + (x - start) * part / kParts;
            const double *values = y;
            if (part < kParts) {
                interpolate(right, scratch_);
                values = scratch_;
            }
            const double left_value = left_value_, right_value = g_(neq_, right, values, comm_);
            left_value_ = right_value;
            if (right_value == 0.0) {
                found_ = true;
                return right;
            }
            if ((left_value < 0.0 && right_value > 0.0) || (left_value > 0.0 && right_value < 0.0)) {
                found_ = true;
                return locate(left, left_value, right, right_value, interpolate);
            }
            left = right;
        }
        return x;
    }

    double locate(double left, double left_value, double right, double right_value,
                  FunctionRef<void(double, double *)> interpolate)
    {
        constexpr Integer kRelativeMeasure = 2;
        constexpr double kSharp = 0x1p-52;
        constexpr int kLimit = 1000;
        double c[roots::kZeroStateSize], a = right, b = left, value = right_value;
        c[0] = left_value;
        Integer ind = -1;
        for (int i = 0; i < kLimit; ++i) {
            if (roots::zero_step(a, b, value, kSharp, kRelativeMeasure, c, ind) != roots::ZeroStatus::evaluate) break;
            interpolate(a, scratch_);
            value = g_(neq_, a, scratch_, comm_);
            if (value == 0.0) break;
        }
        return a;
    }

    const Integer neq_;
    const double direction_;
    double x_, xsol_;
    double left_value_ = 0.0;
    bool found_ = false;
    Integer calls_ = 0;
    const OutputFunction output_;
    const RootFunction g_;
    void *const comm_;
    double *const scratch_;
};

} // namespace kor::ode
