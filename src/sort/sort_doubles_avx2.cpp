// The sort of doubles for processors with AVX2, on vectors of four.
#include "sort/sort_doubles.hpp"

#ifdef KOR_SORT_ON_VECTORS

// All that the code below may share with other files comes before the target is set, and is compiled for any processor.
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <immintrin.h>
#include <initializer_list>
#include <limits>

#include "sort/count_below.hpp"
#include "sort/heap_sort.hpp"
#include "sort/pending_parts.hpp"
#include "sort/positions.hpp"

#pragma GCC target("arch=x86-64-v3")
// The intrinsics leave lanes that no one reads without a value.
#pragma GCC diagnostic ignored "-Wuninitialized"
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"

#define KOR_INLINE inline __attribute__((always_inline))
#include "sort/lanes_avx2.hpp"
#include "sort/vector_kernel.hpp"

namespace kor::sort {

std::ptrdiff_t sort_doubles_avx2(double *a, std::ptrdiff_t n)
{
    return sort_numbers<VectorKernel<LanesAvx2, LanesAvx2>>(a, n);
}

} // namespace kor::sort

#endif
