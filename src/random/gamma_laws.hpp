// Trials of the gamma sampler, for scale 1.
#pragma once

#include "random/lanes.hpp"

namespace kor::random {

// Shape above 1: Student's t with two degrees of freedom as a hat. D. J. Best, Appl. Statist. 27 (1978) 181-182.
// The published quick test spares a logarithm; here a trial is part of a vector, and the exact test alone is as cheap.
class GammaAbove1 {
  public:
    explicit GammaAbove1(double shape) : mode_{shape - 1.0}, spread_{3.0 * shape - 0.75} {}

    KOR_LANE Trial trial(double u, double v) const
    {
        constexpr double kNever = -1e3; // below log z
        const double w = u * (1.0 - u), y = (u - 0.5) * std::sqrt(spread_ / w), x = mode_ + y;
        const double z = 64.0 * w * w * w * v * v;
        // (mode) log(x / mode) - y, without the cancellation of large shapes.
        const double log_ratio = -mode_ * lane_log1p(y / mode_).defect;
        return {x, z, x > 0.0 ? 2.0 * log_ratio : kNever};
    }

  private:
    double mode_, spread_;
};

// Shape below 1: a power near 0 and an exponential tail, joined at t = 1 - shape. J. H. Ahrens and U. Dieter,
// Computing 12 (1974) 223-246, with the better cut of L. Devroye, Non-Uniform Random Variate Generation (1986) IX.3.
class GammaBelow1 {
  public:
    explicit GammaBelow1(double shape)
        : shape_{shape}, cut_{1.0 - shape}, tail_{shape * lane_exp(-cut_).value / cut_}, total_{1.0 + tail_}
    {
    }

    KOR_LANE Trial trial(double u, double v) const
    {
        const double share = u * total_; // below 1: under the power
        const bool inner = share <= 1.0;
        const double log_part = lane_log(inner ? share : (1.0 - u) * total_ / tail_);
        const double power = cut_ * lane_exp(log_part / shape_).value;
        const double x = inner ? power : cut_ - log_part;
        const double log_accept = inner ? -x : -cut_ * lane_log(inner ? 1.0 : x / cut_);
        return {x, v, log_accept};
    }

  private:
    double shape_, cut_, tail_, total_; // masses under the hat in units of that under the power
};

} // namespace kor::random
