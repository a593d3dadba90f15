// Plane rotations: how one is chosen from its tangent, and how it turns a pair of vectors.
//
// Throughout this folder a rotation (c, s) turns the pair (x, y) into (c x + conj(s) y, c y - s x), c real. Chosen from the
// tangent t = b / a, it leaves of the pair (a, b) the second zero: c = 1 / sqrt(1 + |t|^2), s = c t.
#pragma once

#include <cstddef>

#include "linalg/scalar.hpp"
#include "linalg/strided.hpp"

namespace kor::linalg {

// a / b where it neither overflows nor underflows; beyond 2^1022 `overflow` is set and the quotient has modulus 2^1022
// and the sign, or direction, of a / b (of a, if b = 0); one that underflows is 0. 0 / 0 is 0 with `overflow` set.
double guarded_quotient(double a, double b, bool &overflow);
Complex guarded_quotient(Complex a, Complex b, bool &overflow);

template <Scalar T>
struct Rotation {
    double c;
    T s;
    bool is_identity() const { return c == 1.0 && s == T{}; }
};

// The rotation of the tangent t.
Rotation<double> rotation_of_tangent(double t);
Rotation<Complex> rotation_of_tangent(Complex t);

// Chooses the rotation that takes (a, b) to (r, 0): a becomes r, b the tangent. Nothing changes if b = 0.
template <Scalar T>
Rotation<T> annihilate(T &a, T &b)
{
    if (b == T{}) return {1.0, T{}};
    bool overflow;
    const T t = guarded_quotient(b, a, overflow); // an overflow is a large tangent
    const Rotation<T> rotation = rotation_of_tangent(t);
    a = rotation.c * a + conj(rotation.s) * b;
    b = t;
    return rotation;
}

// The standard operation rotg: the rotation that takes (a, b) to (r, 0), r with the sign of the greater in modulus. a
// becomes r, and b the number z by which the rotation can be kept: s if |a| > |b|, else 1/c, or 1 if c = 0.
Rotation<double> standard_rotation(double &a, double &b);

// Turns one pair.
template <Scalar S, Scalar T>
void turn(T &x, T &y, double c, S s)
{
    const T kept = x;
    x = c * kept + conj(s) * y;
    y = c * y - s * kept;
}

// Turns the pairs of two rows, or of any two contiguous vectors that do not overlap.
template <Scalar S, Scalar T>
void turn_rows(std::ptrdiff_t n, T *__restrict x, T *__restrict y, double c, S s)
{
    if (c == 1.0 && s == S{}) return;
    for (std::ptrdiff_t j = 0; j < n; ++j) turn(x[j], y[j], c, s);
}

} // namespace kor::linalg
