// Rules for principal values: the weight 1/(x - c).
#pragma once

#include "quadrature/rules.hpp"
#include <kor.h>

namespace kor::quadrature {

// Over (a, b), with c inside, outside, or nowhere near; adds the evaluations to `evaluations`.
RuleValue principal_value_rule(Integrand f, double a, double b, double c, Integer &evaluations);

} // namespace kor::quadrature
