// The generations of processors that have kernels of their own.
#pragma once

#include "transforms/kernels.hpp"

#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__)
#define KOR_TRANSFORM_GENERATIONS 1
#endif

namespace kor::transforms {

extern const Kernels kKernelsForAll;
extern const Kernels kKernelsForV3; // AVX2; only where KOR_TRANSFORM_GENERATIONS is defined
extern const Kernels kKernelsForV4; // AVX-512

} // namespace kor::transforms
