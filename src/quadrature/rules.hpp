// The integrand, and what a rule tells about one sub-interval.
#pragma once

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"

namespace kor::quadrature {

// The user's function: with his data as they stand, or without.
class Integrand {
  public:
    Integrand(double (*f)(double, void *), void *comm) : f_{f}, comm_{comm} {}
    Integrand(double (*f)(double))
        : f_{[](double x, void *plain) { return reinterpret_cast<double (*)(double)>(plain)(x); }},
          comm_{reinterpret_cast<void *>(f)}
    {
    }

    double operator()(double x) const { return f_(x, comm_); }

  private:
    double (*f_)(double, void *);
    void *comm_;
};

struct RuleValue {
    double result;
    double error;  // estimate of |result - integral|
    double resabs; // integral of |f|, roughly
    double resasc; // integral of |f - mean of f|, roughly: an error as large as this is no estimate at all
};

inline constexpr double kRoundoffShare = 50.0 * kPrecision; // of resabs: below it differences are rounding errors

// Where the integrand has no value, nothing is known: its sub-interval comes first.
inline double unlimited_if_unknown(double error) { return std::isnan(error) ? HUGE_VAL : error; }

// From the difference of two rules to an estimate of the error of the better one (R. Piessens et al., QUADPACK, 1983).
inline double error_estimate(double difference, double resabs, double resasc)
{
    double error = std::fabs(difference);
    if (resasc != 0.0 && error != 0.0) {
        const double ratio = 200.0 * error / resasc;
        error = resasc * (ratio < 1.0 ? ratio * std::sqrt(ratio) : 1.0);
    }
    if (resabs > kSafeSmall / kRoundoffShare) error = std::max(kRoundoffShare * resabs, error);
    return unlimited_if_unknown(error);
}

} // namespace kor::quadrature
