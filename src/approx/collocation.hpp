// Cubic splines through given points: the knots, and the linear equations for the coefficients.
#pragma once

#include <algorithm>
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

// b = a', for a of `rows` by `columns`, row-major, in blocks that stay in the cache.
inline void transpose(std::ptrdiff_t rows, std::ptrdiff_t columns, const double *a, double *b)
{
    constexpr std::ptrdiff_t block = 16;
    for (std::ptrdiff_t i0 = 0; i0 < rows; i0 += block)
        for (std::ptrdiff_t j0 = 0; j0 < columns; j0 += block)
            for (std::ptrdiff_t i = i0; i < std::min(i0 + block, rows); ++i)
                for (std::ptrdiff_t j = j0; j < std::min(j0 + block, columns); ++j)
                    b[j * rows + i] = a[i * columns + j];
}

} // namespace kor::approx
