// Bicubic splines: sums of products of B-splines in x and in y, with the coefficient of (i, j) at c[i * (ny-4) + j].
#pragma once

#include <cstddef>

#include "approx/cubic_bspline.hpp"

namespace kor::approx {

// The sum where the spans are known: the point's basis values in x and y.
inline double bicubic_value(const double *c, std::ptrdiff_t stride, Integer x_span, const double bx[kOrder],
                            Integer y_span, const double by[kOrder])
{
    const double *corner = c + (x_span - kDegree) * stride + (y_span - kDegree);
    double sum = 0.0;
    for (int i = 0; i < kOrder; ++i, corner += stride) {
        const double row = (corner[0] * by[0] + corner[1] * by[1]) + (corner[2] * by[2] + corner[3] * by[3]);
        sum += bx[i] * row;
    }
    return sum;
}

} // namespace kor::approx
