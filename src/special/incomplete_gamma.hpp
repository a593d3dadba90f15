// The incomplete gamma functions, ratios P and Q = 1 - P, and the density behind them: the floor under the gamma, chi-square
// and Poisson distributions.
#pragma once

#include <kor.h>

#include "special/elementary.hpp"
#include "special/incomplete_gamma_tables.hpp"

namespace kor::special {

// P(a, x) and Q(a, x) = 1 - P(a, x), both with small relative errors, in the tails too (where not even the exponent of the
// smaller one fits a double it is 0); and what comes with them, term = x^a exp(-x) / Gamma(a + 1) to a relative 1e-12.
struct IncompleteGamma {
    double p, q, term;
    bool converged = true;
};

inline constexpr double kGammaStepFrom = 1e250; // beyond it in a or x, P is a step at x = a

// a > 0, x >= 0, infinities included. Series and continued fractions stop at the relative accuracy `tol`; a value out of
// [2^-53, 1] stands for 2^-53. Never more than 600 terms.
IncompleteGamma incomplete_gamma(double a, double x, double tol = 0.0);

// x^a exp(-x) / Gamma(a + 1) = P(a, x) - P(a + 1, x), the Poisson probability of a at mean x, as value 2^exponent; a > 0,
// x > 0 finite. Relative error 2^-55 down to 1e-300.
Exponential extended_poisson_term(double a, double x);

// a (mu - ln(1 + mu)), from a mu and mu as well; log_one_plus_mu() is called where mu is far from 0. Relative error 2^-59.
template <class LogOnePlusMu>
KOR_INLINE DoubleDouble deviance(double a, DoubleDouble a_mu, DoubleDouble mu, const LogOnePlusMu &log_one_plus_mu)
{
    constexpr double kTableFrom = -0.75, kTableTo = 1.5;
    if (mu.hi >= kTableFrom && mu.hi < kTableTo) return a_mu * mu * tables::kDeviance(mu);
    return a * (mu - log_one_plus_mu());
}

// The same with mu = x/a - 1; a and x positive, below 1e250.
DoubleDouble extended_deviance(double a, double x);

} // namespace kor::special
