// The integrand, and what a rule tells about one sub-interval.
#pragma once

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"
#include "frame/function_ref.hpp"

namespace kor::quadrature {

using Integrand = FunctionRef<double(double)>;

struct RuleValue {
    double result;
    double error;  // estimate of |result - integral|
    double resabs; // integral of |f|, roughly
    double resasc; // integral of |f - mean of f|, roughly: an error as large as this is no estimate at all
};

inline constexpr double kRoundoffShare = 50.0 * kPrecision; // of resabs: below it differences are rounding errors

// From the difference of two rules to an estimate of the error of the better one (R. Piessens et al., QUADPACK, 1983).
inline double error_estimate(double difference, double resabs, double resasc)
{
    double error = std::fabs(difference);
    if (resasc != 0.0 && error != 0.0) {
        const double ratio = 200.0 * error / resasc;
        error = resasc * (ratio < 1.0 ? ratio * std::sqrt(ratio) : 1.0);
    }
    if (resabs > kSafeSmall / kRoundoffShare) error = std::max(kRoundoffShare * resabs, error);
    return error;
}

} // namespace kor::quadrature
