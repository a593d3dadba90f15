// Transposition of matrices, in tiles that the cache holds.
#pragma once

#include <algorithm>
#include <cstddef>

#include "linalg/scalar.hpp"

namespace kor::linalg {

inline constexpr Integer kTile = 16;

// b := conj(a)', a m by n.
template <Scalar T>
void transpose_into(Integer m, Integer n, const T *a, Integer tda, T *b, Integer tdb)
{
    for (std::ptrdiff_t i0 = 0; i0 < m; i0 += kTile)
        for (std::ptrdiff_t j0 = 0; j0 < n; j0 += kTile)
            for (std::ptrdiff_t i = i0; i < std::min<std::ptrdiff_t>(m, i0 + kTile); ++i)
                for (std::ptrdiff_t j = j0; j < std::min<std::ptrdiff_t>(n, j0 + kTile); ++j)
                    b[j * tdb + i] = conj(a[i * tda + j]);
}

// a := a', or conj(a)', of order n, in place.
template <bool conjugated, Scalar T>
void transpose_in_place(Integer n, T *a, Integer tda)
{
    const auto moved = [](T x) {
        if constexpr (conjugated)
            return conj(x);
        else
            return x;
    };
    for (std::ptrdiff_t i0 = 0; i0 < n; i0 += kTile)
        for (std::ptrdiff_t j0 = 0; j0 <= i0; j0 += kTile)
            for (std::ptrdiff_t i = i0; i < std::min<std::ptrdiff_t>(n, i0 + kTile); ++i)
                for (std::ptrdiff_t j = j0; j < std::min<std::ptrdiff_t>(i + 1, j0 + kTile); ++j) {
                    const T below = a[i * tda + j];
                    a[i * tda + j] = moved(a[j * tda + i]);
                    a[j * tda + i] = moved(below);
                }
}

} // namespace kor::linalg
