// The kernels for x86-64-v3: registers of four doubles.
#include "transforms/generations.hpp"
#include "transforms/kernel_headers.hpp"

#if defined(KOR_TRANSFORM_GENERATIONS)

#pragma GCC target("arch=x86-64-v3")
// This vectorisation forms fused multiplications and additions (vfmaddsub) even where contraction is off (GCC 12).
#pragma GCC optimize("no-tree-slp-vectorize")
#define KOR_LANES 4
#define KOR_KERNELS_BELOW kKernelsForAll

namespace kor::transforms {

namespace v3 {
#include "transforms/kernels.inl"
} // namespace v3

constexpr Kernels kKernelsForV3 = v3::kKernels;

} // namespace kor::transforms

#endif
