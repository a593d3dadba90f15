// The beta law, and with it Student's t, F and the binomial laws.
#pragma once

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

  private:
    double a_, b_;
    special::DoubleDouble n_, exponent_, factor_;
};

class BetaLaw {
  public:
    // a, b > 0.
    BetaLaw(double a, double b) : a_{a}, b_{b}, term_{a, b} {}

    // The tails at x, where y = 1 - x; both positive.
    Tails tails(special::DoubleDouble x, special::DoubleDouble y) const;

    // x^a y^b / B(a, b).
    special::Exponential slope(special::DoubleDouble x, special::DoubleDouble y) const;

    // The same at odds w = x / y.
    Tails tails_at_odds(special::DoubleDouble w) const;

    // The odds x / y of the quantile.
    Quantile odds(Target target) const;

  private:
    double a_, b_;
    BinomialTerm term_;
};

} // namespace kor::stats
