// Least squares with a banded matrix: rows go one by one into an upper triangle by plane rotations.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>

#include <kor.h>

namespace kor::approx {

struct PlaneRotation {
    double c, s;
};

// The rotation that takes (diagonal, pivot) to (its length, 0); the diagonal becomes the length.
inline PlaneRotation rotation_onto(double &diagonal, double pivot)
{
    const double square = diagonal * diagonal + pivot * pivot;
    // Where the squares could leave the range, the slow way.
    const bool safe = square > 0x1p-900 && square < 0x1p900;
    const double length = safe ? std::sqrt(square) : std::hypot(diagonal, pivot);
    const PlaneRotation rotation{diagonal / length, pivot / length};
    diagonal = length;
    return rotation;
}

// n rows of `width` elements: element j of row i stands in column i + j. Beside them the right-hand side z.
struct BandedTriangle {
    double *r;
    double *z;
    Integer n;
    Integer width;

    double *row(std::ptrdiff_t i) const { return r + i * width; }

    void clear() const
    {
        std::fill_n(r, static_cast<std::ptrdiff_t>(n) * width, 0.0);
        std::fill_n(z, n, 0.0);
    }

    // Rotates a row into the triangle: `length` elements from column `first` on, with right-hand side y. The row is
    // destroyed; what is left of y, which no choice of the unknowns can reduce, is returned.
    [[gnu::always_inline]] double add_row(Integer first, double *h, Integer length, double y) const
    {
        for (Integer i = 0; i < length; ++i) {
            const double pivot = h[i];
            if (pivot == 0.0) continue;
            double *const target = row(first + i);
            const PlaneRotation q = rotation_onto(target[0], pivot);
            const double right = z[first + i];
            z[first + i] = q.c * right + q.s * y;
            y = q.c * y - q.s * right;
            for (Integer j = 1; j < length - i; ++j) {
                const double above = target[j], below = h[i + j];
                target[j] = q.c * above + q.s * below;
                h[i + j] = q.c * below - q.s * above;
            }
        }
        return y;
    }

    // The unknowns; every diagonal element must be non-zero.
    void solve(double *c) const
    {
        for (Integer i = n - 1; i >= 0; --i) {
            const double *const a = row(i);
            double sum = z[i];
            const Integer last = std::min(width, n - i);
            for (Integer j = 1; j < last; ++j) sum -= a[j] * c[i + j];
            c[i] = sum / a[0];
        }
    }
};

} // namespace kor::approx
