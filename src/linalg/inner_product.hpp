// Scalar products of short contiguous vectors, in lanes: to be inlined into kernels that are compiled for several processors.
#pragma once

#include "linalg/lanes.hpp"
#include "linalg/scalar.hpp"

namespace kor::linalg {

// x' y
[[gnu::always_inline]] inline double inner_product(Integer n, const double *x, const double *y)
{
    typedef double Half __attribute__((vector_size(32)));
    const auto half = [](const double *at) __attribute__((always_inline))
    {
        Half lanes;
        std::memcpy(&lanes, at, sizeof lanes);
        return lanes;
    };
    Lanes wide{};
    Integer i = 0;
    for (; i + kWidth <= n; i += kWidth) wide += load(x + i) * load(y + i);
    Half sums = {wide[0] + wide[4], wide[1] + wide[5], wide[2] + wide[6], wide[3] + wide[7]};
    if (i + 4 <= n) {
        sums += half(x + i) * half(y + i);
        i += 4;
    }
    double sum = (sums[0] + sums[2]) + (sums[1] + sums[3]);
    for (; i < n; ++i) sum += x[i] * y[i];
    return sum;
}

// conj(x)' y
[[gnu::always_inline]] inline Complex inner_product(Integer n, const Complex *x, const Complex *y)
{
    Complex sum{};
    for (Integer i = 0; i < n; ++i) sum += conj(x[i]) * y[i];
    return sum;
}

// x' y, nothing conjugated.
[[gnu::always_inline]] inline double plain_product(Integer n, const double *x, const double *y)
{
    return inner_product(n, x, y);
}
[[gnu::always_inline]] inline Complex plain_product(Integer n, const Complex *x, const Complex *y)
{
    Complex sum{};
    for (Integer i = 0; i < n; ++i) sum += x[i] * y[i];
    return sum;
}

} // namespace kor::linalg
