// The driver behind c05adc and c05sdc: checks, iteration and reports; the twins differ in how they call the function.
#pragma once

#include "frame/function_ref.hpp"
#include "frame/report.hpp"

namespace kor::roots {

void zero_in_interval(const Report &report, double a, double b, double *x, FunctionRef<double(double)> f, double xtol,
                      double ftol);

} // namespace kor::roots
