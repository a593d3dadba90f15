// Matrices in coordinate storage: what makes one valid, and where its rows start.
//
// The elements of a valid matrix lie row by row and, within a row, by increasing column; so its arrays of values and of
// columns are those of compressed rows, and the row starts are all that products need in addition. Indices are 1-based, as
// the caller wrote them; starts are 0-based places in the arrays.
#pragma once

#include <cstdint>

#include <kor.h>

namespace kor::sparse {

enum class Triangle { both, lower };

struct Matrix {
    Integer n;
    Integer nnz;
    const double *value;
    const Integer *row, *column;
};

// What is wrong with a list of elements, in the order of the tests; `sound` if nothing.
enum class Fault {
    sound,
    row_below_range,
    row_above_range,
    column_out_of_range,
    above_diagonal,
    row_out_of_order,
    column_out_of_order,
    repeated
};

Fault find_fault(const Matrix &, Triangle);
inline bool is_sound(const Matrix &a, Triangle triangle) { return find_fault(a, triangle) == Fault::sound; }

// Is `nnz` a possible number of elements? In 64 bits: the square of an order may exceed an Integer.
inline bool count_is_possible(Integer n, Integer nnz, Triangle triangle)
{
    const std::int64_t order = n;
    return nnz >= 1 && nnz <= (triangle == Triangle::both ? order * order : order * (order + 1) / 2);
}

// start[i] .. start[i + 1] - 1 are the places of row i, from 0; n + 1 elements. `a` is valid.
void find_row_starts(const Matrix &a, Integer start[]);

// Is p[0..n-1] a permutation of 1..n? Then inverse[p[i] - 1] = i; `inverse` has n elements and is overwritten in any case.
bool invert_order(Integer n, const Integer p[], Integer inverse[]);

bool is_identity(Integer n, const Integer p[]);

} // namespace kor::sparse
