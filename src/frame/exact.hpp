// Products without error: the result and its rounding error, as two doubles.
#pragma once

#include <cfloat>
#include <cmath>

namespace kor {

struct DoubleDouble {
    double high, low; // unevaluated sum; `high` is the sum rounded
};

// Forces a value to double where the arithmetic unit is wider. Never inlined there, so that nobody can look through it.
#if FLT_EVAL_METHOD == 0
constexpr double store(double x) { return x; }
#else
double store(double x);
#endif

// Two halves of 26 bits each, whose products with other halves are exact (Dekker 1971, Veltkamp's constant 2^27 + 1).
inline DoubleDouble split(double x)
{
    constexpr double veltkamp = 134217729.0;
    constexpr double limit = 0x1p996; // beyond it the product with the constant could overflow
    const double scale = std::fabs(x) > limit ? 0x1p28 : 1.0;
    const double y = x / scale;
    const double p = store(y * veltkamp);
    const double high = store(store(y - p) + p);
    return {high * scale, store(y - high) * scale};
}

// high + low = a b exactly, unless one of the parts overflows or underflows (Dekker).
inline DoubleDouble two_product(double a, double b)
{
    const DoubleDouble u = split(a);
    const DoubleDouble v = split(b);
    const double r = store(a * b);
    const double high_error = store(store(u.high * v.high) - r);
    const double crossed = store(store(u.low * v.high) + store(store(u.high * v.low) + high_error));
    return {r, store(store(u.low * v.low) + crossed)};
}

} // namespace kor
