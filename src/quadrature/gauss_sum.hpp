// The integral by a Gaussian rule, behind d01bac and d01tac: checks, sum and reports.
#pragma once

#include "frame/report.hpp"
#include "quadrature/rules.hpp"

namespace kor::quadrature {

double gauss_sum(const Report &report, Integer quadrule, Integrand f, double a, double b, Integer npts);

} // namespace kor::quadrature
