// Four doubles side by side, for work that is the same on each: one instruction where the processor has such registers.
#pragma once

#include <cmath>

#include "special/evaluate.hpp"

namespace kor::special {

using Lanes = double __attribute__((vector_size(32)));
using LaneBits = std::uint64_t __attribute__((vector_size(32)));

KOR_INLINE Lanes all_lanes(double x) { return Lanes{x, x, x, x}; }

KOR_INLINE Lanes sqrt(Lanes x)
{
    Lanes root;
    for (int i = 0; i < 4; ++i) root[i] = std::sqrt(x[i]);
    return root;
}

// As upper_half(double).
KOR_INLINE Lanes upper_half(Lanes x)
{
    constexpr std::uint64_t half_unit = std::uint64_t{1} << 26;
    constexpr std::uint64_t lower_bits = (std::uint64_t{1} << 27) - 1;
    return reinterpret_cast<Lanes>((reinterpret_cast<LaneBits>(x) + half_unit) & ~lower_bits);
}

// x where it is not zero, elsewhere 1: a divisor for lanes whose quotient does not matter.
KOR_INLINE Lanes or_one(Lanes x) { return x == 0.0 ? all_lanes(1.0) : x; }

// Four numbers of two doubles each, not normalised.
struct ExtendedLanes {
    Lanes hi, lo;

    KOR_INLINE DoubleDouble operator[](int i) const { return {hi[i], lo[i]}; }
};

// Square roots, what they lack to first order; zero for zero.
KOR_INLINE ExtendedLanes sqrt(const ExtendedLanes &x)
{
    const Lanes root = sqrt(x.hi), square = root * root;
    const Lanes half = upper_half(root), rest = root - half;
    const Lanes rounding = ((half * half - square) + 2.0 * half * rest) + rest * rest;
    return {root, (((x.hi - square) - rounding) + x.lo) * (0.5 / or_one(root))};
}

// Products of lanes 0 and 1, 1 and 2, 2 and 0; lane 3 squared.
KOR_INLINE ExtendedLanes neighbour_products(const ExtendedLanes &x)
{
    const Lanes half = upper_half(x.hi), rest = x.hi - half;
    const auto rotate = [](Lanes v) { return __builtin_shufflevector(v, v, 1, 2, 0, 3); };
    const Lanes other = rotate(x.hi), other_half = rotate(half), other_rest = other - other_half;
    const Lanes product = x.hi * other;
    const Lanes rounding = ((half * other_half - product) + half * other_rest + rest * other_half) + rest * other_rest;
    return {product, rounding + (x.hi * rotate(x.lo) + x.lo * other)};
}

// x + y in every lane, exactly but for the sum of the low parts.
KOR_INLINE ExtendedLanes sum(const ExtendedLanes &x, DoubleDouble y)
{
    const Lanes addend = all_lanes(y.hi), total = x.hi + addend, part = total - x.hi;
    return {total, ((x.hi - (total - part)) + (addend - part)) + (x.lo + y.lo)};
}

KOR_INLINE ExtendedLanes quarter_of_sum(const ExtendedLanes &x, DoubleDouble y)
{
    const ExtendedLanes total = sum(x, y);
    return {0.25 * total.hi, 0.25 * total.lo};
}

} // namespace kor::special
