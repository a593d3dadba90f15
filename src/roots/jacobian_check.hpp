// Does a Jacobian fit its function? The check behind c05zbc and c05zcc.
#pragma once

#include "roots/powell_hybrid.hpp"

namespace kor::roots {

void check_jacobian(const Report &report, Integer n, SystemWithJacobian f, const double *x, double *fvec, double *fjac,
                    Integer tdfjac);

} // namespace kor::roots
