// The local quadratics of the modified Shepard method.
#pragma once

#include "approx/cell_grid.hpp"

namespace kor::approx {

// Fits, at each of m nodes k, the coefficients c[5 k + 0..4] of
//     Q_k(dx, dy) = f_k + (c3 dy + c2 dx + c0) dx + (c4 dy + c1) dy
// to the nodes nearer than `radius`. Returns the least number of these that a node has.
Integer nodal_quadratics(const CellGrid &grid, Integer m, const double *x, const double *y, const double *f,
                         double radius, double *c);

} // namespace kor::approx
