// The kernels for every processor, and the choice among those that this build holds.
#include "transforms/generations.hpp"
#include "transforms/kernel_headers.hpp"

#define KOR_LANES 2

namespace kor::transforms {

namespace base {
#include "transforms/kernels.inl"
} // namespace base

const Kernels &kernels_for_all() { return base::kKernels; }

const Kernels &kernels()
{
    static const Kernels &best = []() -> const Kernels & {
#if defined(KOR_TRANSFORM_GENERATIONS)
        if (__builtin_cpu_supports("x86-64-v4")) return kernels_for_v4();
        if (__builtin_cpu_supports("x86-64-v3")) return kernels_for_v3();
#endif
        return kernels_for_all();
    }();
    return best;
}

} // namespace kor::transforms
