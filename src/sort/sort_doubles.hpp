// Sorts doubles in place.
#pragma once

#include <cstddef>

namespace kor::sort {

// Ascending; -0.0 before 0.0, NaNs last. Returns how many are not NaN. Uses the vectors that the processor has.
std::ptrdiff_t sort_doubles(double *a, std::ptrdiff_t n);

// The kernels: the same, but for zeros, which come in any order. The processor must be right.
std::ptrdiff_t sort_numbers_portable(double *a, std::ptrdiff_t n);
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__)
#define KOR_SORT_ON_VECTORS 1
std::ptrdiff_t sort_numbers_avx2(double *a, std::ptrdiff_t n);
std::ptrdiff_t sort_numbers_avx512(double *a, std::ptrdiff_t n);
#endif

} // namespace kor::sort
