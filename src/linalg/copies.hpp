// Copies of matrices and of their triangles.
#pragma once

#include <algorithm>

#include "frame/views.hpp"
#include "linalg/scalar.hpp"
#include "linalg/transpose.hpp"

namespace kor::linalg {

// The first m rows of n elements.
template <Scalar T>
void copy_rows(Integer m, Integer n, const T *a, Integer tda, T *b, Integer tdb)
{
    if (a == b) return;
    for (std::ptrdiff_t i = 0; i < m; ++i) std::copy(a + i * tda, a + i * tda + n, b + i * tdb);
}

// b := the symmetric matrix whose upper triangle a holds.
inline void complete_symmetric(Integer n, const double *a, Integer tda, double *b, Integer tdb)
{
    for (std::ptrdiff_t i = 0; i < n; ++i) std::copy(a + i * tda + i, a + i * tda + n, b + i * tdb + i);
    reflect_upper(n, a, tda, b, tdb);
}

} // namespace kor::linalg
