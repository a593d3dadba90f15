// Gradients at the nodes of a triangulation.
#pragma once

#include "approx/delaunay.hpp"

namespace kor::approx {

// Estimates the gradients (g[2 i], g[2 i + 1]) that make the sum of the curvatures along all edges least, where the curve along
// an edge is the cubic that its end values and gradients determine. `lengths` is space for one number per list element.
void node_gradients(const NeighbourLists &mesh, const double *x, const double *y, const double *f, double *lengths,
                    double *g);

} // namespace kor::approx
