// The kernels for x86-64-v4: registers of eight doubles.
#include "transforms/generations.hpp"
#include "transforms/kernel_headers.hpp"

#if defined(KOR_TRANSFORM_GENERATIONS)

#pragma GCC target("arch=x86-64-v4")
// This vectorisation forms fused multiplications and additions (vfmaddsub) even where contraction is off (GCC 12).
#pragma GCC optimize("no-tree-slp-vectorize")
#define KOR_LANES 8
#define KOR_KERNELS_BELOW kKernelsForV3

namespace kor::transforms {

namespace v4 {
#include "transforms/kernels.inl"
} // namespace v4

constexpr Kernels kKernelsForV4 = v4::kKernels;

} // namespace kor::transforms

#endif
