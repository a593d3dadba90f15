// Least squares with a matrix of wide band: the triangle of banded_triangle.hpp where rows come by their first column, and
// where the matrix may be of deficient rank.
#pragma once

#include "approx/banded_triangle.hpp"
#include "frame/workspace.hpp"

namespace kor::approx {

// Rotates a row of `length` elements from column `first` on into the triangle, until it meets an empty row, which it
// fills. Returns what is left of its right-hand side. The row is destroyed.
double add_wide_row(const BandedTriangle &triangle, Integer first, double *h, Integer length, double y);

struct RankedSolution {
    Integer rank;
    double unfitted; // the part of the squares that a triangle of deficient rank leaves over
};

// The solution c; where diagonal elements are at most `threshold` times the largest, the one of least norm. The triangle is
// kept. False if memory is lacking.
bool solve_ranked(const BandedTriangle &triangle, double threshold, double *c, RankedSolution &result);

} // namespace kor::approx
