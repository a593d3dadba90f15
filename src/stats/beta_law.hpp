// The beta law, and with it Student's t, F and the binomial laws.
#pragma once

#include <optional>

#include "special/elementary.hpp"
#include "stats/tail_solver.hpp"

namespace kor::stats {

// Gamma(a+b+1) / (Gamma(a+1) Gamma(b+1)) x^a y^b with x + y = 1: the binomial probability of a successes in a + b trials.
// What depends on a and b alone is formed once.
class BinomialTerm {
  public:
    // a, b > 0.
    BinomialTerm(double a, double b);

    // x and y positive. Relative error about 2^-52 down to 1e-300, for a and b up to 1e10.
    special::Exponential at(special::DoubleDouble x, special::DoubleDouble y) const;

    // The same from fall_of_powers() there.
    special::Exponential after(special::DoubleDouble fall) const;

  private:
    double a_, b_;
    special::DoubleDouble exponent_, factor_;
};

// How far below its maximum, at x = a / (a + b), the logarithm of x^a y^b lies; surplus = a y - b x.
special::DoubleDouble fall_of_powers(double a, double b, special::DoubleDouble x, special::DoubleDouble y,
                                     special::DoubleDouble surplus);

class BetaLaw {
  public:
    // a, b > 0.
    BetaLaw(double a, double b) : a_{a}, b_{b} {}

    // The tails at x, where y = 1 - x; both positive.
    Tails tails(special::DoubleDouble x, special::DoubleDouble y) const;

    // x^a y^b / B(a, b).
    special::Exponential slope(special::DoubleDouble x, special::DoubleDouble y) const;

    // Tails and slope together.
    PointOfLaw at(special::DoubleDouble x, special::DoubleDouble y) const;

    // The tails at odds w = x / y.
    Tails tails_at_odds(special::DoubleDouble w) const;

    // The odds x / y of the quantile.
    Quantile odds(Target target) const;

  private:
    // What depends on the shapes alone, formed when it is first wanted.
    struct Factors {
        std::optional<BinomialTerm> term; // for large shapes
        special::DoubleDouble factor;     // 1 / B(a, b), or a b / (a + b) beside the binomial term
    };
    bool large() const;
    const Factors &factors() const;

    special::Exponential slope_after(special::DoubleDouble fall) const;
    special::DoubleDouble log_power(double a, double b, special::DoubleDouble x) const;
    std::optional<Tails> by_one_power(special::DoubleDouble x, special::DoubleDouble y) const;
    std::optional<PointOfLaw> by_gamma_expansion(special::DoubleDouble x, special::DoubleDouble y,
                                                 bool with_slope) const;
    std::optional<Tails> by_uniform_expansion(special::DoubleDouble fall, bool below) const;
    Tails by_series(special::DoubleDouble x, special::DoubleDouble y, special::DoubleDouble surplus,
                    special::Exponential slope) const;

    double a_, b_;
    mutable std::optional<Factors> factors_;
};

} // namespace kor::stats
