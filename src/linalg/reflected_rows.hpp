// An elementary reflection applied to whole matrices, along their rows.
#pragma once

#include <algorithm>
#include <cstddef>
#include <type_traits>

#include "linalg/inner_product.hpp"
#include "linalg/scalar.hpp"

namespace kor::linalg {

// gamma of the reflection I - gamma u conj(u)' with the leading element zeta: 1 + i twist, or 0 if it was left out.
template <Scalar T>
T reflection_factor(T zeta, double twist)
{
    if (zeta == T{}) return T{};
    if constexpr (std::is_same_v<T, Complex>)
        return {1.0, twist};
    else
        return 1.0;
}

// Y := Y - gamma u (conj(u)' Y), Y m by n. w holds a row.
template <Scalar T>
void reflect_rows(Integer m, Integer n, T gamma, const T *u, Integer incu, T *y, std::ptrdiff_t tdy, T *__restrict w)
{
    if (gamma == T{} || n <= 0) return;
    std::fill(w, w + n, T{});
    for (std::ptrdiff_t i = 0; i < m; ++i) {
        const T factor = conj(u[i * incu]);
        const T *const row = y + i * tdy;
        for (Integer j = 0; j < n; ++j) w[j] += factor * row[j];
    }
    for (std::ptrdiff_t i = 0; i < m; ++i) {
        const T factor = gamma * u[i * incu];
        T *const row = y + i * tdy;
        for (Integer j = 0; j < n; ++j) row[j] -= factor * w[j];
    }
}

// Each row q of Y: q := q - gamma (conj(u)' q) u, u and q of n elements.
template <Scalar T>
void reflect_each_row(Integer m, Integer n, T gamma, const T *u, T *y, std::ptrdiff_t tdy)
{
    if (gamma == T{}) return;
    for (std::ptrdiff_t i = 0; i < m; ++i) {
        T *const __restrict row = y + i * tdy;
        const T factor = gamma * inner_product(n, u, row);
        for (Integer j = 0; j < n; ++j) row[j] -= factor * u[j];
    }
}

} // namespace kor::linalg
