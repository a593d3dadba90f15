// Integrals over boxes, behind d01fcc, d01gbc and their twins: checks, work and reports.
#pragma once

#include "frame/function_ref.hpp"
#include "frame/report.hpp"

namespace kor::quadrature {

using BoxIntegrand = FunctionRef<double(const double *x)>;

void adaptive_cubature(const Report &report, Integer ndim, BoxIntegrand f, const double *a, const double *b,
                       Integer minpts, Integer maxpts, double eps, double *acc, double *finval);

void monte_carlo(const Report &report, Integer ndim, BoxIntegrand f, Integer method, Integer cont, const double *a,
                 const double *b, Integer mincls, Integer maxcls, double eps, Integer maxlcs, double *finval,
                 double *acc);

} // namespace kor::quadrature
