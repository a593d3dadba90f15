// Matrices in coordinate storage: validity and row starts.
#include "sparse/coordinate.hpp"

#include <algorithm>

namespace kor::sparse {

Fault find_fault(const Matrix &a, Triangle triangle)
{
    Integer last_row = 1, last_column = 0;
    for (Integer p = 0; p < a.nnz; ++p) {
        const Integer i = a.row[p], j = a.column[p];
        if (i < 1) return Fault::row_below_range;
        if (i > a.n) return Fault::row_above_range;
        if (j < 1 || j > a.n) return Fault::column_out_of_range;
        if (triangle == Triangle::lower && j > i) return Fault::above_diagonal;
        if (i < last_row) return Fault::row_out_of_order;
        if (i == last_row && j == last_column) return Fault::repeated;
        if (i == last_row && j < last_column) return Fault::column_out_of_order;
        last_row = i;
        last_column = j;
    }
    return Fault::sound;
}

void find_row_starts(const Matrix &a, Integer start[])
{
    Integer p = 0;
    for (Integer i = 0; i < a.n; ++i) {
        start[i] = p;
        while (p < a.nnz && a.row[p] == i + 1) ++p;
    }
    start[a.n] = a.nnz;
}

bool invert_order(Integer n, const Integer p[], Integer inverse[])
{
    constexpr Integer kUnset = -1;
    std::fill_n(inverse, n, kUnset);
    for (Integer i = 0; i < n; ++i) {
        if (p[i] < 1 || p[i] > n || inverse[p[i] - 1] != kUnset) return false;
        inverse[p[i] - 1] = i;
    }
    return true;
}

bool is_identity(Integer n, const Integer p[])
{
    for (Integer i = 0; i < n; ++i)
        if (p[i] != i + 1) return false;
    return true;
}

} // namespace kor::sparse
