// Machine constants of IEEE double: the single source of every tolerance. The public x02 routines return them.
#pragma once

namespace kor {

inline constexpr double kPrecision = 0x1.004p-53;          // x02ajc: a little greater than 2^-53, on purpose
inline constexpr double kSmallest = 0x1p-1022;             // x02akc: smallest normal number
inline constexpr double kLargest = 0x1.fffffffffffffp1023; // x02alc: largest finite number
inline constexpr double kSafeSmall = 0x1p-1022;            // x02amc: its reciprocal does not overflow
inline constexpr double kArgumentLimit = 0x1p64; // x02ahc: beyond it an argument keeps no digits behind the point
inline constexpr double kPi = 3.141592653589793;

double x01aaf_f(); // pi, under its kernel's name

// Radix, digits, precision and its root, safe range and its root, their reciprocals, and 0.
inline constexpr int kMachineArraySize = 9;
void x02zaz(double wmach[kMachineArraySize]);

} // namespace kor
