// Sorts doubles in place: what comes before and after the sort of the numbers.
#include "sort/sort_doubles.hpp"

#include <algorithm>
#include <cmath>

namespace kor::sort {

namespace {

std::ptrdiff_t move_nans_to_end(double *a, std::ptrdiff_t n)
{
    std::ptrdiff_t numbers = 0;
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        const double value = a[i];
        a[i] = a[numbers];
        a[numbers] = value;
        numbers += !std::isnan(value);
    }
    return numbers;
}

// Comparisons do not tell the zeros apart.
void order_zeros(double *a, std::ptrdiff_t n)
{
    double *const first = std::lower_bound(a, a + n, 0.0);
    if (first == a + n || *first != 0.0) return;
    double *const last = std::upper_bound(first, a + n, 0.0);
    const auto negative = std::count_if(first, last, [](double zero) { return std::signbit(zero); });
    std::fill(std::fill_n(first, negative, -0.0), last, 0.0);
}

} // namespace

std::ptrdiff_t sort_doubles(double *a, std::ptrdiff_t n)
{
    const std::ptrdiff_t numbers = move_nans_to_end(a, n);
    sort_numbers(a, numbers);
    order_zeros(a, numbers);
    return numbers;
}

} // namespace kor::sort
