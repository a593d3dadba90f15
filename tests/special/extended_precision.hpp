// The kernels of fractional order lean on the eleven bits more that a long double has. An emulated processor may not have
// them: there the last digits of the results are not to be had, and no test can ask for them.
#pragma once

namespace kor::testing {

inline bool long_double_is_long()
{
    volatile long double one = 1.0L, small = 0x1p-60L;
    return one + small != one;
}

inline double ulps_of_extended_kernels() { return long_double_is_long() ? 0.6 : 300.0; }

} // namespace kor::testing
