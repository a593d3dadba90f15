// Incomplete LU factorisation, row by row, with pivoting and repair of pivots.
#pragma once

#include "sparse/coordinate.hpp"
#include "sparse/factor_storage.hpp"

namespace kor::sparse {

enum class LuPivoting { none, given, partial, complete };

struct LuRules {
    Integer fill_level;    // fill of a higher level is dropped; negative: fill is judged by its size
    double drop_tolerance; // relative to the greatest modulus in the matrix
    LuPivoting pivoting;
    bool modified; // what is dropped from a row goes to its pivot
};

// What the factorisation leaves: the factor itself behind the matrix in `storage`, in the order of the elimination.
struct LuResult {
    Integer *row_order, *column_order; // in for `given`, out otherwise: row and column of A at each stage, from 1
    Integer *row_start, *diagonal;     // n + 1 and n: places in the arrays, from 1
    Integer elements;                  // of the factor
    Integer modified_pivots;           // -1: none, but a row was done again without dropping, under complete pivoting
};

// The matrix and, for `given`, the orders are valid. Nothing that the caller sees changes unless the outcome is `done`.
Factorised factorise_lu(const Matrix &a, const LuRules &, const Storage &, LuResult &);

} // namespace kor::sparse
