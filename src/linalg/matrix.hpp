// Whole matrices, row by row: which elements of a row a matrix of a certain type stores; copies, fills, permutations.
#pragma once

#include <algorithm>
#include <cstddef>

#include <kor.h>

#include "frame/views.hpp"
#include "linalg/arguments.hpp"
#include "linalg/scalar.hpp"

namespace kor::linalg {

// Columns [first, last) of a row.
struct Columns {
    Integer first, last;
};

constexpr bool is_upper(Integer matrix)
{
    return matrix == UpperTriangular || matrix == SymmetricUpper || matrix == HermitianUpper;
}

// What a matrix of n columns of this type stores of row i.
constexpr Columns stored_columns(Integer matrix, Integer i, Integer n)
{
    if (matrix == General) return {0, n};
    if (is_upper(matrix)) return {std::min(i, n), n};
    return {0, i < n ? i + 1 : n};
}

// General, or a triangle (a trapezium, if m is not n).
constexpr bool is_general_or_triangle(Integer matrix) { return between(matrix, General, LowerTriangular); }

// b := a
template <Scalar T>
void copy_matrix(const char *routine, Integer matrix, Integer m, Integer n, const T *a, Integer tda, T *b, Integer tdb)
{
    if (!accepted(routine, argument(1, is_general_or_triangle(matrix)), argument(2, m >= 0), argument(3, n >= 0),
                  argument(5, row_fits(tda, n)), argument(7, row_fits(tdb, n))))
        return;
    const RowMajor<const T> from{a, tda};
    const RowMajor<T> to{b, tdb};
    for (Integer i = 0; i < m; ++i) {
        const Columns columns = stored_columns(matrix, i, n);
        std::copy(from.row(i) + columns.first, from.row(i) + columns.last, to.row(i) + columns.first);
    }
}

// a := diag on the diagonal, con beside it.
template <Scalar T>
void fill_matrix(const char *routine, Integer matrix, Integer m, Integer n, T con, T diag, T *a, Integer tda)
{
    if (!accepted(routine, argument(1, is_general_or_triangle(matrix)), argument(2, m >= 0), argument(3, n >= 0),
                  argument(7, row_fits(tda, n))))
        return;
    const RowMajor<T> to{a, tda};
    for (Integer i = 0; i < m; ++i) {
        const Columns columns = stored_columns(matrix, i, n);
        std::fill(to.row(i) + columns.first, to.row(i) + columns.last, con);
        if (i < n) to(i, i) = diag;
    }
}

// Interchanges i and partner(i), i = 0..n-1, of the rows (left) or columns (right) of b, forwards or backwards; b has k
// columns (left) or rows (right).
template <Scalar T, class Partner>
void interchange(Integer side, bool forwards, Integer n, Partner partner, Integer k, T *b, Integer tdb)
{
    const RowMajor<T> B{b, tdb};
    const auto sweep = [&](auto exchange) {
        for (Integer step = 0; step < n; ++step) {
            const Integer i = forwards ? step : n - 1 - step, j = partner(i);
            if (i != j) exchange(i, j);
        }
    };
    if (side == LeftSide)
        sweep([&](Integer i, Integer j) { std::swap_ranges(B.row(i), B.row(i) + k, B.row(j)); });
    else
        // Row by row: each row stays in the cache for the whole sweep.
        for (Integer row = 0; row < k; ++row) sweep([&](Integer i, Integer j) { std::swap(B(row, i), B(row, j)); });
}

// B := P B, P' B, B P or B P', P = P_1 P_2 ... P_n, P_i the interchange of i and perm[i], given from `base` on; a real
// number is cut to an integer.
template <Scalar T, class Index>
void permute(const char *routine, Integer side, Integer trans, Integer n, const Index *perm, Index base, Integer k,
             T *b, Integer tdb)
{
    constexpr double kTooGreat = 2147483648.0;
    const bool left = side == LeftSide;
    const Integer columns = left ? k : n;
    // A row may lie beyond the first n, for the interchanges of a factorisation with more rows than columns.
    const double limit = left ? kTooGreat : tdb + static_cast<double>(base);
    const auto in_range = [&] {
        return std::all_of(perm, perm + std::max(n, 0), [=](Index p) { return p >= base && p < limit; });
    };
    if (!accepted(routine, argument(1, is_side(side)), argument(2, is_transpose(trans)), argument(3, n >= 0))) return;
    if (!accepted(routine, argument(4, in_range()), argument(5, k >= 0), argument(7, row_fits(tdb, columns)))) return;
    const auto partner = [=](Integer i) { return static_cast<Integer>(perm[i]) - static_cast<Integer>(base); };
    // P' B = P_n ... P_1 B and B P = B P_1 ... P_n start with P_1.
    const bool forwards = left == (trans != NoTranspose);
    interchange(side, forwards, n, partner, k, b, tdb);
}

} // namespace kor::linalg
