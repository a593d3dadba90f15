// Sequences of plane rotations, applied to matrices or chosen to restore a triangle.
//
// Rotation k, k = k1..k2-1 counted from 1, is (c[k-1], s[k-1]). From the left it turns two rows, from the right, conjugated
// and transposed, two columns. The strict lower triangle of a triangular array is never touched: what a sequence leaves
// there, a subdiagonal or a spike, lies in s in the place of the rotation that makes or removes it.
//
// Rotations of columns are applied row by row, all that concern a row in one go: rows are what lies together in memory.
#pragma once

#include <algorithm>
#include <utility>

#include "frame/views.hpp"
#include "linalg/arguments.hpp"
#include "linalg/rotation.hpp"

namespace kor::linalg {

// Rows or columns [first, second) of the matrix, from 0.
struct Plane {
    Integer first, second;
};

// The order and the planes of a sequence.
struct Sequence {
    Integer pivot, direct, k1, k2;

    // Calls turn(index into c and s, plane) for each rotation, in the order of application.
    template <class Turn>
    void each(Turn turn) const
    {
        for (Integer step = k1; step < k2; ++step) {
            const Integer k = direct == ForwardSequence ? step : k1 + (k2 - 1) - step;
            if (pivot == VariablePivot)
                turn(k - 1, Plane{k - 1, k});
            else if (pivot == TopPivot)
                turn(k - 1, Plane{k1 - 1, k});
            else
                turn(k - 1, Plane{k - 1, k2 - 1});
        }
    }
};

constexpr bool is_sequence_pivot(Integer pivot) { return between(pivot, BottomPivot, VariablePivot); }

// A := P A (left) or A conj(P)' (right), A m by n.
template <Scalar S, Scalar T>
void apply_sequence(const char *routine, Integer side, Integer pivot, Integer direct, Integer m, Integer n, Integer k1,
                    Integer k2, const double *c, const S *s, T *a, Integer tda)
{
    const Integer order = side == LeftSide ? m : n;
    if (!accepted(routine, argument(1, is_side(side)), argument(2, is_sequence_pivot(pivot)),
                  argument(3, is_direction(direct)), argument(4, m >= 0), argument(5, n >= 0), argument(6, k1 >= 1),
                  argument(7, k2 <= order), argument(11, row_fits(tda, n))))
        return;
    const RowMajor<T> A{a, tda};
    const Sequence sequence{pivot, direct, k1, k2};
    if (side == LeftSide)
        sequence.each([&](Integer i, Plane rows) { turn_rows(n, A.row(rows.first), A.row(rows.second), c[i], s[i]); });
    else
        for (Integer row = 0; row < m; ++row)
            sequence.each([&](Integer i, Plane columns) {
                turn(A(row, columns.first), A(row, columns.second), c[i], conj(s[i]));
            });
}

// Chooses the sequence that takes the vector of alpha and x into alpha; x becomes the tangents.
template <Scalar T>
void reduce_to_one(const char *routine, Integer pivot, Integer direct, Integer n, T &alpha, T *x, Integer incx,
                   double *c, T *s)
{
    if (!accepted(routine, argument(1, pivot == VariablePivot || pivot == FixedPivot),
                  argument(2, is_direction(direct))))
        return;
    const bool forwards = direct == ForwardSequence;
    const Strided<T> u{x, n, incx};
    for (Integer step = 0; step < n; ++step) {
        const Integer k = forwards ? step : n - 1 - step;
        // What takes element k in: alpha, or the neighbour on the way to it.
        const Integer neighbour = forwards ? k + 1 : k - 1;
        T &target = pivot == FixedPivot || step == n - 1 ? alpha : u[neighbour];
        const Rotation<T> rotation = annihilate(target, u[k]);
        c[k] = rotation.c;
        // In the plane (k, k+1) with the target second, the same rotation read from the other side.
        s[k] = pivot == VariablePivot && forwards ? -conj(rotation.s) : rotation.s;
    }
}

// The arguments of all sequences on a triangle: (side, n, k1, k2, c, s, a, tda).
inline bool accepted_triangle_sequence(const char *routine, Integer side, Integer n, Integer k1, Integer k2,
                                       Integer tda)
{
    return accepted(routine, argument(1, is_side(side)), argument(2, n >= 0), argument(3, k1 >= 1),
                    argument(4, k2 <= n), argument(8, row_fits(tda, n)));
}

// Applies a sequence in adjacent planes to the upper triangle U and restores it from the other side by a second sequence,
// which replaces the first in c and s. Left: R = P U conj(Q)', both forward. Right: R = Q U conj(P)', both backward.
template <Scalar T>
void apply_and_restore(Integer side, Integer n, Integer k1, Integer k2, double *c, T *s, T *a, Integer tda)
{
    const RowMajor<T> U{a, tda};
    const auto turn_columns = [&](Integer rows, Integer p, Integer q, double cosine, T sine) {
        for (Integer i = 0; i < rows; ++i) turn(U(i, p), U(i, q), cosine, conj(sine));
    };
    if (side == LeftSide) {
        for (Integer p = k1 - 1, q = k1; q < k2; ++p, ++q) {
            T fill{}; // element (q, p)
            turn(U(p, p), fill, c[p], s[p]);
            turn_rows(n - q, U.row(p) + q, U.row(q) + q, c[p], s[p]);
            // The columns are turned so that (q, q) takes the fill in.
            const Rotation<T> restoring = annihilate(U(q, q), fill);
            c[p] = restoring.c;
            s[p] = -restoring.s;
        }
        for (Integer i = 0; i < k2 - 1; ++i)
            for (Integer p = std::max(i, k1 - 1); p < k2 - 1; ++p) turn(U(i, p), U(i, p + 1), c[p], conj(s[p]));
    } else {
        for (Integer q = k2 - 1, p = q - 1; p >= k1 - 1; --p, --q) {
            T fill{}; // element (q, p)
            turn_columns(q, p, q, c[p], s[p]);
            turn(fill, U(q, q), c[p], conj(s[p]));
            const Rotation<T> restoring = annihilate(U(p, p), fill);
            turn_rows(n - q, U.row(p) + q, U.row(q) + q, restoring.c, restoring.s);
            c[p] = restoring.c;
            s[p] = restoring.s;
        }
    }
}

// Upper Hessenberg to triangle: R = P H, forward, or R = H P', backward. The subdiagonal is in s, and the rotations come
// out in c and s.
inline void restore_hessenberg(Integer side, Integer n, Integer k1, Integer k2, double *c, double *s, double *a,
                               Integer tda)
{
    const RowMajor<double> H{a, tda};
    if (side == LeftSide) {
        for (Integer p = k1 - 1, q = k1; q < k2; ++p, ++q) {
            const Rotation<double> rotation = annihilate(H(p, p), s[p]);
            c[p] = rotation.c;
            s[p] = rotation.s;
            turn_rows(n - q, H.row(p) + q, H.row(q) + q, c[p], s[p]);
        }
        return;
    }
    // From the last row upwards: row i first takes the rotations of the rows below, then yields its own.
    for (Integer i = k2 - 1; i >= 0; --i) {
        const Integer lowest = std::max(i, k1 - 1);
        double *const row = H.row(i);
        for (Integer p = k2 - 2; p >= lowest; --p) turn(row[p], row[p + 1], c[p], s[p]);
        if (i < k1) continue;
        // The subdiagonal element in column i-1 goes into the diagonal, by the columns i-1 and i.
        const Rotation<double> rotation = annihilate(row[i], s[i - 1]);
        c[i - 1] = rotation.c;
        s[i - 1] = -rotation.s;
    }
}

// Triangle with a spike to triangle: R = P S, forward, the spike in row k2 and planes (k, k2); or R = S P', backward, the
// spike in column k1 and planes (k1, k+1). The spike is in s, and the rotations come out in c and s.
inline void restore_spike(Integer side, Integer n, Integer k1, Integer k2, double *c, double *s, double *a, Integer tda)
{
    const RowMajor<double> S{a, tda};
    const Integer first = k1 - 1, last = k2 - 1;
    if (side == LeftSide) {
        for (Integer p = first; p < last; ++p) {
            const Rotation<double> rotation = annihilate(S(p, p), s[p]);
            c[p] = rotation.c;
            s[p] = rotation.s;
            turn_rows(last - p - 1, S.row(p) + p + 1, s + p + 1, c[p], s[p]);
            turn_rows(n - last, S.row(p) + last, S.row(last) + last, c[p], s[p]);
        }
        return;
    }
    for (Integer i = last; i >= 0; --i) {
        double *const row = S.row(i);
        double &spike = i > first ? s[i - 1] : row[first];
        for (Integer q = last; q > std::max(i, first); --q) turn(spike, row[q], c[q - 1], s[q - 1]);
        if (i <= first) continue;
        const Rotation<double> rotation = annihilate(row[i], spike);
        c[i - 1] = rotation.c;
        s[i - 1] = -rotation.s;
    }
}

// Triangle to upper Hessenberg: H = P U, backward, or H = U P', forward. s holds the sines, and the subdiagonal on return.
inline void make_hessenberg(Integer side, Integer n, Integer k1, Integer k2, const double *c, double *s, double *a,
                            Integer tda)
{
    const RowMajor<double> U{a, tda};
    if (side == LeftSide) {
        for (Integer q = k2 - 1, p = q - 1; p >= k1 - 1; --p, --q) {
            const double sine = s[p];
            s[p] = 0.0; // element (q, p)
            turn_rows(n - q, U.row(p) + q, U.row(q) + q, c[p], sine);
            turn(U(p, p), s[p], c[p], sine);
        }
        return;
    }
    for (Integer i = 0; i < k2; ++i) {
        double *const row = U.row(i);
        if (i >= k1) { // columns i-1 and i make the subdiagonal element
            const double sine = s[i - 1];
            s[i - 1] = 0.0;
            turn(s[i - 1], row[i], c[i - 1], sine);
        }
        for (Integer p = std::max(i, k1 - 1); p < k2 - 1; ++p) turn(row[p], row[p + 1], c[p], s[p]);
    }
}

// Triangle to a triangle with a spike: S = P U, backward, planes (k, k2), spike in row k2; or S = U P', forward, planes
// (k1, k+1), spike in column k1. s holds the sines, and the spike on return.
inline void make_spike(Integer side, Integer n, Integer k1, Integer k2, const double *c, double *s, double *a,
                       Integer tda)
{
    const RowMajor<double> U{a, tda};
    const Integer first = k1 - 1, last = k2 - 1;
    if (side == LeftSide) {
        for (Integer p = last - 1; p >= first; --p) {
            const double sine = s[p];
            s[p] = 0.0;
            turn(U(p, p), s[p], c[p], sine);
            turn_rows(last - p - 1, U.row(p) + p + 1, s + p + 1, c[p], sine);
            turn_rows(n - last, U.row(p) + last, U.row(last) + last, c[p], sine);
        }
        return;
    }
    for (Integer i = 0; i <= last; ++i) {
        double *const row = U.row(i);
        if (i > first) {
            const double sine = s[i - 1];
            s[i - 1] = 0.0;
            turn(s[i - 1], row[i], c[i - 1], sine);
        }
        double &spike = i > first ? s[i - 1] : row[first];
        for (Integer q = std::max(i, first) + 1; q <= last; ++q) turn(spike, row[q], c[q - 1], s[q - 1]);
    }
}

// Moves row k2 of the triangle before row k1 (left), or column k1 behind column k2 (right): an upper Hessenberg matrix,
// its subdiagonal in s.
inline void shift_cyclically(Integer side, Integer n, Integer k1, Integer k2, double *s, double *a, Integer tda)
{
    const RowMajor<double> U{a, tda};
    const Integer first = k1 - 1, last = k2 - 1;
    if (side == LeftSide) {
        for (Integer i = last; i > first; --i) {
            s[i - 1] = U(i - 1, i - 1);
            // Row i-1 comes to row i; in the columns from k2 on the displaced row wanders up to row k1.
            std::copy(U.row(i - 1) + i, U.row(i - 1) + last, U.row(i) + i);
            std::swap_ranges(U.row(i - 1) + last, U.row(i - 1) + n, U.row(i) + last);
        }
        std::fill(U.row(first) + first, U.row(first) + last, 0.0);
        return;
    }
    for (Integer i = 0; i <= last; ++i) {
        double *const row = U.row(i);
        if (i <= first) {
            std::rotate(row + first, row + first + 1, row + last + 1);
        } else {
            s[i - 1] = row[i];
            std::copy(row + i + 1, row + last + 1, row + i);
            row[last] = 0.0;
        }
    }
}

} // namespace kor::linalg
