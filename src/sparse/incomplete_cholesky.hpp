// Incomplete Cholesky factorisation of a symmetric matrix, with repair of pivots.
#pragma once

#include "sparse/coordinate.hpp"
#include "sparse/factor_storage.hpp"

namespace kor::sparse {

enum class CholeskyPivoting { none, fewest_neighbours, given };

struct CholeskyRules {
    Integer fill_level;    // fill of a higher level is dropped; negative: fill is judged by its size
    double drop_tolerance; // relative to the greatest modulus in the matrix
    bool modified;         // what is dropped goes to the two diagonal elements of its row and column
    double diagonal_scale; // the diagonal is multiplied by 1 plus this before the factorisation
    CholeskyPivoting pivoting;
};

struct CholeskyResult {
    Integer *order;     // in for `given`, out otherwise: the row of A at each stage, from 1
    Integer *row_start; // n + 1: places in the arrays, from 1
    Integer elements, modified_pivots;
};

// The lower triangle in `a` and, for `given`, the order are valid. Nothing that the caller sees changes unless the outcome is
// `done`.
Factorised factorise_cholesky(const Matrix &a, const CholeskyRules &, const Storage &, CholeskyResult &);

} // namespace kor::sparse
