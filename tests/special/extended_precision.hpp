// The kernels of fractional order lean on the eleven bits more that a long double has. An emulated processor may not have
// them: there the last digits of the results are not to be had, and no test can ask for them.
#pragma once

namespace kor::testing {

inline bool long_double_is_long()
{
    volatile long double one = 1.0L, small = 0x1p-60L;
    return one + small != one;
}

// Half an ulp for the rounding of the result, half an ulp for that of the reference, and a little for the kernel.
inline double ulps_of_extended_kernels() { return long_double_is_long() ? 1.1 : 300.0; }

} // namespace kor::testing
