// The law of v = ln(S), df S^2 a chi-squared variable with df degrees of freedom: its density is ~ exp(-df (exp(2v) - 2v) / 2).
#pragma once

#include <array>
#include <cmath>

#include "special/incomplete_gamma.hpp"

namespace kor::stats {

// (exp(2 v) - 1 - 2 v) / 2, relative to itself.
inline double excess_of_exponential(double v)
{
    constexpr double kSeriesBelow = 0.25;
    constexpr std::array kSeries{1.0,           2.0 / 3.0,      1.0 / 3.0,      2.0 / 15.0,
                                 2.0 / 45.0,    4.0 / 315.0,    1.0 / 315.0,    2.0 / 2835.0,
                                 2.0 / 14175.0, 4.0 / 155925.0, 2.0 / 467775.0, 4.0 / 6081075.0};
    if (std::fabs(v) < kSeriesBelow) return v * v * special::polynomial(kSeries, v);
    return 0.5 * (std::expm1(2.0 * v) - 2.0 * v);
}

// The density about a point v0 or next to it: s0 = exp(v0) is rounded so that its square, and the density, are exact.
class LawOfScale {
  public:
    LawOfScale(double df, double v0)
        : df_{df}, x0_{0.5 * df * std::exp(2.0 * v0)}, square_{x0_ / (0.5 * df)}, s0_{sqrt(special::two_quotient(
                                                                                      x0_, 0.5 * df))}
    {
    }
    special::DoubleDouble s0() const { return s0_; }
    double density() const { return df_ * special::extended_poisson_term(0.5 * df_, x0_).rounded(); }
    // The density at v0 + h divided by that at v0.
    double ratio(double h) const { return std::exp(-df_ * (square_ * excess_of_exponential(h) + (square_ - 1.0) * h)); }

  private:
    double df_, x0_, square_;
    special::DoubleDouble s0_;
};

} // namespace kor::stats
