// Balancing of a general matrix: eigenvalues that stand isolated are split off, and the rest is scaled.
#pragma once

#include <kor.h>

namespace kor::linalg {

// Rows and columns [low, high] of the balanced matrix, counted from 0, are what is not yet triangular.
struct BalancedRange {
    Integer low, high;
};

// A range as the interface gives it, counted from 1.
constexpr bool is_range(Integer n, Integer low, Integer high) { return low >= 1 && low <= high && high <= n; }

// Permutes and scales a by powers of `base`. d holds, outside the range, the number from 1 of the row and column with which
// j was interchanged, and within, the factor of row and column j.
BalancedRange balance(Integer n, double base, double *a, Integer tda, double *d);

// Turns the rows of z, n by m, into those that belong to the matrix before it was balanced.
void undo_balance(Integer n, BalancedRange range, const double *d, Integer m, double *z, Integer tdz);

} // namespace kor::linalg
