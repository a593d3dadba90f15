// Trials of the beta sampler. R. C. H. Cheng, Comm. ACM 21 (1978) 317-322, algorithms BB and BC: the candidate is w / (b + w)
// with w = a exp(v), v = beta log(u / (1 - u)). The published quick tests spare a logarithm; here a trial is part of a
// vector, and the exact test alone is as cheap. All forms are free of cancellation and overflow for parameters of any size.
#pragma once

#include <algorithm>

#include "random/lanes.hpp"

namespace kor::random {

inline constexpr double kLog4 = 1.3862943611198906;

// wanted / (wanted + other), rounded once also where it is next to 1: there a part of the law may lie on single doubles.
KOR_LANE double share_of(double wanted, double other)
{
    const bool minor = wanted <= other;
    const double smaller = (minor ? wanted : other) / (wanted + other);
    return minor ? smaller : 1.0 - smaller;
}

// Both parameters above 1; a is the smaller.
class BetaAbove1 {
  public:
    BetaAbove1(double first, double second)
        : a_{std::min(first, second)}, b_{std::max(first, second)}, sum_{a_ + b_}, share_{a_ / sum_},
          of_a_{first <= second ? 1.0 : 0.0}, of_b_{1.0 - of_a_}
    {
        // 1 / beta^2 = (2ab - sum) / (sum - 2), in terms of a - 1 and b - 1.
        const double da = a_ - 1.0, db = b_ - 1.0;
        beta_ = 1.0 / std::sqrt(1.0 + 2.0 * da / (1.0 + da / db));
    }

    KOR_LANE Trial trial(double u1, double u2) const
    {
        const double y = lane_log(u1 / (1.0 - u1)), v = beta_ * y;
        const Exp e = lane_exp(v);
        const double w = a_ * e.value;
        // Cheng's a + gamma v - log 4 - w, and alpha log(alpha / (b + w)) as its difference from w - a.
        const double s = (y - kLog4) - a_ * e.defect;
        const double rest = sum_ * lane_log1p(share_ * (v + e.defect)).defect;
        const double x = share_of(of_a_ * w + of_b_ * b_, of_b_ * w + of_a_ * b_);
        return {x, u1 * u1 * u2, s + rest};
    }

  private:
    double a_, b_, sum_, share_, of_a_, of_b_, beta_; // of_a_ is 1 where the first parameter is a, and of_b_ then 0
};

// A parameter of at most 1; a is the larger.
class BetaBelow1 {
  public:
    BetaBelow1(double first, double second)
    {
        // Where both are as small as this the law sits on 0 and 1, and only the ratio of the parameters counts.
        constexpr double kTiny = 1e-200, kLift = 0x1p200, kLeast = 1e-300, kLargestRatio = 1e300;
        const double lift = std::max(first, second) < kTiny ? kLift : 1.0;
        a_ = std::max(first, second) * lift;
        b_ = std::max(std::min(first, second) * lift, kLeast);
        sum_ = a_ + b_;
        ratio_ = std::min(a_ / b_, kLargestRatio);
        of_a_ = first >= second ? 1.0 : 0.0;
        of_b_ = 1.0 - of_a_;
    }

    KOR_LANE Trial trial(double u1, double u2) const
    {
        constexpr double kFar = 700.0, kExpFar = 0x1.b37fea7c8b3f3p-1010; // exp(-kFar)
        const double v = lane_log(u1 / (1.0 - u1)) / b_;
        const double size = std::fabs(v), decay = lane_exp(-size).value;
        const bool positive = v >= 0.0;
        // log(alpha / (b + w)) + v = -log(1 + b / alpha (exp(-v) - 1)); far down its slope in v is 1.
        const double near_decay = decay > kExpFar ? decay : kExpFar;
        const double growth = positive ? decay - 1.0 : (1.0 - near_decay) / near_decay;
        const double past = size > kFar ? size - kFar : 0.0, beyond = positive ? 0.0 : past;
        const double log_ratio = -sum_ * (lane_log1p(b_ / sum_ * growth).value + beyond);
        // w / (b + w) = part / (part + other)
        const double part = positive ? 1.0 : decay * ratio_, other = positive ? decay / ratio_ : 1.0;
        const double x = share_of(of_a_ * part + of_b_ * other, of_b_ * part + of_a_ * other);
        return {x, u1 * u1 * u2, log_ratio - kLog4};
    }

  private:
    double a_, b_, sum_, ratio_, of_a_, of_b_;
};

} // namespace kor::random
