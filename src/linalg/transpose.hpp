// Transposition of matrices, in tiles that the cache holds; real ones in blocks that registers hold.
#pragma once

#include <algorithm>
#include <cstddef>
#include <type_traits>

#include "linalg/scalar.hpp"

namespace kor::linalg {

inline constexpr Integer kTile = 16;

// The real cases of the functions below.
void transpose_real(Integer m, Integer n, const double *a, std::ptrdiff_t tda, double *b, std::ptrdiff_t tdb);
void transpose_real_in_place(Integer n, double *a, std::ptrdiff_t tda);
void reflect_real_upper(Integer n, const double *a, std::ptrdiff_t tda, double *b, std::ptrdiff_t tdb);

// b := conj(a)', a m by n.
template <Scalar T>
void transpose_into(Integer m, Integer n, const T *a, Integer tda, T *b, Integer tdb)
{
    if constexpr (std::is_same_v<T, double>) return transpose_real(m, n, a, tda, b, tdb);
    for (std::ptrdiff_t i0 = 0; i0 < m; i0 += kTile)
        for (std::ptrdiff_t j0 = 0; j0 < n; j0 += kTile)
            for (std::ptrdiff_t i = i0; i < std::min<std::ptrdiff_t>(m, i0 + kTile); ++i)
                for (std::ptrdiff_t j = j0; j < std::min<std::ptrdiff_t>(n, j0 + kTile); ++j)
                    b[j * tdb + i] = conj(a[i * tda + j]);
}

// visit(i, j) for all elements below the diagonal, tile by tile.
template <class Visit>
void for_each_below(std::ptrdiff_t n, Visit visit)
{
    for (std::ptrdiff_t i0 = 0; i0 < n; i0 += kTile)
        for (std::ptrdiff_t j0 = 0; j0 <= i0; j0 += kTile)
            for (std::ptrdiff_t i = i0; i < std::min<std::ptrdiff_t>(n, i0 + kTile); ++i)
                for (std::ptrdiff_t j = j0; j < std::min<std::ptrdiff_t>(i, j0 + kTile); ++j) visit(i, j);
}

// a := a', or conj(a)', of order n, in place.
template <bool conjugated, Scalar T>
void transpose_in_place(Integer n, T *a, Integer tda)
{
    if constexpr (std::is_same_v<T, double>) return transpose_real_in_place(n, a, tda);
    const auto moved = [](T x) {
        if constexpr (conjugated)
            return conj(x);
        else
            return x;
    };
    for_each_below(n, [=](std::ptrdiff_t i, std::ptrdiff_t j) {
        const T below = a[i * tda + j];
        a[i * tda + j] = moved(a[j * tda + i]);
        a[j * tda + i] = moved(below);
    });
    for (std::ptrdiff_t i = 0; i < n; ++i) a[i * tda + i] = moved(a[i * tda + i]);
}

// The upper triangle of a, without the diagonal, is copied to the lower one of b, conjugated; b may be a.
template <Scalar T>
void reflect_upper(Integer n, const T *a, Integer tda, T *b, Integer tdb)
{
    if constexpr (std::is_same_v<T, double>) return reflect_real_upper(n, a, tda, b, tdb);
    for_each_below(n, [=](std::ptrdiff_t i, std::ptrdiff_t j) { b[i * tdb + j] = conj(a[j * tda + i]); });
}

} // namespace kor::linalg
