// Sorts doubles in place.
#pragma once

#include <cstddef>

namespace kor::sort {

// Ascending; -0.0 before 0.0, NaNs last. Returns how many are not NaN.
std::ptrdiff_t sort_doubles(double *a, std::ptrdiff_t n);

// The same, by one of the kernels; the processor must be right for it.
std::ptrdiff_t sort_doubles_portable(double *a, std::ptrdiff_t n);
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__)
#define KOR_SORT_ON_VECTORS 1
std::ptrdiff_t sort_doubles_avx2(double *a, std::ptrdiff_t n);   // x86-64-v3
std::ptrdiff_t sort_doubles_avx512(double *a, std::ptrdiff_t n); // x86-64-v4
#endif

} // namespace kor::sort
