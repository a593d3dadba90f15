// Limits of the arguments of the Bessel family, and the values that stand for the function beyond them.
#pragma once

#include <cmath>

namespace kor::special {

// Beyond it an argument does not determine the phase any more.
inline constexpr double kLargestOscillating = 1e16;
inline constexpr double kPhaseOfHalfTheDigits = 0x1.6a09e667f3bcdp+26; // 1 / sqrt(2^-53)
inline constexpr double kSmallestAiry = -5.6e10;                       // Ai, Bi: zeta is 8.8e15
inline constexpr double kSmallestAirySlope = -1.8e9;                   // their derivatives

// Beyond it the values overflow; what is returned there is the value at the limit, or near it.
inline constexpr double kLargestI = 711.6;
inline constexpr double kIAtLargest = 1.7e307;
inline constexpr double kLargestBi = 104.1;
inline constexpr double kBiAtLargest = 5.8092122523950664e306;
inline constexpr double kBiSlopeAtLargest = 5.9257089171090656e307;

// Beyond it K is taken for 0.
inline constexpr double kLargestK = 705.1;

// Below it the pole overflows: 1/x and -2/(pi x) at the limit.
inline constexpr double kSmallestWithPole = 2.23e-308;
inline constexpr double kK1AtPole = 4.4843049327354256e307;
inline constexpr double kY1AtPole = -2.854797185504849e307;

inline constexpr double kLargestBer = 44.625; // excluded
inline constexpr double kLargestKer = 997.26; // where the decay reaches the smallest normal number

// Size of the oscillations of J and Y for large x.
inline double bessel_amplitude(double x)
{
    constexpr double kTwoOverPi = 0.6366197723675813;
    return std::sqrt(kTwoOverPi / x);
}

} // namespace kor::special
