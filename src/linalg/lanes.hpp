// Eight doubles, or as many integers, at a time, for the kernels that are compiled for several processors: the compiler
// makes of them what the processor has.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace kor::linalg {

inline constexpr std::ptrdiff_t kWidth = 8;
typedef double Lanes __attribute__((vector_size(8 * kWidth)));
typedef std::int64_t Places __attribute__((vector_size(8 * kWidth)));

[[gnu::always_inline]] inline Lanes load(const double *x)
{
    Lanes lanes;
    std::memcpy(&lanes, x, sizeof lanes);
    return lanes;
}
[[gnu::always_inline]] inline void store(double *x, Lanes lanes) { std::memcpy(x, &lanes, sizeof lanes); }

[[gnu::always_inline]] inline Lanes absolute(Lanes x)
{
    constexpr std::int64_t kAllButSign = 0x7fffffffffffffff;
    return (Lanes)((Places)x & kAllButSign);
}
[[gnu::always_inline]] inline Lanes greater(Lanes a, Lanes b) { return a > b ? a : b; } // b, if a is NaN

[[gnu::always_inline]] inline double sum_of(Lanes x)
{
    return ((x[0] + x[1]) + (x[2] + x[3])) + ((x[4] + x[5]) + (x[6] + x[7]));
}

} // namespace kor::linalg
