// Cubic splines through given points: the knots, and the linear equations for the coefficients.
#pragma once

#include <cstddef>

#include <kor.h>

namespace kor::approx {

// The m+4 knots of the spline through m >= 4 points: the points without the second and the next to last, with four knots
// at either end.
void interpolation_knots(Integer m, const double *x, double *t);

// The coefficients of the spline through m >= 4 points, for its interpolation_knots() t, from their values y, in place.
// `above` is work space for m numbers.
//
// A point that is a knot has three B-splines: the matrix B_j(x_i) is tridiagonal but for one more element in the second row,
// and one in the last but one. It is totally positive, so that elimination without interchanges is as stable as can be
// (C. de Boor and A. Pinkus, Numer. Math. 27 (1977) 485-490).
void collocate(Integer m, const double *x, const double *t, double *above, double *y);

// The same for `count` curves at once: those of point i stand in y[i * count + k].
void collocate(Integer m, const double *x, const double *t, double *above, double *y, std::ptrdiff_t count);

} // namespace kor::approx
