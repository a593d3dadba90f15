// Sorts doubles in place: chooses the kernel, and puts zeros in order.
#include "sort/sort_doubles.hpp"

#include <algorithm>
#include <cmath>

namespace kor::sort {

namespace {

std::ptrdiff_t sort_numbers(double *a, std::ptrdiff_t n)
{
#ifdef KOR_SORT_ON_VECTORS
    if (__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512vl") &&
        __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("bmi2"))
        return sort_numbers_avx512(a, n);
    if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi2")) return sort_numbers_avx2(a, n);
#endif
    return sort_numbers_portable(a, n);
}

// Comparisons do not tell the zeros apart.
void order_zeros(double *a, std::ptrdiff_t n)
{
    if (n == 0 || a[0] > 0.0 || a[n - 1] < 0.0) return;
    double *const first = std::lower_bound(a, a + n, 0.0);
    double *const last = std::upper_bound(first, a + n, 0.0);
    if (last - first < 2) return;
    const auto negative = std::count_if(first, last, [](double zero) { return std::signbit(zero); });
    std::fill(std::fill_n(first, negative, -0.0), last, 0.0);
}

} // namespace

std::ptrdiff_t sort_doubles(double *a, std::ptrdiff_t n)
{
    const std::ptrdiff_t numbers = sort_numbers(a, n);
    order_zeros(a, numbers);
    return numbers;
}

} // namespace kor::sort
