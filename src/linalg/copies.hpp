// Copies of matrices and of their triangles.
#pragma once

#include <algorithm>

#include "frame/views.hpp"
#include "linalg/scalar.hpp"
#include "linalg/transpose.hpp"

namespace kor::linalg {

// The upper triangle of a, without the diagonal, is copied to the lower one of b, conjugated; b may be a.
template <Scalar T>
void reflect_upper(Integer n, const T *a, Integer tda, T *b, Integer tdb)
{
    const RowMajor<const T> A{a, tda};
    const RowMajor<T> B{b, tdb};
    for (Integer i0 = 0; i0 < n; i0 += kTile)
        for (Integer j0 = i0; j0 < n; j0 += kTile)
            for (Integer i = i0, i1 = std::min(n, i0 + kTile); i < i1; ++i)
                for (Integer j = std::max(j0, i + 1), j1 = std::min(n, j0 + kTile); j < j1; ++j)
                    B(j, i) = conj(A(i, j));
}

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
