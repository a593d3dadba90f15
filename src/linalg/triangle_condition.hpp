// The condition number of an upper triangle, by which least-squares solvers decide whether its rank is in doubt.
#pragma once

#include <cmath>
#include <cstddef>

#include "linalg/lapack.hpp"
#include "linalg/norm.hpp"

namespace kor::linalg {

inline double norm_of_triangle(Integer n, const double *r)
{
    ScaledSquares squares;
    for (std::ptrdiff_t i = 0; i < n; ++i) add_squares(squares, static_cast<Integer>(n - i), r + i * n + i, 1);
    return length_of(squares);
}

// |R| |inverse(R)| in the Frobenius norm, which is not less than that in the Euclidean norm; r, n rows of n, becomes the
// inverse. Infinite, or NaN, if R is singular or not finite.
inline double condition_of_triangle(Integer n, double *r)
{
    const double norm = norm_of_triangle(n, r);
    if (lapack::trtri(LowerTriangle, NotUnitTriangular, n, r, n) != 0) return INFINITY;
    return norm * norm_of_triangle(n, r);
}

} // namespace kor::linalg
