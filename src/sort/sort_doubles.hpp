// Sorts doubles in place.
#pragma once

#include <cstddef>

namespace kor::sort {

// Ascending; -0.0 before 0.0, NaNs last. Returns how many are not NaN.
std::ptrdiff_t sort_doubles(double *a, std::ptrdiff_t n);

// The same for values without NaN and with equal values in no particular order: the portable kernel.
void sort_numbers(double *a, std::ptrdiff_t n);

} // namespace kor::sort
