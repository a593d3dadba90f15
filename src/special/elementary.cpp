// The reduction of large angles.
#include "special/elementary.hpp"

namespace kor::special {

namespace {

constexpr double kCount = 0x1p27; // counts of this many bits times 26 bits of pi/2 are exact

// y - count pi/2, count an integer multiple of a power of two with at most 27 bits.
DoubleDouble less_half_pis(DoubleDouble y, double count)
{
    DoubleDouble rest = y;
    for (const double part : tables::kHalfPi) rest = rest + -count * part;
    return rest;
}

} // namespace

ReducedAngle reduce_large_angle(DoubleDouble x)
{
    using tables::kTwoOverPi;
    DoubleDouble y = x;
    // In two stages: a multiple of 2^27 quarter turns, whole turns that is, then the rest.
    if (std::fabs(x.hi) >= kCount) y = less_half_pis(y, kCount * std::rint(y.hi * kTwoOverPi / kCount));
    const double count = std::rint(y.hi * kTwoOverPi);
    return {less_half_pis(y, count), static_cast<int>(static_cast<std::int64_t>(count) & 3)};
}

} // namespace kor::special
