// Rules for integrands with the weight cos(omega x) or sin(omega x).
#pragma once

#include "quadrature/chebyshev_expansion.hpp"
#include "quadrature/rules.hpp"
#include <kor.h>

namespace kor::quadrature {

// Sine and cosine of a phase.
struct Phase {
    double sine, cosine;
};

// The integrals over (-1, 1) of T_k(x) cos(p x), k even, and T_k(x) sin(p x), k odd; |p| > 2. `end` is the phase p, which may
// be known better than p itself.
void compute_moments(double p, Phase end, double *moments);

struct FourierMoments {
    double half_width = 0.0; // of the sub-intervals that they belong to
    double m[kChebyshevPoints];
};

class FourierRule {
  public:
    FourierRule(double omega, bool sine) : omega_{omega}, sine_{sine} {}

    // `level`: number of bisections that led to (a, b), which tells where its moments may be kept.
    RuleValue operator()(Integrand f, double a, double b, Integer level);
    // The weight at x, right to the last bits however large the phase is.
    double weight(double x) const;

    Integer evaluations = 0;

  private:
    static constexpr Integer kLevels = 21;
    const double *moments_for(double half_width, Integer level);

    double omega_;
    bool sine_;
    FourierMoments kept_[kLevels] = {};
    FourierMoments other_;
};

} // namespace kor::quadrature
