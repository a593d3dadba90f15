// Plane rotations from their tangents.
#include "linalg/rotation.hpp"

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"

namespace kor::linalg {

namespace {

constexpr double kBound = 1.0 / kSafeSmall; // 2^1022

// A power of two that brings the greater part of z, which is not 0, near to 1, so that no square of it over- or
// underflows; the parts of an infinity stay what they are.
double scaling_of(Complex z)
{
    const double greatest = largest_part(z);
    return std::isfinite(greatest) ? std::ldexp(1.0, -std::max(std::ilogb(greatest), -1021)) : 1.0;
}

// a / b for numbers near 1.
Complex plain_quotient(Complex a, Complex b)
{
    const double square = b.re * b.re + b.im * b.im;
    const Complex product = a * conj(b);
    return {product.re / square, product.im / square};
}

// z / |z|; of an infinity the direction of its infinite parts.
Complex direction_of(Complex z)
{
    if (std::isinf(z.re) || std::isinf(z.im))
        z = {std::isinf(z.re) ? std::copysign(1.0, z.re) : 0.0, std::isinf(z.im) ? std::copysign(1.0, z.im) : 0.0};
    const Complex near_one = scaling_of(z) * z;
    const double length = modulus(near_one);
    return {near_one.re / length, near_one.im / length};
}

bool is_nan(Complex z) { return std::isnan(z.re) || std::isnan(z.im); }

} // namespace

double guarded_quotient(double a, double b, bool &overflow)
{
    overflow = false;
    if (std::isnan(a) || std::isnan(b)) return a / b;
    if (a == 0.0) {
        overflow = b == 0.0;
        return 0.0;
    }
    if (b == 0.0) {
        overflow = true;
        return std::copysign(kBound, a);
    }
    const double size_a = std::fabs(a), size_b = std::fabs(b);
    if (size_b < 1.0) {
        overflow = size_a > size_b * kBound;
        if (overflow) return std::signbit(a) == std::signbit(b) ? kBound : -kBound;
    } else if (size_a < size_b * kSafeSmall) {
        return 0.0;
    }
    return a / b;
}

Complex guarded_quotient(Complex a, Complex b, bool &overflow)
{
    overflow = false;
    if (is_nan(a) || is_nan(b)) return {a.re + a.im + b.re + b.im, a.re + a.im + b.re + b.im};
    if (a == Complex{}) {
        overflow = b == Complex{};
        return {0.0, 0.0};
    }
    if (b == Complex{}) {
        overflow = true;
        return kBound * direction_of(a);
    }
    const double scale_a = scaling_of(a), scale_b = scaling_of(b);
    const Complex near_a = scale_a * a, near_b = scale_b * b;
    const Complex quotient = plain_quotient(near_a, near_b);
    // a / b is quotient 2^exponent: compared before it is formed.
    const int exponent = std::ilogb(scale_b) - std::ilogb(scale_a);
    const double size = modulus(quotient);
    if (modulus(b) < 1.0) {
        overflow = std::isfinite(size) && size > std::ldexp(1.0, 1022 - exponent);
        if (overflow) return kBound * direction_of(quotient);
    } else if (size < std::ldexp(1.0, -1022 - exponent)) {
        return {0.0, 0.0};
    }
    return {std::ldexp(quotient.re, exponent), std::ldexp(quotient.im, exponent)};
}

Rotation<double> rotation_of_tangent(double t)
{
    const double small = std::sqrt(kPrecision), size = std::fabs(t);
    if (size < small) return {1.0, t};
    if (size > 1.0 / small) return {1.0 / size, std::copysign(1.0, t)};
    const double c = 1.0 / std::sqrt(t * t + 1.0);
    return {c, c * t};
}

Rotation<Complex> rotation_of_tangent(Complex t)
{
    const double small = std::sqrt(kPrecision), size = modulus(t);
    if (size < small) return {1.0, t};
    if (size > 1.0 / small) {
        // 1 / |t|, of scaled numbers: |t| itself may overflow.
        const double scale = scaling_of(t);
        return {scale / modulus(scale * t), direction_of(t)};
    }
    const double c = 1.0 / std::sqrt(t.re * t.re + t.im * t.im + 1.0);
    return {c, c * t};
}

Rotation<double> standard_rotation(double &a, double &b)
{
    if (a == 0.0 && b == 0.0) {
        a = b = 0.0;
        return {1.0, 0.0};
    }
    const double scale = scaling_of({a, b}), near_a = scale * a, near_b = scale * b;
    const bool first_greater = std::fabs(a) > std::fabs(b);
    const double r = std::copysign(std::sqrt(near_a * near_a + near_b * near_b), first_greater ? a : b);
    const Rotation<double> rotation = {near_a / r, near_b / r};
    a = r / scale;
    b = first_greater ? rotation.s : rotation.c != 0.0 ? 1.0 / rotation.c : 1.0;
    return rotation;
}

} // namespace kor::linalg
