// QR factors of a matrix that changes by a matrix of rank one.
//
// Gill, Golub, Murray and Saunders, Math. Comp. 28 (1974) 505-535. Rotations in the planes (j, n-1) turn u into a multiple
// of the last unit vector, which leaves a full last row w below the triangle of R; adding the multiple of v to that row
// completes R + u v', and a second sweep removes the row again.
#include "roots/rank_one_update.hpp"

#include <algorithm>
#include <cmath>

namespace kor::roots {

namespace {

// The rotation that carries (a, b) into (r, 0): c a + s b = r. Formed so that nothing can overflow.
Rotation annihilate(double a, double b)
{
    if (b == 0.0) return {};
    if (std::fabs(a) < std::fabs(b)) {
        const double cotangent = a / b;
        const double s = 0.5 / std::sqrt(0.25 + 0.25 * cotangent * cotangent);
        return {s * cotangent, s};
    }
    const double tangent = b / a;
    const double c = 0.5 / std::sqrt(0.25 + 0.25 * tangent * tangent);
    return {c, c * tangent};
}

// (p, q) becomes (c p + s q, c q - s p).
void rotate(Rotation g, double &p, double &q)
{
    const double rotated = g.c * p + g.s * q;
    q = g.c * q - g.s * p;
    p = rotated;
}

void rotate_rows(Rotation g, double *__restrict p, double *__restrict q, Integer first, Integer end)
{
    for (Integer i = first; i < end; ++i) rotate(g, p[i], q[i]);
}

// Applies to one row the rotations in planes (j, n-1), first sweep downwards in j, second upwards.
void rotate_columns(const Rotation *rotations, Integer n, double *row)
{
    const Integer last = n - 1;
    for (Integer j = last - 1; j >= 0; --j) rotate(rotations[j], row[j], row[last]);
    for (Integer j = 0; j < last; ++j) rotate(rotations[n + j], row[j], row[last]);
}

// The same for several rows side by side: each row is one chain of dependent operations, together they fill the processor.
template <int rows>
void rotate_columns_of_block(const Rotation *rotations, Integer n, RowMajor<double> q, Integer first)
{
    const Integer last = n - 1;
    double tail[rows];
    for (int i = 0; i < rows; ++i) tail[i] = q(first + i, last);
    const auto apply = [&](Integer j, Rotation g) {
        for (int i = 0; i < rows; ++i) rotate(g, q(first + i, j), tail[i]);
    };
    for (Integer j = last - 1; j >= 0; --j) apply(j, rotations[j]);
    for (Integer j = 0; j < last; ++j) apply(j, rotations[n + j]);
    for (int i = 0; i < rows; ++i) q(first + i, last) = tail[i];
}

} // namespace

void rank_one_update(PackedUpper r, double *u, const double *v, double *w, Rotation *rotations, RowMajor<double> q,
                     double *qtf)
{
    const Integer n = r.n;
    const Integer last = n - 1;

    std::fill(w, w + last, 0.0);
    w[last] = r.row(last)[last];

    for (Integer j = last - 1; j >= 0; --j) {
        // Carries (u[last], u[j]) into (r, 0): seen as a rotation of the pair (j, last) its sine has the other sign.
        const Rotation g = annihilate(u[last], u[j]);
        rotations[j] = {g.c, -g.s};
        rotate(g, u[last], u[j]);
        rotate_rows(rotations[j], r.row(j), w, j, n);
    }
    for (Integer j = 0; j < n; ++j) w[j] += u[last] * v[j];
    for (Integer j = 0; j < last; ++j) {
        const Rotation g = annihilate(r.row(j)[j], w[j]);
        rotations[n + j] = g;
        rotate_rows(g, r.row(j), w, j, n);
    }
    r.row(last)[last] = w[last];

    constexpr int kBlock = 8;
    Integer i = 0;
    for (; i + kBlock <= n; i += kBlock) rotate_columns_of_block<kBlock>(rotations, n, q, i);
    for (; i < n; ++i) rotate_columns(rotations, n, q.row(i));
    rotate_columns(rotations, n, qtf);
}

} // namespace kor::roots
