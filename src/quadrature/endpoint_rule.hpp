// Rules for integrands with the weight (x - a)^alfa (b - x)^beta, times logarithms of x - a and b - x.
#pragma once

#include "quadrature/chebyshev_expansion.hpp"
#include "quadrature/rules.hpp"
#include <kor.h>

namespace kor::quadrature {

class EndpointRule {
  public:
    EndpointRule(double a, double b, double alfa, double beta, bool log_a, bool log_b);

    RuleValue operator()(Integrand f, double left, double right);

    Integer evaluations = 0;

  private:
    struct Moments {
        double plain[kChebyshevPoints];       // of (1 + x)^power
        double logarithmic[kChebyshevPoints]; // of (1 + x)^power log((1 + x)/2)
    };
    static void compute_moments(double power, Moments &moments);

    double a_, b_, alfa_, beta_;
    bool log_a_, log_b_;
    Moments at_a_, at_b_;
};

} // namespace kor::quadrature
