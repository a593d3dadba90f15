// Sorts doubles in place, by the kernel for the processor.
#include "sort/sort_doubles.hpp"

namespace kor::sort {

std::ptrdiff_t sort_doubles(double *a, std::ptrdiff_t n)
{
#ifdef KOR_SORT_ON_VECTORS
    if (__builtin_cpu_supports("x86-64-v4")) return sort_doubles_avx512(a, n);
    if (__builtin_cpu_supports("x86-64-v3")) return sort_doubles_avx2(a, n);
#endif
    return sort_doubles_portable(a, n);
}

} // namespace kor::sort
