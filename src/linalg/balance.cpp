// Balancing after B. N. Parlett and C. Reinsch, Numer. Math. 13 (1969) 293-304, by Euclidean norms that take in the diagonal:
// else a matrix near to Hessenberg form may be scaled until its vectors are lost. R. James, J. Langou and B. R. Lowery, On
// matrix balancing and eigenvector computation, arXiv:1401.5766 (2014).
#include "linalg/balance.hpp"

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"
#include "frame/views.hpp"
#include "linalg/norm.hpp"

namespace kor::linalg {

namespace {

void exchange_row_and_column(Integer n, const RowMajor<double> &A, Integer i, Integer j)
{
    if (i == j) return;
    std::swap_ranges(A.row(i), A.row(i) + n, A.row(j));
    for (Integer r = 0; r < n; ++r) std::swap(A(r, i), A(r, j));
}

} // namespace

BalancedRange balance(Integer n, double base, double *a, Integer tda, double *d)
{
    const RowMajor<double> A{a, tda};
    Integer low = 0, high = n - 1;

    const auto row_is_isolated = [&](Integer i) {
        for (Integer j = 0; j <= high; ++j)
            if (j != i && A(i, j) != 0.0) return false;
        return true;
    };
    const auto column_is_isolated = [&](Integer j) {
        for (Integer i = low; i <= high; ++i)
            if (i != j && A(i, j) != 0.0) return false;
        return true;
    };
    // Rows that are zero beside the diagonal go to the bottom, columns to the left.
    for (bool found = true; found && high > 0;) {
        found = false;
        for (Integer i = high; i >= 0 && !found; --i)
            if (row_is_isolated(i)) {
                d[high] = i + 1;
                exchange_row_and_column(n, A, i, high--);
                found = true;
            }
    }
    for (bool found = true; found && low < high;) {
        found = false;
        for (Integer j = low; j <= high && !found; ++j)
            if (column_is_isolated(j)) {
                d[low] = j + 1;
                exchange_row_and_column(n, A, j, low++);
                found = true;
            }
    }

    // A factor is taken if it makes row and column together smaller by a twentieth: else it might go on for ever.
    constexpr double kWorthwhile = 0.95;
    constexpr double kLeastFactor = 0x1p-500, kGreatestFactor = 0x1p500;
    std::fill(d + low, d + high + 1, 1.0);
    for (bool changed = true; changed;) {
        changed = false;
        for (Integer i = low; i <= high; ++i) {
            const double column = euclidean_norm(high - low + 1, &A(low, i), tda);
            const double row = euclidean_norm(high - low + 1, &A(i, low), 1);
            if (column == 0.0 || row == 0.0 || !std::isfinite(column + row)) continue;
            double factor = 1.0, scaled = column;
            while (scaled < row / base && factor < kGreatestFactor) {
                factor *= base;
                scaled *= base * base;
            }
            while (scaled >= row * base && factor > kLeastFactor) {
                factor /= base;
                scaled /= base * base;
            }
            if (factor == 1.0 || (scaled + row) / factor >= kWorthwhile * (column + row)) continue;
            if (d[i] * factor > kGreatestFactor || d[i] * factor < kLeastFactor) continue;
            d[i] *= factor;
            changed = true;
            for (Integer j = 0; j < n; ++j) A(i, j) /= factor;
            for (Integer j = 0; j <= high; ++j) A(j, i) *= factor;
        }
    }
    return {low, high};
}

void undo_balance(Integer n, BalancedRange range, const double *d, Integer m, double *z, Integer tdz)
{
    const RowMajor<double> Z{z, tdz};
    for (Integer i = range.low; i <= range.high; ++i)
        for (Integer j = 0; j < m; ++j) Z(i, j) *= d[i];
    const auto exchange = [&](Integer i) {
        const Integer k = static_cast<Integer>(d[i]) - 1;
        if (k != i) std::swap_ranges(Z.row(i), Z.row(i) + m, Z.row(k));
    };
    for (Integer i = range.low - 1; i >= 0; --i) exchange(i);
    for (Integer i = range.high + 1; i < n; ++i) exchange(i);
}

} // namespace kor::linalg
