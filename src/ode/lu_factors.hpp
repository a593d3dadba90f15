// LU factors with row interchanges of square matrices in columns: plain loops while they are small, where a call of LAPACK costs more
// than its work, and LAPACK beyond.
#pragma once

#include <cmath>
#include <cstddef>
#include <utility>

#include "linalg/lapack.hpp"

namespace kor::ode {

inline constexpr Integer kSmallFactors = 12;

// Overwrites a by its factors. False when it is singular.
inline bool lu_factor(Integer n, double *a, Integer *pivots)
{
    if (n > kSmallFactors) return lapack::getrf(n, n, a, n, pivots) == 0;
    const auto at = [=](Integer i, Integer j) -> double & { return a[std::ptrdiff_t{j} * n + i]; };
    for (Integer k = 0; k < n; ++k) {
        Integer pivot = k;
        for (Integer i = k + 1; i < n; ++i)
            if (std::fabs(at(i, k)) > std::fabs(at(pivot, k))) pivot = i;
        pivots[k] = pivot;
        if (at(pivot, k) == 0.0) return false;
        if (pivot != k)
            for (Integer j = 0; j < n; ++j) std::swap(at(k, j), at(pivot, j));
        const double reciprocal = 1.0 / at(k, k);
        for (Integer i = k + 1; i < n; ++i) at(i, k) *= reciprocal;
        for (Integer j = k + 1; j < n; ++j) {
            const double top = at(k, j);
            for (Integer i = k + 1; i < n; ++i) at(i, j) -= at(i, k) * top;
        }
    }
    return true;
}

// Overwrites `columns` right-hand sides by the solutions.
inline void lu_solve(Integer n, const double *a, const Integer *pivots, double *b, Integer columns = 1)
{
    if (n > kSmallFactors) {
        lapack::getrs('N', n, columns, a, n, pivots, b, n);
        return;
    }
    for (Integer c = 0; c < columns; ++c, b += n) {
        for (Integer k = 0; k < n; ++k)
            if (pivots[k] != k) std::swap(b[k], b[pivots[k]]);
        for (Integer k = 0; k < n; ++k)
            for (Integer i = k + 1; i < n; ++i) b[i] -= a[std::ptrdiff_t{k} * n + i] * b[k];
        for (Integer k = n - 1; k >= 0; --k) {
            b[k] /= a[std::ptrdiff_t{k} * n + k];
            for (Integer i = 0; i < k; ++i) b[i] -= a[std::ptrdiff_t{k} * n + i] * b[k];
        }
    }
}

} // namespace kor::ode
