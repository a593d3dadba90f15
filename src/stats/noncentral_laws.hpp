// Non-central chi-squared and beta laws: Poisson mixtures of central ones.
#pragma once

#include "special/evaluate.hpp"

namespace kor::stats {

struct MixtureSum {
    double value;
    bool converged; // within the number of terms allowed
};

// How far a mixture is summed: to the relative accuracy `tol`, with at most `max_terms` terms.
struct MixtureLimits {
    double tol;
    int max_terms;
};

// A tolerance below 10 eps, or from 1 up, stands for 10 eps.
double effective_tolerance(double tol);

// P(X <= x); df >= 0, lambda > 0, x > 0.
MixtureSum noncentral_chi_squared(double x, double df, double lambda, MixtureLimits limits);

// P(X <= x), y = 1 - x; both, and a, b, lambda, positive.
MixtureSum noncentral_beta(special::DoubleDouble x, special::DoubleDouble y, double a, double b, double lambda,
                           MixtureLimits limits);

} // namespace kor::stats
