// Coefficients of the elementary functions of the samplers; tools/random_elementary.sollya makes them again.
#pragma once

#include <array>

namespace kor::random {

// log(1 + f) = 2s + s z L(z), s = f / (2 + f), z = s^2, for 1 + f from sqrt(1/2) to sqrt(2): relative error 2^-58.
inline constexpr std::array<double, 7> kLogSeries = {
    0x1.5555555555558p-1, 0x1.9999999995323p-2, 0x1.2492492deec37p-2, 0x1.c71c62e684aaap-3,
    0x1.7462b4ab7b36ap-3, 0x1.39fe5b524b232p-3, 0x1.2b58abb5a535ap-3,
};

// sin(2 pi r) = 2 pi r + r z S(z), z = r^2, |r| <= 1/8: relative error 2^-56.
inline constexpr std::array<double, 6> kSineSeries = {
    -0x1.4abbce625be52p5, 0x1.466bc6775a458p6,  -0x1.32d2cce4fceecp6,
    0x1.507832043a9a2p5,  -0x1.e3027937f9107p3, 0x1.e4a8056846ad4p1,
};

// cos(2 pi r) = 1 - 2 pi^2 z + z^2 C(z), z = r^2, |r| <= 1/8: relative error 2^-60.
inline constexpr std::array<double, 6> kCosineSeries = {
    0x1.03c1f081b5ac4p6,  -0x1.55d3c7e3cbfa3p6, 0x1.e1f506889178ap5,
    -0x1.a6d1f11a3c8f6p4, 0x1.f9d02ee3fd38ep2,  -0x1.b3ab4f365fb38p0,
};

// exp(r) - 1 - r = r^2 / 2 + r^3 E(r), |r| <= log(2) / 2: relative error 2^-58.
inline constexpr std::array<double, 10> kExpSeries = {
    0x1.5555555555556p-3,  0x1.5555555555556p-5,  0x1.111111111070bp-7,  0x1.6c16c16c15f3fp-10, 0x1.a01a01a90235bp-13,
    0x1.a01a01a89ff9dp-16, 0x1.71de0a3cdd79cp-19, 0x1.27e4d64ca7f10p-22, 0x1.af3f0646f7c98p-26, 0x1.1f7c9e07cfa5fp-29,
};

// Constants in two parts; the high parts leave room for exact products.
inline constexpr double kLog2High = 0x1.62e42ffp-1;
inline constexpr double kLog2Low = -0x1.718432a1b0e26p-35;
inline constexpr double kTwoPiHigh = 0x1.921fb58p2;
inline constexpr double kTwoPiLow = -0x1.dde973dcb3b3ap-25;
inline constexpr double kTwoPi = 0x1.921fb54442d18p2;
inline constexpr double kOverLog2 = 0x1.71547652b82fep0; // 1 / log 2

} // namespace kor::random
