// QR factors of a matrix that changes by a matrix of rank one.
#pragma once

#include "frame/views.hpp"
#include <kor.h>

namespace kor::roots {

// The upper triangle of a matrix, packed by rows: row i holds its elements i..n-1.
struct PackedUpper {
    double *r;
    Integer n;
    // The row so that row(i)[j] is element (i, j), j >= i.
    double *row(Integer i) const
    {
        const std::ptrdiff_t before = static_cast<std::ptrdiff_t>(i) * n - static_cast<std::ptrdiff_t>(i) * (i + 1) / 2;
        return r + before;
    }
};

struct Rotation {
    double c = 1.0;
    double s = 0.0;
};

// Given Q R, makes R the triangular factor of Q (R + u v') and rotates Q, and the row vector `qtf` = f'Q, to match.
// `u` and `w` are destroyed; `rotations` has 2 n elements. O(n^2).
void rank_one_update(PackedUpper r, double *u, const double *v, double *w, Rotation *rotations, RowMajor<double> q,
                     double *qtf);

} // namespace kor::roots
