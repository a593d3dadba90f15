// The kernels for every processor, and the choice among those that this build holds.
#include "transforms/generations.hpp"
#include "transforms/kernel_headers.hpp"

#define KOR_LANES 2

namespace kor::transforms {

namespace base {
#include "transforms/kernels.inl"
} // namespace base

constexpr Kernels kKernelsForAll = base::kKernels;

namespace {

#if defined(KOR_TRANSFORM_GENERATIONS)
const bool has_v4 = __builtin_cpu_supports("x86-64-v4"), has_v3 = __builtin_cpu_supports("x86-64-v3");
#endif

// Up to this length shorter registers are faster.
constexpr Index kLongestForFourLanes = 127;

} // namespace

const Kernels &kernels() { return kernels_for_lanes(8); }

const Kernels &kernels_for_length(Index n) { return kernels_for_lanes(n > kLongestForFourLanes ? 8 : 4); }

const Kernels &kernels_for_lanes([[maybe_unused]] Index elements)
{
#if defined(KOR_TRANSFORM_GENERATIONS)
    if (has_v4 && elements >= 8) return kKernelsForV4;
    if (has_v3) return kKernelsForV3;
#endif
    return kKernelsForAll;
}

} // namespace kor::transforms
